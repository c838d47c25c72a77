#pragma once

#include <QString>

#include <functional>

namespace guide {

/// Lets the user choose a file of the device.
struct FileChooser {
    QString title;
    /// Main queue; with the path. Not called when the user chooses none.
    std::function<void(const QString& path)> chosen;
};

} // namespace guide
