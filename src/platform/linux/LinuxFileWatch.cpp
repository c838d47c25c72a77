#include "platform/linux/LinuxFileWatch.h"

#include "platform/linux/FileStamp.h"
#include "platform/linux/FolderWatcher.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QTimer>

#include <cstdint>
#include <optional>
#include <vector>

namespace guide {

namespace {

/// Something that is written to all the time is reported after this many quiet times.
constexpr int kMostPostponed = 30;
constexpr qsizetype kMostFiles = 2'000;

/// Of one file; changes with its content.
struct FileState {
    QString name;
    FileStamp stamp;

    friend bool operator==(const FileState&, const FileState&) = default;
};

void appendState(const QString& path, std::vector<FileState>& states) {
    if (const std::optional<FileStamp> stamp = fileStamp(path)) {
        states.push_back({path, *stamp});
    }
}

/// Nothing while the path does not exist.
std::optional<std::vector<FileState>> stateOf(const QString& path) {
    std::vector<FileState> states;
    if (!QFileInfo(path).isDir()) {
        appendState(path, states);
        return states.empty() ? std::nullopt : std::optional(std::move(states));
    }
    const QStringList names = QDir(path).entryList(QDir::Files, QDir::Name).mid(0, kMostFiles);
    for (const QString& name : names) {
        appendState(path + u'/' + name, states);
    }
    return states;
}

QString nearestFolder(QString path) {
    do {
        path = QFileInfo(path).path();
    } while (!QFileInfo(path).isDir() && path != QLatin1StringView("/"));
    return path;
}

} // namespace

class LinuxFileWatch::PathWatch {
  public:
    PathWatch(const QString& path, std::chrono::milliseconds quiet, std::function<void()> changed)
        : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
        , m_changed(std::move(changed))
        , m_longest(kMostPostponed * quiet)
        , m_state(stateOf(m_path)) {
        m_timer.setSingleShot(true);
        m_timer.setInterval(quiet);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { compare(); });
        if (QFileInfo(m_path).isDir()) {
            m_folder.emplace(m_path, [this] { somethingHappened(); });
            return;
        }
        const auto onEvent = [this] {
            watchFile();
            somethingHappened();
        };
        QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, onEvent);
        QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, onEvent);
        watchFile();
    }

  private:
    /// The file reports what is written into it, its folder that it was replaced.
    void watchFile() {
        const QString folder = nearestFolder(m_path);
        if (!m_watcher.directories().contains(folder)) {
            if (const QStringList watched = m_watcher.directories(); !watched.isEmpty()) {
                m_watcher.removePaths(watched);
            }
            m_watcher.addPath(folder);
        }
        const std::optional<FileStamp> stamp = fileStamp(m_path);
        const std::uint64_t inode = stamp ? stamp->inode : 0;
        if (inode != m_inode && m_watcher.files().contains(m_path)) {
            // The watch is still on the file that was there before.
            m_watcher.removePath(m_path);
        }
        m_inode = inode;
        if (stamp && !m_watcher.files().contains(m_path)) {
            m_watcher.addPath(m_path);
        }
    }

    void somethingHappened() {
        if (!m_timer.isActive()) {
            m_since.start();
        } else if (m_since.elapsed() > m_longest.count()) {
            return;
        }
        m_timer.start();
    }

    void compare() {
        std::optional<std::vector<FileState>> state = stateOf(m_path);
        if (state && state != m_state) {
            m_state = std::move(state);
            // It may drop the watch.
            const std::function<void()> changed = m_changed;
            changed();
        }
    }

    const QString m_path;
    const std::function<void()> m_changed;
    const std::chrono::milliseconds m_longest;
    std::optional<std::vector<FileState>> m_state;
    std::optional<FolderWatcher> m_folder;
    QFileSystemWatcher m_watcher;
    std::uint64_t m_inode = 0;
    QTimer m_timer;
    QElapsedTimer m_since;
};

FileWatch::Token LinuxFileWatch::watch(const QString& path, std::function<void()> changed) {
    return std::make_shared<PathWatch>(path, m_quiet, std::move(changed));
}

} // namespace guide
