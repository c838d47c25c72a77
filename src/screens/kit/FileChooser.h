#pragma once

#include <QString>

#include <functional>

namespace guide {

/// Lets the user choose a file or a folder of the device.
struct FileChooser {
    enum class Kind { File, Folder };

    QString title;
    /// Main queue; with the path. Not called when the user chooses none.
    std::function<void(const QString& path)> chosen;
    Kind kind = Kind::File;
};

} // namespace guide
