#include "platform/linux/database/IncrementQueue.h"

#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QCborArray>
#include <QCborMap>
#include <QDebug>
#include <QFile>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestFile = 32 << 20;
constexpr auto kAddress = "address"_L1;
constexpr auto kBatch = "batch"_L1;
constexpr auto kBatchSize = "batchSize"_L1;
constexpr auto kIncrements = "increments"_L1;

} // namespace

IncrementQueue::IncrementQueue(QString path, QString address)
    : m_path(std::move(path))
    , m_address(std::move(address)) {
    load();
}

void IncrementQueue::load() {
    const std::optional<QByteArray> content = fileContent(m_path, kLargestFile);
    const std::optional<QCborValue> root = content ? unarchivedRoot(*content) : std::nullopt;
    m_isInFile = content.has_value();
    const QCborMap map = root ? root->toMap() : QCborMap();
    if (map.value(kAddress).toString() != m_address) {
        return;
    }
    for (const QCborValue& value : map.value(kIncrements).toArray()) {
        const QCborArray row = value.toArray();
        m_increments.push_back(
            {.title = row.at(0).toString(),
             .amount = row.at(1).toInteger(),
             .rule = {.makesMissing = row.at(2).toBool(), .removesBelowOne = row.at(3).toBool()}});
    }
    const auto size = static_cast<std::size_t>(std::max<qint64>(0, map.value(kBatchSize).toInteger()));
    m_batchId = map.value(kBatch).toUuid();
    m_batchSize = m_batchId.isNull() ? 0 : std::min(size, m_increments.size());
}

void IncrementQueue::forget() {
    const std::lock_guard fileLock(m_fileGuard);
    m_isForgotten = true;
    QFile::remove(m_path);
}

void IncrementQueue::save() {
    const std::lock_guard fileLock(m_fileGuard);
    if (m_isForgotten) {
        return;
    }
    QCborMap map{{kAddress, m_address}};
    {
        const std::lock_guard lock(m_guard);
        if (!m_needsSaving || (m_increments.empty() && !m_isInFile)) {
            return;
        }
        m_needsSaving = false;
        m_isInFile = !m_increments.empty();
        QCborArray increments;
        for (const Increment& each : m_increments) {
            increments.append(QCborArray{each.title, qint64{each.amount}, each.rule.makesMissing,
                                         each.rule.removesBelowOne});
        }
        map.insert(kIncrements, increments);
        if (m_batchSize > 0) {
            map.insert(kBatch, QCborValue(m_batchId));
            map.insert(kBatchSize, static_cast<qint64>(m_batchSize));
        }
        if (!m_isInFile) {
            QFile::remove(m_path);
            return;
        }
    }
    if (!replaceFile(m_path, archivedData(map))) {
        qWarning("Increments of counters that are to be sent later cannot be kept");
    }
}

void IncrementQueue::saveIfInFile() {
    {
        const std::lock_guard lock(m_guard);
        if (!m_isInFile) {
            return;
        }
    }
    save();
}

std::optional<IncrementQueue::Ticket> IncrementQueue::add(const Increment& increment) {
    const std::lock_guard lock(m_guard);
    if (m_increments.size() >= kCapacity) {
        return std::nullopt;
    }
    m_increments.push_back(increment);
    m_needsSaving = true;
    return m_firstTicket + m_increments.size() - 1;
}

std::optional<IncrementQueue::Batch> IncrementQueue::nextBatch() {
    const std::lock_guard lock(m_guard);
    if (m_increments.empty()) {
        return std::nullopt;
    }
    if (m_batchSize == 0) {
        m_batchSize = m_divided > 0 ? 1 : std::min(IncrementQueue::kMostInBatch, m_increments.size());
        m_batchId = QUuid::createUuid();
        m_needsSaving = true;
    }
    return Batch{m_batchId,
                 {m_increments.begin(), m_increments.begin() + static_cast<std::ptrdiff_t>(m_batchSize)}};
}

void IncrementQueue::removeFirst(std::size_t count) {
    m_increments.erase(m_increments.begin(), m_increments.begin() + static_cast<std::ptrdiff_t>(count));
    m_firstTicket += count;
    m_divided -= std::min(m_divided, count);
    m_batchSize = 0;
    m_needsSaving = true;
}

void IncrementQueue::removeBatch() {
    const std::lock_guard lock(m_guard);
    removeFirst(m_batchSize);
}

void IncrementQueue::divideBatch() {
    const std::lock_guard lock(m_guard);
    m_divided = m_batchSize;
    m_batchSize = 0;
}

void IncrementQueue::refuseBatch() {
    const std::lock_guard lock(m_guard);
    m_refused.insert(m_firstTicket);
    removeFirst(m_batchSize);
}

bool IncrementQueue::wasRefused(Ticket ticket) {
    const std::lock_guard lock(m_guard);
    return m_refused.erase(ticket) > 0;
}

} // namespace guide
