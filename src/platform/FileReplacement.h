#pragma once

#include "platform/Moment.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace guide {

/// Puts the bytes at the path in one step: whoever looks finds the old file or the new one, whole, also when
/// the process dies or the disk is full. The modification date becomes `modified`, or the system's time
/// without one. False when it could not be done; the old file then stands as it was and nothing is left
/// beside it. The bytes are not forced to the disk: after a loss of power the file can be damaged, which its
/// reader has to notice. A new file can be read by its owner alone, one that is replaced keeps its
/// permissions.
bool replaceFile(const QString& path, QByteArrayView content, std::optional<Moment> modified = std::nullopt);

/// The file's modification date; nothing when it is missing or unreadable.
std::optional<Moment> fileModificationDate(const QString& path);

/// Removes what replacements that died half-way left in the folder, and answers how many. To be called at
/// start, before the first replacement of this process.
int removeStaleReplacements(const QString& folder);

} // namespace guide
