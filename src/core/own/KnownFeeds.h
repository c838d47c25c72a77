#pragma once

#include <QByteArray>
#include <QDate>
#include <QLocale>
#include <QString>

#include <utility>
#include <vector>

namespace guide {

/// A public feed that somebody else runs.
struct KnownFeed {
    QString provider;
    /// What tells the provider's feeds of a country apart; may be empty.
    QString name;
    QString address;
    /// As fetched; 0 when unknown.
    qint64 bytes = 0;
    /// 0 when unknown.
    int channels = 0;
    /// When it was last reported alive.
    QDate alive;
    /// What the provider says about it, in English; may be empty.
    QString note = {};
};

struct KnownFeedCountry {
    /// Two capital letters of ISO 3166, such as "SK".
    QString region;
    std::vector<KnownFeed> feeds;
};

/// The public feeds that the guide can offer, by country. Immutable.
class KnownFeeds {
  public:
    KnownFeeds() = default;
    explicit KnownFeeds(std::vector<KnownFeedCountry> countries)
        : m_countries(std::move(countries)) {}
    /// Leaves out what is malformed, and addresses that are not http or https.
    static KnownFeeds fromJSON(const QByteArray& json);
    /// Empty when the file cannot be read.
    static KnownFeeds fromFile(const QString& path);

    const std::vector<KnownFeedCountry>& countries() const { return m_countries; }
    /// The feeds of a region, given as its two letters in any case; null when none are known.
    const KnownFeedCountry* feedsForRegion(const QString& region) const;

  private:
    std::vector<KnownFeedCountry> m_countries;
};

/// The name of a country in the locale's language, from its two letters; these when it has none.
QString countryName(const QString& region, const QLocale& locale);

/// The two letters of the locale's country.
QString regionOf(const QLocale& locale);

} // namespace guide
