#include "platform/linux/LinuxFolders.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <sys/stat.h>
#include <unistd.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kName = "quellin-guide"_L1;
constexpr auto kBundleMarker = "Data.plist"_L1;

// The XDG specification says to ignore relative paths.
QString fromEnvironment(const char* variable, const QString& otherwise) {
    const QString value = QFile::decodeName(qgetenv(variable));
    return QDir::cleanPath(value.startsWith(u'/') ? value : otherwise);
}

Folders profileFolders(const QString& profile) {
    const QString root = QDir::cleanPath(QDir(profile).absolutePath());
    Folders folders;
    folders.caches = root + "/caches"_L1;
    folders.documents = root + "/documents"_L1;
    folders.configuration = root + "/configuration"_L1;
    folders.runtime = root + "/runtime"_L1;
    folders.keyValueStore = root + "/key-values"_L1;
    return folders;
}

Folders desktopFolders() {
    const QString home = QDir::homePath();
    Folders folders;
    folders.caches = fromEnvironment("XDG_CACHE_HOME", home + "/.cache"_L1) + u'/' + kName;
    folders.documents = fromEnvironment("XDG_DATA_HOME", home + "/.local/share"_L1) + u'/' + kName;
    folders.configuration = fromEnvironment("XDG_CONFIG_HOME", home + "/.config"_L1) + u'/' + kName;
    const QString runtime = fromEnvironment("XDG_RUNTIME_DIR", folders.caches);
    folders.runtime = runtime == folders.caches ? runtime + "/runtime"_L1 : runtime + u'/' + kName;
    folders.keyValueStore = folders.documents + "/key-values"_L1;
    return folders;
}

bool isFolder(const QByteArray& path, int access) {
    struct stat found{};
    return ::stat(path.constData(), &found) == 0 && S_ISDIR(found.st_mode) &&
           ::access(path.constData(), access) == 0;
}

bool isReadableFolder(const QString& folder) {
    return isFolder(QFile::encodeName(folder), R_OK | X_OK);
}

bool isWritableFolder(const QByteArray& path) {
    return isFolder(path, R_OK | W_OK | X_OK);
}

bool makeFolder(const QString& folder) {
    const QByteArray path = QFile::encodeName(folder);
    if (isWritableFolder(path)) {
        return true;
    }
    for (qsizetype end = path.indexOf('/', 1);; end = path.indexOf('/', end + 1)) {
        ::mkdir(path.left(end < 0 ? path.size() : end).constData(), 0700);
        if (end < 0) {
            return isWritableFolder(path);
        }
    }
}

QString bundleFolder() {
    const QFileInfo program(QFile::symLinkTarget(u"/proc/self/exe"_s));
    const QString beside = program.absolutePath();
    for (const QString& candidate : {beside + "/data"_L1, beside + "/../share/"_L1 + kName}) {
        if (QFileInfo::exists(candidate + u'/' + kBundleMarker)) {
            return QDir::cleanPath(candidate);
        }
    }
    return {};
}

} // namespace

Folders namedLinuxFolders(const LinuxFolderOptions& options) {
    Folders folders = options.profile.isEmpty() ? desktopFolders() : profileFolders(options.profile);
    folders.bundle =
        options.bundle.isEmpty() ? bundleFolder() : QDir::cleanPath(QDir(options.bundle).absolutePath());
    return folders;
}

std::optional<Folders> linuxFolders(const LinuxFolderOptions& options) {
    Folders folders = namedLinuxFolders(options);
    const std::array data{folders.caches, folders.documents, folders.configuration, folders.keyValueStore};
    const auto refused = std::ranges::find_if_not(data, makeFolder);
    folders.writable = refused == data.end();
    if (folders.writable && makeFolder(folders.runtime)) {
        return folders;
    }
    qWarning("cannot create or write the folder %s",
             qUtf8Printable(folders.writable ? folders.runtime : *refused));
    // A profile that holds anything can at least be looked at.
    if (!folders.writable && std::ranges::any_of(data, isReadableFolder)) {
        return folders;
    }
    return std::nullopt;
}

} // namespace guide
