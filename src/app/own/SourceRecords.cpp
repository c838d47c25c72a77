#include "app/own/SourceRecords.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 16 << 20;
constexpr int kMostNames = 50;
constexpr int kLastResult = static_cast<int>(SourceResult::Cancelled);

QJsonValue valueOf(const std::optional<Moment>& moment) {
    return moment ? QJsonValue(static_cast<qint64>(moment->time_since_epoch().count())) : QJsonValue();
}

std::optional<Moment> momentOf(const QJsonValue& value) {
    return value.isDouble() ? std::optional(Moment(std::chrono::milliseconds(value.toInteger())))
                            : std::nullopt;
}

QStringList textsOf(const QJsonValue& value) {
    QStringList texts;
    const QJsonArray array = value.toArray();
    for (const auto& text : array) {
        texts << text.toString();
    }
    return texts;
}

QJsonObject objectOf(const SourceRecord& record) {
    const SourceStatus& status = record.status;
    return {{u"result"_s, static_cast<int>(status.result)},
            {u"detail"_s, status.detail},
            {u"lastTry"_s, valueOf(status.lastTry)},
            {u"lastSuccess"_s, valueOf(status.lastSuccess)},
            {u"nextTry"_s, valueOf(status.nextTry)},
            {u"channels"_s, status.channels},
            {u"channelsWithShows"_s, status.channelsWithShows},
            {u"shows"_s, status.shows},
            {u"newestShow"_s, valueOf(status.newestShow)},
            {u"unpackedBytes"_s, status.unpackedBytes},
            {u"keptBack"_s, QJsonArray::fromStringList(status.keptBack.mid(0, kMostNames))},
            {u"missing"_s, QJsonArray::fromStringList(status.missing.mid(0, kMostNames))},
            {u"output"_s, status.output},
            {u"etag"_s, QString::fromLatin1(record.etag)},
            {u"lastModified"_s, QString::fromLatin1(record.lastModified)},
            {u"charset"_s, record.charset}};
}

SourceRecord recordOf(const QJsonObject& object) {
    const int result = object["result"_L1].toInt();
    return {.status = {.result = static_cast<SourceResult>(result < 0 || result > kLastResult ? 0 : result),
                       .detail = object["detail"_L1].toString(),
                       .lastTry = momentOf(object["lastTry"_L1]),
                       .lastSuccess = momentOf(object["lastSuccess"_L1]),
                       .nextTry = momentOf(object["nextTry"_L1]),
                       .channels = object["channels"_L1].toInt(),
                       .channelsWithShows = object["channelsWithShows"_L1].toInt(),
                       .shows = object["shows"_L1].toInt(),
                       .newestShow = momentOf(object["newestShow"_L1]),
                       .unpackedBytes = object["unpackedBytes"_L1].toInteger(),
                       .keptBack = textsOf(object["keptBack"_L1]),
                       .missing = textsOf(object["missing"_L1]),
                       .output = object["output"_L1].toString(),
                       .running = false},
            .etag = object["etag"_L1].toString().toLatin1(),
            .lastModified = object["lastModified"_L1].toString().toLatin1(),
            .charset = object["charset"_L1].toString()};
}

} // namespace

SourceRecords::SourceRecords(QString path, bool writable, DispatchQueues& queues)
    : m_path(std::move(path))
    , m_writable(writable)
    , m_writer(queues.makeQueue("sourceRecords", QueueKind::Serial, QueuePriority::Background)) {
    read();
}

SourceRecords::~SourceRecords() {
    finishWriting();
}

void SourceRecords::read() {
    const auto content = fileContent(m_path, kMostBytes);
    const QJsonObject root = content ? QJsonDocument::fromJson(*content).object() : QJsonObject();
    for (auto each = root.constBegin(); each != root.constEnd(); ++each) {
        if (const auto id = OwnSourceId::fromHex(each.key())) {
            m_records.emplace(*id, recordOf(each->toObject()));
        }
    }
}

SourceRecord SourceRecords::record(const OwnSourceId& id) const {
    const std::lock_guard lock(m_guard);
    const auto found = m_records.find(id);
    return found == m_records.end() ? SourceRecord() : found->second;
}

void SourceRecords::set(const OwnSourceId& id, SourceRecord record) {
    const std::lock_guard lock(m_guard);
    m_records.insert_or_assign(id, std::move(record));
    write();
}

void SourceRecords::setRunning(const OwnSourceId& id, bool running) {
    const std::lock_guard lock(m_guard);
    m_records[id].status.running = running;
}

void SourceRecords::remove(const OwnSourceId& id) {
    const std::lock_guard lock(m_guard);
    if (m_records.erase(id) > 0) {
        write();
    }
}

void SourceRecords::write() {
    if (!m_writable) {
        return;
    }
    m_writes.async(*m_writer, [this] {
        QJsonObject root;
        {
            const std::lock_guard lock(m_guard);
            for (const auto& [id, record] : m_records) {
                root.insert(id.hex(), objectOf(record));
            }
        }
        if (!replaceFile(m_path, QJsonDocument(root).toJson())) {
            qWarning().noquote() << "SourceRecords: cannot write" << m_path;
        }
    });
}

SourceFolder::SourceFolder(const QString& caches, const OwnSourceId& id)
    : path(caches + "/sources/"_L1 + id.hex()) {}

bool SourceFolder::create() const {
    return QDir().mkpath(path);
}

void SourceFolder::remove() const {
    QDir(path).removeRecursively();
}

} // namespace guide
