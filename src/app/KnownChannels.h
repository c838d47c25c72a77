#pragma once

#include "core/CatalogueChannel.h"
#include "platform/files/Folders.h"

#include <optional>
#include <vector>

namespace guide {

// The channels of the catalogue that a profile was last used with, in a file of its documents folder. A
// selected channel that was among them and is no longer supplied has left the catalogue; one that was not has
// come from a device with a newer catalogue. Any thread; the disk is used.

/// Nothing without a readable file.
std::optional<std::vector<ObjectId>> knownChannels(const Folders& folders);
/// Writes the file, if these are others.
void keepKnownChannels(const Folders& folders, const std::vector<CatalogueChannel>& supplied);

} // namespace guide
