#pragma once

#include <QString>

namespace guide {

/// The absolute path of a folder that a person typed or pasted, with "~" for the home folder; empty when the
/// text is not a path.
QString folderPath(const QString& typed);

/// Why devices cannot share the folder: one English sentence, kFolderIsMissing if it could be created. Empty
/// when they can. Reads the disk.
QString problemOfSharedFolder(const QString& path);

/// Removes from the folder what SharedFolderKeyValueStore keeps there of folders other than the current one,
/// which may be empty: a process that ended while it left them could not. Waits for the disk.
void removeValuesOfOtherFolders(const QString& folder, const QString& current);

} // namespace guide
