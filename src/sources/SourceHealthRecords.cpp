#include "sources/SourceHealthRecords.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <unordered_set>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kVersion = 1;
/// Far more than the size of any real file.
constexpr qint64 kMostBytes = 16 << 20;

/// In the order of PassedOverReason.
constexpr std::array kReasons{"noPlan"_L1, "noPage"_L1, "noShows"_L1, "onlyPastShows"_L1, "notASchedule"_L1};
/// In the order of PageReason.
constexpr std::array kPageReasons{"none"_L1,  "transfer"_L1,    "cancelled"_L1, "status"_L1,
                                  "empty"_L1, "compression"_L1, "encoding"_L1};

template <class Enum, std::size_t Count>
QString nameOf(Enum value, const std::array<QLatin1StringView, Count>& names) {
    return names[static_cast<std::size_t>(value)];
}

template <class Enum, std::size_t Count>
std::optional<Enum> valueOf(const QJsonValue& name, const std::array<QLatin1StringView, Count>& names) {
    const auto found = std::find(names.begin(), names.end(), name.toString());
    return found == names.end() ? std::nullopt : std::optional(static_cast<Enum>(found - names.begin()));
}

QString textOf(Moment moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC)
        .toString(Qt::ISODateWithMs);
}

std::optional<Moment> momentOf(const QJsonValue& text) {
    const QDateTime time = QDateTime::fromString(text.toString(), Qt::ISODateWithMs);
    return time.isValid() ? std::optional(Moment(std::chrono::milliseconds(time.toMSecsSinceEpoch())))
                          : std::nullopt;
}

QJsonObject jsonOf(const UsedSource& used) {
    QJsonObject json{{u"sourceId"_s, used.sourceId},
                     {u"at"_s, textOf(used.at)},
                     {u"pages"_s, used.pages},
                     {u"shows"_s, used.shows}};
    if (!used.host.isEmpty()) {
        json.insert(u"host"_s, used.host);
    }
    if (used.coveredUntil) {
        json.insert(u"coveredUntil"_s, textOf(*used.coveredUntil));
    }
    if (used.incomplete) {
        json.insert(u"incomplete"_s, true);
    }
    return json;
}

std::optional<UsedSource> usedSource(const QJsonObject& json) {
    const auto at = momentOf(json[u"at"_s]);
    if (!at) {
        return std::nullopt;
    }
    return UsedSource{.sourceId = json[u"sourceId"_s].toString(),
                      .at = *at,
                      .pages = json[u"pages"_s].toInt(),
                      .shows = json[u"shows"_s].toInt(),
                      .coveredUntil = momentOf(json[u"coveredUntil"_s]),
                      .incomplete = json[u"incomplete"_s].toBool(),
                      .host = json[u"host"_s].toString()};
}

QJsonObject jsonOf(const PassedOverSource& source) {
    QJsonObject json{{u"sourceId"_s, source.sourceId}, {u"reason"_s, nameOf(source.reason, kReasons)}};
    if (source.reason == PassedOverReason::NoPage) {
        json.insert(u"status"_s, source.status);
        json.insert(u"page"_s, nameOf(source.pageReason, kPageReasons));
    }
    return json;
}

std::optional<PassedOverSource> passedOverSource(const QJsonObject& json) {
    const auto reason = valueOf<PassedOverReason>(json[u"reason"_s], kReasons);
    if (!reason) {
        return std::nullopt;
    }
    return PassedOverSource{
        .sourceId = json[u"sourceId"_s].toString(),
        .reason = *reason,
        .status = json[u"status"_s].toInt(),
        .pageReason = valueOf<PageReason>(json[u"page"_s], kPageReasons).value_or(PageReason::None)};
}

