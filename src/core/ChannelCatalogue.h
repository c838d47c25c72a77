#pragma once

#include "core/ChannelDictionary.h"
#include "core/ChannelFilter.h"
#include "core/SupportedChannelTypes.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// "5b65e9d23afbe36684bdfe2c.plist" in the caches folder: the filtered catalogue, kept because filtering
/// loads every icon.
QString catalogueArchivePath(const QString& cachesFolder);

/// The "Channels" of a catalogue property list, XML or binary, unfiltered; values that are no strings are
/// left out. Nothing when the file cannot be read or holds no such array.
std::optional<std::vector<ChannelDictionary>> channelsOfPropertyList(const QString& path);

/// The filtered channels: those of the archive when it is newer than the property list and whole, else those
/// of the property list, which are then written to the archive. Where the list cannot be read, an archive of
/// any age. Blocks on files; when all fails there are no channels, and the log says why.
std::vector<ChannelDictionary> catalogueChannels(const QString& propertyListPath, const QString& archivePath,
                                                 const SupportedChannelTypes& types, const HasIcon& hasIcon);

/// The catalogue by channel; of two rows with one identity the later one stays.
SharedChannelData makeChannelData(const std::vector<ChannelDictionary>& channels);

} // namespace guide
