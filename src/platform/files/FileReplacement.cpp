#include "platform/files/FileReplacement.h"

#include <QByteArray>
#include <QFile>

#include <atomic>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace guide {

namespace {

constexpr std::string_view kTemporaryPrefix = ".replacing-";

// In the same folder, so that the rename stays within one file system. The name contains the process and a
// number, so that replacements never collide and files of dead processes can be recognised.
QByteArray temporaryPath(const QByteArray& path) {
    static std::atomic<std::uint32_t> counter{0};
    const qsizetype folderEnd = path.lastIndexOf('/') + 1;
    return path.left(folderEnd) + QByteArray(kTemporaryPrefix.data(), qsizetype(kTemporaryPrefix.size())) +
           QByteArray::number(qlonglong{::getpid()}) + '-' + QByteArray::number(counter++);
}

bool writeAll(int file, QByteArrayView content) {
    const char* at = content.data();
    auto left = static_cast<std::size_t>(content.size());
    while (left > 0) {
        const ssize_t written = ::write(file, at, left);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        at += written;
        left -= static_cast<std::size_t>(written);
    }
    return true;
}

timespec asTimespec(Moment moment) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(moment);
    timespec time{};
    time.tv_sec = static_cast<time_t>(seconds.time_since_epoch().count());
    time.tv_nsec = static_cast<long>((moment - seconds).count()) * 1'000'000;
    return time;
}

bool fill(int file, const QByteArray& replaced, QByteArrayView content,
          const std::optional<Moment>& modified) {
    struct stat old{};
    if (::stat(replaced.constData(), &old) == 0 && (old.st_mode & 07777) != 0600 &&
        ::fchmod(file, old.st_mode & 07777) != 0) {
        return false;
    }
    if (!writeAll(file, content)) {
        return false;
    }
    if (!modified) {
        return true;
    }
    const timespec times[2] = {asTimespec(*modified), asTimespec(*modified)};
    return ::futimens(file, times) == 0;
}

// The process that created a temporary file; 0 for any other file.
pid_t temporaryOwner(std::string_view name) {
    if (!name.starts_with(kTemporaryPrefix)) {
        return 0;
    }
    const std::string_view number = name.substr(kTemporaryPrefix.size());
    pid_t owner = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), owner);
    const bool named = error == std::errc{} && end != number.data() + number.size() && *end == '-';
    return named && owner > 0 ? owner : 0;
}

} // namespace

bool replaceFile(const QString& path, QByteArrayView content, std::optional<Moment> modified) {
    const QByteArray target = QFile::encodeName(path);
    QByteArray temporary;
    int file = -1;
    // A name that exists belongs to a dead process with the same id.
    for (int attempt = 0; attempt < 16 && file < 0; ++attempt) {
        temporary = temporaryPath(target);
        file = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (file < 0 && errno != EEXIST) {
            return false;
        }
    }
    if (file < 0) {
        return false;
    }
    const bool filled = fill(file, target, content, modified);
    const bool closed = ::close(file) == 0;
    if (filled && closed && std::rename(temporary.constData(), target.constData()) == 0) {
        return true;
    }
    ::unlink(temporary.constData());
    return false;
}

std::optional<Moment> fileModificationDate(const QString& path) {
    struct stat found{};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0) {
        return std::nullopt;
    }
    return Moment(std::chrono::seconds(found.st_mtim.tv_sec)) +
           std::chrono::milliseconds(found.st_mtim.tv_nsec / 1'000'000);
}

int removeStaleReplacements(const QString& folder) {
    DIR* directory = ::opendir(QFile::encodeName(folder).constData());
    if (directory == nullptr) {
        return 0;
    }
    int removed = 0;
    while (const dirent* entry = ::readdir(directory)) {
        const pid_t owner = temporaryOwner(entry->d_name);
        const bool dead = owner > 0 && (owner == ::getpid() || (::kill(owner, 0) != 0 && errno == ESRCH));
        if (dead && ::unlinkat(::dirfd(directory), entry->d_name, 0) == 0) {
            ++removed;
        }
    }
    ::closedir(directory);
    return removed;
}

} // namespace guide
