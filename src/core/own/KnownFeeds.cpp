#include "core/own/KnownFeeds.h"

#include "platform/files/FileContent.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUrl>

#include <algorithm>
#include <array>
#include <limits>
#include <unicode/uloc.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 1 << 20;
constexpr qsizetype kMostFeeds = 2'000;
constexpr qsizetype kLongestText = 500;

bool isRegion(const QString& text) {
    return text.size() == 2 &&
           std::ranges::all_of(text, [](QChar letter) { return letter >= u'A' && letter <= u'Z'; });
}

QString textOf(const QJsonObject& object, QLatin1StringView key) {
    return object[key].toString().left(kLongestText).simplified();
}

std::optional<KnownFeed> feedOf(const QJsonObject& object) {
    KnownFeed feed{.provider = textOf(object, "provider"_L1),
                   .name = textOf(object, "name"_L1),
                   .address = textOf(object, "address"_L1),
                   .bytes = std::max(qint64{0}, object["bytes"_L1].toInteger()),
                   .channels = std::max(0, object["channels"_L1].toInt()),
                   .alive = QDate::fromString(object["alive"_L1].toString(), Qt::ISODate),
                   .note = textOf(object, "note"_L1)};
    const QUrl url(feed.address, QUrl::StrictMode);
    const bool isWeb = url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty() &&
                       (url.scheme() == "http"_L1 || url.scheme() == "https"_L1);
    return isWeb && !feed.provider.isEmpty() && feed.alive.isValid() ? std::optional(std::move(feed))
                                                                     : std::nullopt;
}

} // namespace

KnownFeeds KnownFeeds::fromJSON(const QByteArray& json) {
    std::vector<KnownFeedCountry> countries;
    QSet<QString> addresses;
    const QJsonArray rows = QJsonDocument::fromJson(json).array();
    for (const auto& row : rows) {
        KnownFeedCountry country{.region = row["region"_L1].toString(), .feeds = {}};
        const QJsonArray feeds = row["feeds"_L1].toArray();
        for (const auto& each : feeds) {
            std::optional<KnownFeed> feed = feedOf(each.toObject());
            if (feed && !addresses.contains(feed->address) && addresses.size() < kMostFeeds) {
                addresses.insert(feed->address);
                country.feeds.push_back(*std::move(feed));
            }
        }
        const bool isNew =
            std::ranges::find(countries, country.region, &KnownFeedCountry::region) == countries.end();
        if (isRegion(country.region) && !country.feeds.empty() && isNew) {
            countries.push_back(std::move(country));
        }
    }
    return KnownFeeds(std::move(countries));
}

KnownFeeds KnownFeeds::fromFile(const QString& path) {
    KnownFeeds feeds = fromJSON(fileContent(path, kMostBytes).value_or(QByteArray()));
    if (feeds.countries().empty()) {
        qWarning().noquote() << "KnownFeeds: cannot read" << path;
    }
    return feeds;
}

const KnownFeedCountry* KnownFeeds::feedsForRegion(const QString& region) const {
    const auto found = std::ranges::find(m_countries, region.toUpper(), &KnownFeedCountry::region);
    return found != m_countries.end() ? &*found : nullptr;
}

QString countryName(const QString& region, const QLocale& locale) {
    std::array<char16_t, 128> buffer;
    UErrorCode status = U_ZERO_ERROR;
    const int length =
        uloc_getDisplayCountry(("und_" + region.toLatin1()).constData(), locale.name().toLatin1().constData(),
                               buffer.data(), static_cast<int32_t>(buffer.size()), &status);
    const bool isWhole = U_SUCCESS(status) && length > 0 && length <= static_cast<int>(buffer.size());
    return isWhole ? QString(reinterpret_cast<const QChar*>(buffer.data()), length) : region;
}

QString regionOf(const QLocale& locale) {
    return locale.territory() == QLocale::AnyTerritory ? QString()
                                                       : QLocale::territoryToCode(locale.territory());
}

} // namespace guide
