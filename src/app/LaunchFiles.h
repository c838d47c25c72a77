#pragma once

#include "app/CommandLine.h"
#include "core/ObjectId.h"
#include "platform/files/Folders.h"
#include "sources/SourceHostTable.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// The files that a launch reads: those that the options name, otherwise the installed ones.
struct LaunchFiles {
    QString catalogue;
    /// In the runtime folder for a catalogue that the options name, so that later launches do not use it.
    QString catalogueArchive;
    /// The folder "icons" beside a catalogue that the options name, if there is one, otherwise the installed
    /// one.
    QString icons;
    SourceHostTable hosts;
    /// The selection for a profile that has none yet.
    std::optional<std::vector<ObjectId>> firstSelection = {};
};

/// Deletes the archive of a catalogue that the options name, so that the catalogue itself is read. Unset,
/// with the reason, when the host table or the selection that the options name cannot be read.
std::optional<LaunchFiles> launchFiles(const LaunchOptions& options, const Folders& folders, QString& why);

/// Creates the folder for pictures if it is missing. False when it cannot be created or written.
bool preparePictureFolder(const QString& folder);

} // namespace guide