std::optional<SourceHealth> sourceHealth(const QJsonObject& json) {
    const auto at = momentOf(json[u"at"_s]);
    if (!at) {
        return std::nullopt;
    }
    SourceHealth health{.at = *at, .used = usedSource(json[u"used"_s].toObject()), .passedOver = {}};
    for (const QJsonValue source : json[u"passedOver"_s].toArray()) {
        if (auto passedOver = passedOverSource(source.toObject())) {
            health.passedOver.push_back(*std::move(passedOver));
        }
    }
    return health;
}

} // namespace

SourceHealthRecords::SourceHealthRecords(QString path, bool writable)
    : m_path(std::move(path))
    , m_isWritable(writable) {}

void SourceHealthRecords::read() {
    {
        const std::lock_guard guard(m_guard);
        if (std::exchange(m_isRead, true)) {
            return;
        }
    }
    if (!QFile::exists(m_path)) {
        return;
    }
    const std::optional<QByteArray> content = fileContent(m_path, kMostBytes);
    auto found = content ? sourceHealthFromJSON(*content) : std::nullopt;
    if (!found) {
        qInfo("source health: %s is not readable", qUtf8Printable(m_path));
        return;
    }
    const std::lock_guard guard(m_guard);
    m_byChannel.merge(*found);
}

std::optional<SourceHealth> SourceHealthRecords::healthFor(const ObjectId& channel) const {
    const std::lock_guard guard(m_guard);
    const auto found = m_byChannel.find(channel);
    return found == m_byChannel.end() ? std::nullopt : std::optional(found->second);
}

SourceHealthRecords::ByChannel SourceHealthRecords::all() const {
    const std::lock_guard guard(m_guard);
    return m_byChannel;
}

void SourceHealthRecords::record(const ObjectId& channel, SourceHealth health) {
    const std::lock_guard guard(m_guard);
    SourceHealth& known = m_byChannel[channel];
    if (!health.used) {
        health.used = std::move(known.used);
    }
    known = std::move(health);
    m_isWritten = false;
}

void SourceHealthRecords::write(const std::vector<ObjectId>& selected) {
    const std::unordered_set<ObjectId> kept(selected.begin(), selected.end());
    QByteArray content;
    {
        const std::lock_guard guard(m_guard);
        if (std::erase_if(m_byChannel, [&kept](const auto& entry) { return !kept.contains(entry.first); }) >
            0) {
            m_isWritten = false;
        }
        if (std::exchange(m_isWritten, true) || !m_isWritable) {
            return;
        }
        content = sourceHealthJSON(m_byChannel);
    }
    if (!replaceFile(m_path, content)) {
        qWarning("source health: %s cannot be written", qUtf8Printable(m_path));
        const std::lock_guard guard(m_guard);
        m_isWritten = false;
    }
}

QByteArray sourceHealthJSON(const SourceHealthRecords::ByChannel& byChannel) {
    QJsonObject channels;
    for (const auto& [channel, health] : byChannel) {
        QJsonObject json{{u"at"_s, textOf(health.at)}};
        if (health.used) {
            json.insert(u"used"_s, jsonOf(*health.used));
        }
        QJsonArray passedOver;
        for (const PassedOverSource& source : health.passedOver) {
            passedOver.append(jsonOf(source));
        }
        json.insert(u"passedOver"_s, passedOver);
        channels.insert(channel.hex(), json);
    }
    return QJsonDocument(QJsonObject{{u"version"_s, kVersion}, {u"channels"_s, channels}}).toJson();
}

std::optional<SourceHealthRecords::ByChannel> sourceHealthFromJSON(const QByteArray& json) {
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    if (root[u"version"_s].toInt() != kVersion) {
        return std::nullopt;
    }
    SourceHealthRecords::ByChannel byChannel;
    const QJsonObject channels = root[u"channels"_s].toObject();
    for (auto entry = channels.begin(); entry != channels.end(); ++entry) {
        if (auto health = sourceHealth(entry->toObject())) {
            byChannel.emplace(ObjectId::fromHex(entry.key()), *std::move(health));
        }
    }
    return byChannel;
}

} // namespace guide
