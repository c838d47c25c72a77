#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QLatin1StringView>
#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// How the names of the temporary files of replacements begin.
inline constexpr QLatin1StringView kTemporaryPrefix{".replacing-"};

/// Replaces a file atomically: a reader sees the old file or the new one, never a mix, even if the process
/// dies, the disk is full or the power fails. The modification date becomes `modified`, or the current time
/// without one. False when it failed; the old file is then unchanged and no temporary file is left. A new
/// file is readable only by its owner; a replaced file keeps its permissions. Waits for the disk.
bool replaceFile(const QString& path, QByteArrayView content, std::optional<Moment> modified = std::nullopt);

/// Replaces files of one folder as replaceFile does, but waits for the disk once for all of them.
class ReplacementBatch {
  public:
    explicit ReplacementBatch(const QString& folder);
    ReplacementBatch(const ReplacementBatch&) = delete;
    ReplacementBatch& operator=(const ReplacementBatch&) = delete;
    /// Discards what was not committed.
    ~ReplacementBatch();

    /// Writes the content next to the file of this name. False when it failed, which leaves the other files
    /// of the batch as they are.
    bool add(const QString& name, QByteArrayView content, std::optional<Moment> modified = std::nullopt);
    bool empty() const { return m_written.empty(); }

    /// Replaces the files and empties the batch. Returns for each added file, in the order of the calls of
    /// add(), whether it was replaced. Right before each file, `mayReplace` is asked with its number in this
    /// order.
    std::vector<bool> commit(const std::function<bool(std::size_t)>& mayReplace = nullptr);

  private:
    struct Written {
        QByteArray name;
        QByteArray temporary;
        /// Open while the batch is small enough for its files to be flushed one by one, else -1.
        int file = -1;
    };
    bool flush();
    void closeFiles();

    const int m_folder;
    std::vector<Written> m_written;
};

/// Replaces a file as replaceFile does, with content that arrives in pieces.
class ReplacementInPieces {
  public:
    /// Nothing is written before the first piece.
    explicit ReplacementInPieces(const QString& folder);
    ReplacementInPieces(const ReplacementInPieces&) = delete;
    ReplacementInPieces& operator=(const ReplacementInPieces&) = delete;
    /// Discards what was not committed.
    ~ReplacementInPieces();

    /// False when it failed; the replacement can then only be committed without the rest.
    bool append(QByteArrayView piece);
    qint64 size() const { return m_size; }

    /// Replaces the file of this name, in the folder. False when it failed or nothing was appended.
    bool commit(const QString& name);

  private:
    const int m_folder;
    QByteArray m_temporary;
    int m_file = -1;
    qint64 m_size = 0;
};

/// Replaces the file at `path` atomically with another file of the same file system, which is gone
/// afterwards. Waits for the disk. False when it failed; both are then unchanged.
bool replaceFileWith(const QString& path, const QString& replacement);

/// The modification date of a regular file; empty when there is none.
std::optional<Moment> fileModificationDate(const QString& path);

/// Removes temporary files that interrupted replacements left in the folder, and returns how many. Call it at
/// start, before the first replacement of this process.
int removeStaleReplacements(const QString& folder);

/// Makes renames in the folder survive a power failure.
void syncFolder(const QString& folder);

} // namespace guide
