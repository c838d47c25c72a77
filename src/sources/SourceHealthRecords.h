#pragma once

#include "core/ObjectId.h"
#include "sources/SourceHealth.h"

#include <QByteArray>
#include <QString>

#include <mutex>
#include <optional>
#include <unordered_map>
#include <vector>

namespace guide {

/// The health of each channel's sources, in memory and in one small file. Any thread.
class SourceHealthRecords {
  public:
    using ByChannel = std::unordered_map<ObjectId, SourceHealth>;

    /// Does not read the file. It is never replaced where `writable` is false.
    explicit SourceHealthRecords(QString path, bool writable = true);

    /// The first call reads the file and adds the channels that have no record yet; later calls do nothing. A
    /// file that is missing, damaged or of another version counts as empty. Blocks.
    void read();

    /// Nothing for a channel that has never been loaded.
    std::optional<SourceHealth> healthFor(const ObjectId& channel) const;
    ByChannel all() const;

    /// A load that stored nothing keeps the source of the previous record.
    void record(const ObjectId& channel, SourceHealth health);

    /// Forgets all other channels and replaces the file if anything has changed. Blocks. A failed write is
    /// retried by the next call.
    void write(const std::vector<ObjectId>& selected);

  private:
    const QString m_path;
    const bool m_isWritable;
    mutable std::mutex m_guard;
    ByChannel m_byChannel;
    bool m_isRead = false;
    bool m_isWritten = true;
};

/// The content of the file: a JSON object with a version and, under "channels", one object per channel.
QByteArray sourceHealthJSON(const SourceHealthRecords::ByChannel& byChannel);
/// Nothing when the bytes are not such a file; damaged channels are left out.
std::optional<SourceHealthRecords::ByChannel> sourceHealthFromJSON(const QByteArray& json);

} // namespace guide
