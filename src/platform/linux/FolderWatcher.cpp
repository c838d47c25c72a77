#include "platform/linux/FolderWatcher.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace guide {

namespace {

// Each watched file takes one of the user's inotify watches.
constexpr qsizetype kMostFiles = 500;
constexpr int kMostAttempts = 8;

QString nearestExisting(QString folder) {
    while (!QFileInfo(folder).isDir() && folder.contains(u'/')) {
        folder.truncate(folder.lastIndexOf(u'/'));
    }
    return folder.isEmpty() ? QStringLiteral("/") : folder;
}

QString parentOf(const QString& folder) {
    return folder.left(folder.lastIndexOf(u'/'));
}

std::pair<std::uint64_t, std::uint64_t> identityOf(const QString& folder) {
    struct stat found{};
    if (::stat(QFile::encodeName(folder).constData(), &found) != 0 || !S_ISDIR(found.st_mode)) {
        return {};
    }
    return {found.st_dev, found.st_ino};
}

} // namespace

FolderWatcher::FolderWatcher(const QString& folder, std::function<void()> changed)
    : m_folder(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()))
    , m_changed(std::move(changed)) {
    const auto onChange = [this] {
        watch();
        m_changed();
    };
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, onChange);
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, onChange);
    watch();
}

void FolderWatcher::watch() {
    // Checks again afterwards: the folder may appear before its parent is watched.
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        const Identity identity = identityOf(m_folder);
        if (identity != m_identity || !m_watcher.directories().contains(m_folder)) {
            // The watch follows the inode: one on a folder that was replaced reports nothing about the new
            // one. The parent reports the replacement.
            if (const QStringList watched = m_watcher.directories() + m_watcher.files(); !watched.isEmpty()) {
                m_watcher.removePaths(watched);
            }
            m_identity = identity;
            if (identity != Identity{}) {
                m_watcher.addPath(m_folder);
            }
            m_watcher.addPath(nearestExisting(parentOf(m_folder)));
        }
        if (identityOf(m_folder) == identity) {
            break;
        }
    }
    watchFiles();
}

// A folder does not report that a file in it was written to in place.
void FolderWatcher::watchFiles() {
    if (m_identity == Identity{}) {
        return;
    }
    const QStringList watched = m_watcher.files();
    QStringList added;
    const QStringList names = QDir(m_folder).entryList(QDir::Files);
    for (const QString& name : names) {
        if (watched.size() + added.size() == kMostFiles) {
            break;
        }
        const QString path = m_folder + u'/' + name;
        if (!watched.contains(path)) {
            added.append(path);
        }
    }
    if (!added.isEmpty()) {
        m_watcher.addPaths(added);
    }
}

} // namespace guide
