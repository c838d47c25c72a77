#pragma once

#include "platform/files/Folders.h"

#include <QString>

#include <optional>

namespace guide {

struct LinuxFolderOptions {
    /// Parent of all folders except the bundle; empty to use the XDG folders.
    QString profile;
    /// The bundle folder; empty to look beside the program and in the share folder of its prefix.
    QString bundle;
};

/// The folders of a profile. Missing ones are created, accessible only by their owner. When one cannot be
/// created or written, the profile is not writable; empty if it has no folder that can be read. The
/// bundle is not created; its path is empty when it is not found.
std::optional<Folders> linuxFolders(const LinuxFolderOptions& options);

/// The same paths, without creating or checking anything but the bundle.
Folders namedLinuxFolders(const LinuxFolderOptions& options);

} // namespace guide
