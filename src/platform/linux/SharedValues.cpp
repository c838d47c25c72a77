#include "platform/linux/SharedValues.h"

#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/KeyValueJson.h"

#include <QCborArray>
#include <QCborMap>
#include <QDebug>
#include <QFile>
#include <QSet>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestFile = 64 << 20;
constexpr auto kAddress = "address"_L1;
constexpr auto kDevice = "device"_L1;
constexpr auto kLastSeen = "lastSeen"_L1;
constexpr auto kLastWriter = "lastWriter"_L1;
constexpr auto kVolume = "volume"_L1;
constexpr auto kValues = "values"_L1;

QCborValue cborOf(const QUuid& id) {
    return id.isNull() ? QCborValue() : QCborValue(id);
}

/// Empty when the file cannot be read.
QCborMap mapIn(const QString& path) {
    const std::optional<QByteArray> content = fileContent(path, kLargestFile);
    const std::optional<QCborValue> root = content ? unarchivedRoot(*content) : std::nullopt;
    return root ? root->toMap() : QCborMap();
}

} // namespace

SharedValues::SharedValues(QString path, QString address, std::shared_ptr<DispatchQueue> saver)
    : m_saver(std::move(saver))
    , m_path(std::move(path))
    , m_address(std::move(address)) {
    load();
}

QString SharedValues::addressIn(const QString& path) {
    return mapIn(path).value(kAddress).toString();
}

void SharedValues::load() {
    const QCborMap map = mapIn(m_path);
    if (map.value(kAddress).toString() != m_address) {
        return;
    }
    if (const QUuid device = map.value(kDevice).toUuid(); !device.isNull()) {
        m_device = device;
        m_needsSaving = false;
    }
    if (const QCborValue seen = map.value(kLastSeen); seen.isInteger()) {
        m_others.lastSeen = Moment(std::chrono::milliseconds(seen.toInteger()));
    }
    m_others.lastWriter = map.value(kLastWriter).toString();
    m_volume = static_cast<std::uint64_t>(map.value(kVolume).toInteger());
    const QCborArray rows = map.value(kValues).toArray();
    for (const auto& each : rows) {
        const QCborArray row = each.toArray();
        const QString key = row.at(0).toString();
        Entry entry{.bytes = std::nullopt,
                    .value = std::nullopt,
                    .known = row.at(2).toUuid(),
                    .pending = row.at(3).toUuid(),
                    .attempt = row.at(4).toInteger(),
                    .yields = row.at(5).toBool(),
                    .heldUntil = {}};
        if (row.at(1).isByteArray()) {
            entry.bytes = row.at(1).toByteArray();
            const std::optional<KeyValue> read = keyValueFromJson(*entry.bytes);
            if (!read || read->key != key) {
                continue;
            }
            entry.value = read->value;
        }
        m_entries.insert(key, entry);
    }
}

bool SharedValues::save() {
    const std::lock_guard fileLock(m_fileGuard);
    if (m_isForgotten) {
        return true;
    }
    QCborMap map{{kAddress, m_address}, {kDevice, QCborValue(m_device)}};
    {
        const std::lock_guard lock(m_guard);
        if (!m_needsSaving) {
            return true;
        }
        m_needsSaving = false;
        if (m_others.lastSeen) {
            map.insert(kLastSeen, qint64{m_others.lastSeen->time_since_epoch().count()});
        }
        map.insert(kLastWriter, m_others.lastWriter);
        map.insert(kVolume, static_cast<qint64>(m_volume));
        QCborArray values;
        for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
            values.append(QCborArray{entry.key(), entry->bytes ? QCborValue(*entry->bytes) : QCborValue(),
                                     cborOf(entry->known), cborOf(entry->pending), qint64{entry->attempt},
                                     entry->yields});
        }
        map.insert(kValues, values);
    }
    if (!replaceFile(m_path, archivedData(map))) {
        qWarning("The values that other devices share cannot be kept");
        const std::lock_guard lock(m_guard);
        m_needsSaving = true;
        return false;
    }
    return true;
}

void SharedValues::forget(Keeps keeps) {
    clear();
    const std::lock_guard fileLock(m_fileGuard);
    m_isForgotten = true;
    if (keeps == Keeps::Nothing ||
        !replaceFile(m_path,
                     archivedData(QCborMap{{kAddress, m_address}, {kDevice, QCborValue(m_device)}}))) {
        QFile::remove(m_path);
    }
}

void SharedValues::saveSoon() {
    const bool needsSaving = [this] {
        const std::lock_guard lock(m_guard);
        return m_needsSaving;
    }();
    if (needsSaving && !m_isSaving.exchange(true)) {
        m_saver->async([self = shared_from_this()] {
            self->m_isSaving = false;
            self->save();
        });
    }
}

SharedValues::Others SharedValues::others() const {
    const std::lock_guard lock(m_guard);
    return m_others;
}

void SharedValues::setOthers(const Others& others) {
    const std::lock_guard lock(m_guard);
    m_needsSaving = m_needsSaving || m_others != others;
    m_others = others;
}

std::optional<QCborValue> SharedValues::value(const QString& key) const {
    const std::lock_guard lock(m_guard);
    const auto entry = m_entries.constFind(key);
    return entry != m_entries.cend() ? entry->value : std::nullopt;
}

std::uint64_t SharedValues::volume() const {
    const std::lock_guard lock(m_guard);
    return m_volume;
}

void SharedValues::setVolume(std::uint64_t volume) {
    const std::lock_guard lock(m_guard);
    m_needsSaving = m_needsSaving || m_volume != volume;
    m_volume = volume;
}

