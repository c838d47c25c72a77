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

/// How the sources of each channel do, in memory and in one small file. Any thread.
class SourceHealthRecords {
  public:
    using ByChannel = std::unordered_map<ObjectId, SourceHealth>;

    /// Nothing is read yet.
    explicit SourceHealthRecords(QString path);

    /// Takes over what the file knows, of channels that nothing is known of yet; at the first call alone. A
    /// file that is missing, damaged or of another version counts as empty. Blocks.
    void read();

    /// Nothing for a channel that has never been loaded.
    std::optional<SourceHealth> healthFor(const ObjectId& channel) const;
    ByChannel all() const;

    /// A load that has brought nothing keeps the source of the one before it.
    void record(const ObjectId& channel, SourceHealth health);

    /// Forgets all other channels and, where anything has changed since, replaces the file. Blocks. What
    /// could not be written is tried again by the next call.
    void write(const std::vector<ObjectId>& selected);

  private:
    const QString m_path;
    mutable std::mutex m_guard;
    ByChannel m_byChannel;
    bool m_isRead = false;
    bool m_isWritten = true;
};

/// The content of the file: a JSON object with a version and, under "channels", an object a channel.
QByteArray sourceHealthJSON(const SourceHealthRecords::ByChannel& byChannel);
/// Nothing when the bytes are no such file; channels that are damaged are left out.
std::optional<SourceHealthRecords::ByChannel> sourceHealthFromJSON(const QByteArray& json);

} // namespace guide
