#pragma once

#include <QFile>
#include <QString>

#include <cstdint>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace guide {

/// Differs between two states of a file.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = -1;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

inline FileStamp fileStamp(const struct stat& found) {
    return {found.st_dev, found.st_ino, found.st_size, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
}

/// Of the file that a path leads to; nothing when there is none.
inline std::optional<FileStamp> fileStamp(const QString& path) {
    struct stat found{};
    return ::stat(QFile::encodeName(path).constData(), &found) == 0 ? std::optional(fileStamp(found))
                                                                    : std::nullopt;
}

} // namespace guide
