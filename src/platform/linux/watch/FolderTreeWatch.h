#pragma once

#include "platform/linux/FileDescriptor.h"

#include <QString>

#include <functional>
#include <thread>

namespace guide {

/// Watches the files of a folder, and of the folders in it if wanted, on a thread of its own. A missing
/// folder is watched from the time it appears.
class FolderTreeWatch {
  public:
    enum class Depth { Folder, FoldersInIt };

    /// `changed` is called on that thread shortly after something was written, added or removed, at the
    /// latest a second after the first of many changes. May be called when nothing changed.
    FolderTreeWatch(const QString& folder, Depth depth, std::function<void()> changed);
    FolderTreeWatch(const FolderTreeWatch&) = delete;
    FolderTreeWatch& operator=(const FolderTreeWatch&) = delete;
    /// Waits for a running `changed`.
    ~FolderTreeWatch();

  private:
    void run(bool isComplete);
    /// False when something cannot be watched.
    bool watchAll();
    /// Reads the events that are there. Whether one concerns the folder.
    bool readEvents();

    const QString m_folder;
    const Depth m_depth;
    const std::function<void()> m_changed;
    FileDescriptor m_events;
    FileDescriptor m_stop;
    /// Of the folders above that are or were watched, by watch: the entry that leads to the folder.
    std::unordered_map<int, QByteArray> m_entriesAbove;
    std::thread m_thread;
};

} // namespace guide
