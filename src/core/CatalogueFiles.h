#pragma once

#include "core/CatalogueRow.h"
#include "core/ChannelFilter.h"
#include "core/SupportedChannelTypes.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// "5b65e9d23afbe36684bdfe2c.plist" in the caches folder: the filtered catalogue, kept because filtering
/// loads every icon.
QString catalogueArchivePath(const QString& cachesFolder);

/// The channels of a catalogue property list, XML or binary, unfiltered. Values that are not strings and rows
/// that do not describe a channel are left out and counted. Nothing when the file cannot be read or has no
/// "Channels".
std::optional<std::vector<CatalogueRow>> rowsOfPropertyList(const QString& path, RowTally* tally = nullptr);

struct LoadedCatalogue {
    std::vector<CatalogueChannel> channels;
    /// One line on why there are no channels or fewer than in the file; empty when all are used.
    QString problem = {};
};

/// The filtered channels: those of the archive when it is newer than the property list and intact, otherwise
/// those of the property list, which are then written to the archive. When the list cannot be read, an
/// archive of any age. Blocks on files.
LoadedCatalogue loadedCatalogue(const QString& propertyListPath, const QString& archivePath,
                                const SupportedChannelTypes& types, const HasIcon& hasIcon);

} // namespace guide
