#pragma once

#include "platform/Moment.h"
#include "store/ListMerge.h"
#include "store/ShowItem.h"

#include <QJsonObject>
#include <QString>

namespace guide {

/// Null for an unset text; a lone surrogate becomes the replacement character.
QJsonValue jsonText(const std::optional<QString>& text);

/// A moment in UTC, "2026-11-21T10:00:00Z", with milliseconds only where there are any.
QString isoMoment(Moment moment);

/// Every field of a show, null for unset ones. Texts are in their source form except "title"; pictures are
/// sorted by their text. `item` must not be empty.
QJsonObject showJSON(const ShowItem& item);

/// The facts of a show of an own source, null for unset ones, under their names in ShowFacts.
QJsonObject factsJSON(const ShowItem& item);

/// The "categories", "details" and "pictures" of a show that has details; no pictures give an empty list.
QJsonObject showDetailsJSON(const ShowItem& item);

/// The lists by channel, under "channels". `withFacts` adds the facts of each show.
QJsonObject listsJSON(const MergeResult& merged, bool withFacts = false);

} // namespace guide
