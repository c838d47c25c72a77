#pragma once

#include "platform/Moment.h"
#include "sources/RandomIndex.h"
#include "sources/SourceHostTable.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringView>
#include <QTimeZone>
#include <QUrl>

#include <chrono>
#include <optional>

namespace guide {

/// What the pages of a source are planned from; all of it must outlive the call.
struct PlanRequest {
    const QString& sourceId;
    Moment now;
    /// Dates the pages of a server whose zone is unknown.
    const QTimeZone& deviceZone;
    const SourceHostTable& hosts;
    const RandomIndex& random;
};

/// The URLs whose pages, read together, are the schedule of a source, each once and in the order of fetching.
/// Nothing when the id is malformed or its host is not in the table.
using PlannedURLs = std::optional<QList<QUrl>>;
using URLPlan = PlannedURLs (*)(const PlanRequest& request);

/// Collects URLs. A repeated URL is dropped; one URL that is not a web URL makes the whole plan fail.
class URLList {
  public:
    void add(const QString& text);
    PlannedURLs result() &&;

  private:
    QList<QUrl> m_urls;
    bool m_valid = true;
};

/// Planning counts days in steps of 86,400 seconds, regardless of daylight saving.
constexpr std::chrono::seconds kPlanDay{86'400};

PlannedURLs singleURL(const std::optional<QString>& base, const QString& rest);

/// The page itself, followed by the page with the query and each number from `first` to `last`.
PlannedURLs numberedURLs(const std::optional<QString>& page, QLatin1StringView query, int first, int last);

/// One URL for each day from `first` to `last`, made by the function from the moment of that day.
template <class MakeURL>
PlannedURLs dailyURLs(int first, int last, Moment now, MakeURL makeURL) {
    URLList urls;
    for (int day = first; day <= last; ++day) {
        urls.add(makeURL(now + day * kPlanDay));
    }
    return std::move(urls).result();
}

/// The base with the path appended; nothing without a base.
std::optional<QString> joinedURL(std::optional<QString> base, QLatin1StringView path);

/// The date at that moment in the zone of the server or country.
QDate dateAtServer(QStringView server, Moment moment);
QDate dateInZone(const QTimeZone& zone, Moment moment);

QString paddedNumber(int number, int digits);
/// "yyyy-MM-dd".
QString yearMonthDayText(QDate date);

} // namespace guide
