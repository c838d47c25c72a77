#pragma once

#include "parsers/details/PageSource.h"
#include "sources/SourceHostTable.h"

#include <QMap>
#include <QString>

#include <optional>

namespace guide {

/// The broadcasts of a show that the archive of past broadcasts still has: the label of each, and the value
/// that the archive knows it by. The title is compared exactly. Nothing when the archive does not have the
/// show or one of its two pages cannot be read; the log says what was missing. Blocks for two fetches.
std::optional<QMap<QString, QString>>
recordedShowsWithTitle(const QString& title, const SourceHostTable& hosts, const PageSource& pages);

} // namespace guide
