#include "platform/files/FileContent.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace guide {

namespace {

/// A regular file that is open for reading.
class OpenFile {
  public:
    // Without O_NONBLOCK, opening a pipe would wait for a writer.
    explicit OpenFile(const QString& path)
        : m_file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (m_file >= 0) {
            ::close(m_file);
        }
    }

    /// The size; nothing when it is not a regular file or too large.
    std::optional<qint64> size(qint64 mostBytes) const {
        struct stat found{};
        const bool regular = m_file >= 0 && ::fstat(m_file, &found) == 0 && S_ISREG(found.st_mode);
        return regular && found.st_size <= mostBytes ? std::optional<qint64>(found.st_size) : std::nullopt;
    }

    /// At most `bytes` bytes; fewer when the file has become shorter. Nothing on an error.
    std::optional<QByteArray> read(qint64 bytes) const {
        QByteArray content(bytes, Qt::Uninitialized);
        qint64 filled = 0;
        while (filled < bytes) {
            const ssize_t got =
                ::read(m_file, content.data() + filled, static_cast<std::size_t>(bytes - filled));
            if (got < 0 && errno == EINTR) {
                continue;
            }
            if (got < 0) {
                return std::nullopt;
            }
            if (got == 0) {
                break;
            }
            filled += got;
        }
        content.truncate(filled);
        return content;
    }

  private:
    const int m_file;
};

} // namespace

std::optional<QByteArray> fileContent(const QString& path, qint64 mostBytes) {
    const OpenFile file(path);
    const std::optional<qint64> size = file.size(mostBytes);
    return size ? file.read(*size) : std::nullopt;
}

bool isReadableFile(const QString& path, qint64 mostBytes) {
    return OpenFile(path).size(mostBytes).has_value();
}

} // namespace guide
