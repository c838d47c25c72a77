#pragma once

#include <QFileSystemWatcher>
#include <QString>

#include <cstdint>
#include <functional>
#include <utility>

namespace guide {

/// Calls a function when something in a folder may have changed: a file was added, removed, renamed or
/// written to, or the folder itself disappeared or reappeared. May call it when nothing changed. Main thread.
class FolderWatcher {
  public:
    FolderWatcher(const QString& folder, std::function<void()> changed);
    FolderWatcher(const FolderWatcher&) = delete;
    FolderWatcher& operator=(const FolderWatcher&) = delete;

  private:
    using Identity = std::pair<std::uint64_t, std::uint64_t>;

    void watch();
    void watchFiles();

    const QString m_folder;
    const std::function<void()> m_changed;
    QFileSystemWatcher m_watcher;
    /// Device and inode of the watched folder; zeros while it is missing.
    Identity m_identity;
};

} // namespace guide
