#include "sources/own/ChannelIconIndex.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = qint64(16) << 20;
constexpr std::chrono::hours kLongestFailure{24};
constexpr auto kPictures = "pictures"_L1;
constexpr auto kFailures = "failedUntil"_L1;
constexpr auto kOrigin = "origin"_L1;
constexpr auto kFetched = "fetched"_L1;

Moment momentOf(const QJsonValue& value) {
    return Moment(std::chrono::milliseconds(value.toInteger()));
}

qint64 numberOf(Moment moment) {
    return moment.time_since_epoch().count();
}

} // namespace

ChannelIconIndex::ChannelIconIndex(const QString& folder)
    : m_path(folder + u'/' + kFileName) {
    const QJsonObject object =
        QJsonDocument::fromJson(fileContent(m_path, kMostBytes).value_or(QByteArray())).object();
    const QJsonObject pictures = object[kPictures].toObject();
    for (auto each = pictures.constBegin(); each != pictures.constEnd(); ++each) {
        m_pictures.insert(each.key(),
                          {each.value()[kOrigin].toString().toLatin1(), momentOf(each.value()[kFetched])});
    }
    for (auto each = m_pictures.cbegin(); each != m_pictures.cend(); ++each) {
        m_channels.insert(each->origin, each.key());
    }
    const QJsonObject failures = object[kFailures].toObject();
    for (auto each = failures.constBegin(); each != failures.constEnd(); ++each) {
        m_failedUntil.insert(each.key().toLatin1(), momentOf(each.value()));
    }
}

QByteArray ChannelIconIndex::digestOf(const QString& address) {
    return QCryptographicHash::hash(address.toUtf8(), QCryptographicHash::Sha256).toHex().left(32);
}

std::optional<ChannelIconIndex::Picture> ChannelIconIndex::picture(const QString& channel) const {
    const auto found = m_pictures.constFind(channel);
    return found != m_pictures.cend() ? std::optional(*found) : std::nullopt;
}

std::optional<QString> ChannelIconIndex::channelWith(const QByteArray& origin) const {
    const QString channel = m_channels.value(origin);
    const auto found = m_pictures.constFind(channel);
    return found != m_pictures.cend() && found->origin == origin ? std::optional(channel) : std::nullopt;
}

void ChannelIconIndex::setPicture(const QString& channel, const Picture& picture) {
    m_pictures.insert(channel, picture);
    m_channels.insert(picture.origin, channel);
    m_isChanged = true;
}

void ChannelIconIndex::removePicture(const QString& channel) {
    m_isChanged = m_pictures.remove(channel) || m_isChanged;
}

void ChannelIconIndex::keepOnly(const QSet<QString>& channels, Moment now) {
    const auto pictures =
        m_pictures.removeIf([&](const auto& each) { return !channels.contains(each.key()); });
    const auto failures = m_failedUntil.removeIf([now](const auto& each) { return each.value() <= now; });
    m_isChanged = m_isChanged || pictures + failures > 0;
}

bool ChannelIconIndex::hasFailed(const QByteArray& address, Moment now) const {
    const auto found = m_failedUntil.constFind(address);
    // A clock that was wrong must not make it fail for ever.
    return found != m_failedUntil.cend() && now < *found && *found - now <= kLongestFailure;
}

void ChannelIconIndex::setFailed(const QByteArray& address, Moment until) {
    m_failedUntil.insert(address, until);
    m_isChanged = true;
}

void ChannelIconIndex::save() {
    if (!m_isChanged) {
        return;
    }
    QJsonObject pictures;
    for (auto each = m_pictures.cbegin(); each != m_pictures.cend(); ++each) {
        pictures.insert(each.key(), QJsonObject{{kOrigin, QString::fromLatin1(each->origin)},
                                                {kFetched, numberOf(each->fetched)}});
    }
    QJsonObject failures;
    for (auto each = m_failedUntil.cbegin(); each != m_failedUntil.cend(); ++each) {
        failures.insert(QString::fromLatin1(each.key()), numberOf(*each));
    }
    const QJsonObject object{{kPictures, pictures}, {kFailures, failures}};
    m_isChanged = !replaceFile(m_path, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace guide
