#pragma once

#include "parsers/details/PageSource.h"
#include "sources/SourceHostTable.h"

#include <QMap>
#include <QString>
#include <QUrl>

#include <optional>

namespace guide {

/// The past broadcasts of a show that are still in an archive.
struct ArchivedShow {
    /// The show's page.
    QUrl page;
    /// By label, each with the value that identifies it on the page, usually an address.
    QMap<QString, QString> broadcasts;
};

/// Titles are compared exactly. Nothing when the archive does not have the show or one of its two pages
/// cannot be read; the log says what was missing. Blocks for two fetches.
std::optional<ArchivedShow> recordedShowsWithTitle(const QString& title, const SourceHostTable& hosts,
                                                   const PageSource& pages);

} // namespace guide
