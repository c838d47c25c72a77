#pragma once

#include "parsers/details/PageSource.h"
#include "sources/SourceHostTable.h"

#include <QMap>
#include <QString>

#include <optional>

namespace guide {

/// The past broadcasts of a show that are still in the archive, by label, each with the value that identifies
/// it there. Titles are compared exactly. Nothing when the archive does not have the show or one of its two
/// pages cannot be read; the log says what was missing. Blocks for two fetches.
std::optional<QMap<QString, QString>>
recordedShowsWithTitle(const QString& title, const SourceHostTable& hosts, const PageSource& pages);

} // namespace guide
