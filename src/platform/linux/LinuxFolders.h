#pragma once

#include "platform/Folders.h"

#include <QString>

#include <optional>

namespace guide {

struct LinuxFolderOptions {
    /// Everything but the bundle stands under this folder; empty for the folders that the desktop names.
    QString profile;
    /// Where the bundle's data are; empty for beside the program, or in the share folder of its prefix.
    QString bundle;
};

/// The folders of a profile, made where they are missing, for their owner alone. Nothing, and a log line,
/// when one cannot be made or written. The bundle is only named, and empty when it is found nowhere.
std::optional<Folders> linuxFolders(const LinuxFolderOptions& options);

/// The same folders, only named: nothing is made or looked at but the bundle.
Folders namedLinuxFolders(const LinuxFolderOptions& options);

} // namespace guide