SharedValues::SetOutcome SharedValues::set(const QString& key, const QCborValue& value, qsizetype mostBytes,
                                           Yields yields) {
    const std::optional<QByteArray> bytes = keyValueJson({key, value});
    if (!bytes || bytes->size() > mostBytes) {
        return SetOutcome::Refused;
    }
    const std::lock_guard lock(m_guard);
    Entry& entry = m_entries[key];
    if (entry.bytes == bytes) {
        return SetOutcome::Same;
    }
    entry.bytes = bytes;
    entry.value = value;
    change(entry);
    entry.yields = yields == Yields::Yes;
    m_needsSaving = true;
    return SetOutcome::Changed;
}

void SharedValues::change(Entry& entry) {
    entry.pending = QUuid::createUuid();
    entry.attempt = 0;
    entry.yields = false;
    entry.heldUntil = {};
}

bool SharedValues::remove(const QString& key) {
    const std::lock_guard lock(m_guard);
    const auto entry = m_entries.find(key);
    if (entry == m_entries.end() || !entry->bytes) {
        return false;
    }
    entry->bytes.reset();
    entry->value.reset();
    change(*entry);
    m_needsSaving = true;
    return true;
}

void SharedValues::removeAnyway(const QString& key) {
    if (!remove(key)) {
        const std::lock_guard lock(m_guard);
        change(m_entries[key]);
        m_needsSaving = true;
    }
}

QStringList SharedValues::keys() const {
    const std::lock_guard lock(m_guard);
    QStringList keys;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
        if (entry->bytes) {
            keys.append(entry.key());
        }
    }
    return keys;
}

std::vector<SharedValues::Change> SharedValues::changesToSend() const {
    const std::lock_guard lock(m_guard);
    const auto now = std::chrono::steady_clock::now();
    std::vector<Change> changes;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
        if (!entry->pending.isNull() && !entry->yields && entry->heldUntil <= now) {
            changes.push_back({entry.key(), entry->bytes, entry->pending, entry->attempt});
        }
    }
    return changes;
}

void SharedValues::attempt(const Change& change, std::int64_t number) {
    const std::lock_guard lock(m_guard);
    const auto entry = m_entries.find(change.key);
    if (entry != m_entries.end() && entry->pending == change.write) {
        entry->attempt = number;
        m_needsSaving = true;
    }
}

void SharedValues::sent(const Change& change, const QUuid& stored) {
    const std::lock_guard lock(m_guard);
    const auto entry = m_entries.find(change.key);
    if (entry == m_entries.end()) {
        return;
    }
    m_needsSaving = true;
    // Otherwise an equal value was there, or another device has replaced this one: it has to be read.
    entry->known = stored == change.write ? stored : QUuid();
    if (entry->pending == change.write) {
        entry->pending = {};
        entry->attempt = 0;
        entry->heldUntil = {};
        if (!entry->bytes) {
            m_entries.erase(entry);
        }
    }
}

void SharedValues::holdBack(const Change& change, std::chrono::steady_clock::time_point until) {
    const std::lock_guard lock(m_guard);
    const auto entry = m_entries.find(change.key);
    if (entry != m_entries.end() && entry->pending == change.write) {
        entry->heldUntil = until;
    }
}

bool SharedValues::holdsBack() const {
    const std::lock_guard lock(m_guard);
    const auto now = std::chrono::steady_clock::now();
    return std::ranges::any_of(m_entries, [&](const Entry& entry) { return entry.heldUntil > now; });
}

void SharedValues::sendAll() {
    const std::lock_guard lock(m_guard);
    for (Entry& entry : m_entries) {
        entry.heldUntil = {};
    }
}

void SharedValues::clear() {
    const std::lock_guard lock(m_guard);
    m_needsSaving = m_needsSaving || !m_entries.isEmpty();
    m_entries.clear();
}

QStringList SharedValues::compare(const std::vector<StoredKey>& stored, QStringList& toRead) {
    const std::lock_guard lock(m_guard);
    QSet<QString> present;
    for (const StoredKey& each : stored) {
        present.insert(each.key);
        const auto entry = m_entries.find(each.key);
        if (entry != m_entries.end() && entry->yields) {
            entry->pending = {};
        }
        if (entry == m_entries.end() ||
            (entry->pending.isNull() && !each.write.isNull() && entry->known != each.write)) {
            toRead.append(each.key);
        }
    }
    for (Entry& entry : m_entries) {
        m_needsSaving = m_needsSaving || entry.yields;
        entry.yields = false;
    }
    QStringList removed;
    m_entries.removeIf([&](const auto& entry) {
        const bool isRemoved = entry->pending.isNull() && !present.contains(entry.key());
        if (isRemoved) {
            removed.append(entry.key());
        }
        return isRemoved;
    });
    m_needsSaving = m_needsSaving || !removed.isEmpty();
    return removed;
}

bool SharedValues::receive(const StoredKey& stored, const QByteArray& bytes) {
    std::optional<KeyValue> read = keyValueFromJson(bytes);
    const std::lock_guard lock(m_guard);
    if (!read || read->key != stored.key) {
        // As if it had not changed; it is not read again either.
        if (const auto entry = m_entries.find(stored.key); entry != m_entries.end()) {
            entry->known = stored.write;
        }
        qWarning("A value of another device cannot be read");
        return false;
    }
    Entry& entry = m_entries[stored.key];
    // Changed here meanwhile; the change will replace it.
    if (!entry.pending.isNull()) {
        return false;
    }
    m_needsSaving = true;
    entry.known = stored.write;
    if (entry.bytes == bytes) {
        return false;
    }
    entry.bytes = bytes;
    entry.value = std::move(read->value);
    return true;
}

} // namespace guide
