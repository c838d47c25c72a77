#pragma once

#include "platform/Moment.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace guide {

/// Replaces a file atomically: a reader sees the old file or the new one, never a mix, even if the process
/// dies or the disk is full. The modification date becomes `modified`, or the current time without one. False
/// when it failed; the old file is then unchanged and no temporary file is left. The bytes are not flushed to
/// the disk: a power failure can damage the file, which its reader must detect. A new file is readable only
/// by its owner; a replaced file keeps its permissions.
bool replaceFile(const QString& path, QByteArrayView content, std::optional<Moment> modified = std::nullopt);

/// The file's modification date; empty when the file is missing or unreadable.
std::optional<Moment> fileModificationDate(const QString& path);

/// Removes temporary files that interrupted replacements left in the folder, and returns how many. Call it at
/// start, before the first replacement of this process.
int removeStaleReplacements(const QString& folder);

} // namespace guide
