#pragma once

#include <QString>

namespace guide {

/// The absolute path of a folder that a person typed or pasted, with "~" for the home folder; empty when it
/// is none.
QString folderPath(const QString& typed);

/// Why devices cannot share the folder: one English sentence, kFolderIsMissing if it could be created. Empty
/// when they can. Reads the disk.
QString problemOfSharedFolder(const QString& path);

} // namespace guide
