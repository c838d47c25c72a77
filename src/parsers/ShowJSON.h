#pragma once

#include "platform/Moment.h"
#include "store/ListMerge.h"
#include "store/ShowItem.h"

#include <QJsonObject>
#include <QString>

namespace guide {

/// An unset text as null; a lone surrogate becomes the replacement character.
QJsonValue jsonText(const std::optional<QString>& text);

/// A moment in UTC, "2026-11-21T10:00:00Z", with milliseconds only where there are any.
QString isoMoment(Moment moment);

/// All that a list keeps of a show, null for what is unset. Texts are in their source forms but for "title",
/// and the pictures in the order of their text. `item` has parts.
QJsonObject showJSON(const ShowItem& item);

/// The "categories", "details" and "pictures" of a show with details, no pictures as an empty list.
QJsonObject showDetailsJSON(const ShowItem& item);

/// The lists by channel, under "channels".
QJsonObject listsJSON(const MergeResult& merged);

} // namespace guide
