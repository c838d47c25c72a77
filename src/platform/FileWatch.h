#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace guide {

/// Watches files and folders of the user. Main thread.
class FileWatch {
  public:
    virtual ~FileWatch() = default;

    /// Dropping it ends the watch.
    using Token = std::shared_ptr<void>;

    /// Calls `changed` on the main thread after the file was written, replaced or appeared, or after files of
    /// the folder were; once nothing has happened to it for a while. The path need not exist.
    [[nodiscard]] virtual Token watch(const QString& path, std::function<void()> changed) = 0;
};

} // namespace guide
