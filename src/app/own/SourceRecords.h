#pragma once

#include "core/own/OwnSource.h"
#include "core/own/SourceStatus.h"
#include "platform/queues/DispatchQueue.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace guide {

/// What the last loads of a source left behind on this device.
struct SourceRecord {
    SourceStatus status;
    /// Of the content that is kept; sent with the next request.
    QByteArray etag = {};
    QByteArray lastModified = {};
    /// Of the content, as its server declared it.
    QString charset = {};
};

/// The records of all sources, in "own-sources.json" in the caches folder. Any thread.
class SourceRecords {
  public:
    /// A file that cannot be read counts as empty. Nothing is written in a profile that cannot be written.
    SourceRecords(QString path, bool writable, DispatchQueues& queues);
    /// Finishes writing.
    ~SourceRecords();

    SourceRecord record(const OwnSourceId& id) const;
    /// Writes the file in the background.
    void set(const OwnSourceId& id, SourceRecord record);
    /// Changes the status in memory alone.
    void setRunning(const OwnSourceId& id, bool running);
    void remove(const OwnSourceId& id);
    /// Blocks until the file is written.
    void finishWriting() { m_writes.wait(); }

  private:
    void read();
    void write();

    const QString m_path;
    const bool m_writable;
    const std::shared_ptr<DispatchQueue> m_writer;
    DispatchGroup m_writes;
    mutable std::mutex m_guard;
    std::unordered_map<OwnSourceId, SourceRecord> m_records; // guarded
};

/// Where a source's content is kept between loads: "sources/ID/" in the caches folder.
struct SourceFolder {
    QString path;

    SourceFolder(const QString& caches, const OwnSourceId& id);
    /// What was read last and was good.
    QString content() const { return path + QStringLiteral("/content"); }
    /// What is being fetched.
    QString incoming() const { return path + QStringLiteral("/incoming"); }
    bool create() const;
    void remove() const;
};

} // namespace guide
