#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace guide {

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
    /// add(), whether it was replaced.
    std::vector<bool> commit();

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

/// The modification date of a regular file; empty when there is none.
std::optional<Moment> fileModificationDate(const QString& path);

/// Removes temporary files that interrupted replacements left in the folder, and returns how many. Call it at
/// start, before the first replacement of this process.
int removeStaleReplacements(const QString& folder);

/// Makes renames in the folder survive a power failure.
void syncFolder(const QString& folder);

} // namespace guide
