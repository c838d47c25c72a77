#include "parsers/formats/JojCinemaListReader.h"

#include "parsers/formats/EntryClassifier.h"
#include "parsers/formats/ReaderPages.h"
#include "parsers/markers/ZoneClock.h"
#include "sources/WebURL.h"

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr int kFirstDay = -1;
constexpr int kDays = 7;
constexpr std::string_view kTime = "class=\"time\">";

/// The marker of the page of that day.
std::string activeDay(const QDate& date) {
    return "day=" + std::to_string(date.day()) + '-' + std::to_string(date.month()) + '-' +
           std::to_string(date.year()) + "\" class=\"active\"";
}

class DayReader {
  public:
    DayReader(const ListReaderInput& input, std::vector<ExtendedTVEntry>& list, ZoneClock& bratislava)
        : m_input(input)
        , m_item(input.items.front())
        , m_list(list)
        , m_clock(bratislava)
        , m_site(input.hosts.base(u"JojCinemaHost"_s, u"http"_s)) {}

    /// `dateAfter` is used for shows after midnight.
    void read(MarkerWalk day, QDate date, const QDate& dateAfter) {
        std::string_view previous;
        while (day.pass(kTime)) {
            const std::string_view time = day.characters(5);
            const MarkerWalk item = day.part(day.position(), day.findOrLimit(kTime));
            // After the first time that does not increase, the rest of the page is on the next date.
            if (!previous.empty() && previous >= time) {
                date = dateAfter;
            } else {
                previous = time;
            }
            addShow(item, date, time);
            day.moveTo(item.limit());
        }
    }

  private:
    void addShow(MarkerWalk item, const QDate& date, std::string_view time) {
        const auto source = MarkerWalk(item).take("<img src=\"", "\"");
        const auto path = item.take("<a href=\"", "\" title=\"");
        if (!path || !item.pass("\" title=\"")) {
            return;
        }
        const auto title = item.takeUpTo("\"");
        const auto clockTime = title ? timeOfDay(time) : std::nullopt;
        const auto start = clockTime ? m_clock.momentAt(date, *clockTime) : std::nullopt;
        if (!start) {
            return;
        }
        auto entry = newEntry(m_input, m_item, pageString(*title), *start);
        entry->setSourceId(m_item.sourceId);
        if (m_site) {
            entry->setUrl(QUrl(*m_site + pageString(*path)));
        }
        const TVListingsCategory categories = classifyEntry(*entry);
        ExtendedTVEntry show{std::move(entry), categories, nullptr, {}};
        const QUrl picture = source && m_site ? QUrl(*m_site + pageString(*source)) : QUrl();
        if (isWebURL(picture)) {
            show.extra = std::make_shared<TVEntrySupplementalData>();
            show.pictures.insert(picture);
        }
        m_list.push_back(std::move(show));
    }

    const ListReaderInput& m_input;
    const LoadItem& m_item;
    std::vector<ExtendedTVEntry>& m_list;
    ZoneClock& m_clock;
    const std::optional<QString> m_site;
};

} // namespace

void readJojCinemaLists(const ListReaderInput& input, ParsedLists& lists) {
    ZoneClock bratislava(QTimeZone("Europe/Bratislava"));
    const QByteArray text = joinedPages(input.pages);
    const MarkerWalk page(pageText(text), input.trace);
    DayReader reader(input, lists[input.items.front().channel], bratislava);

    Moment day = input.now + kFirstDay * std::chrono::hours(24);
    for (int i = 0; i < kDays; ++i, day += std::chrono::hours(24)) {
        const QDate date = bratislava.dateAt(day);
        const QDate dateAfter = bratislava.dateAt(day + std::chrono::hours(24));
        MarkerWalk walk = page;
        // The days are in order; a missing one ends the walk.
        if (!walk.pass(activeDay(date))) {
            return;
        }
        // Stops before the next day, so that a day without shows does not take its shows.
        const std::size_t nextDay = walk.findOrLimit(activeDay(dateAfter));
        walk = walk.part(walk.position(), nextDay);
        if (walk.pass(" class=\"item\"")) {
            reader.read(walk.part(walk.position(), walk.findOrLimit(" href=\"?day=")), date, dateAfter);
        }
    }
}

PlannedURLs planJojCinemaPages(const PlanRequest& request) {
    const std::optional<QString> base = request.hosts.base(u"JojCinemaHost"_s);
    if (!base) {
        return std::nullopt;
    }
    return dailyURLs(kFirstDay, kFirstDay + kDays - 1, request.now, [&](Moment day) {
        const QDate date = dateAtServer(u"sk", day);
        return *base + "/cz/cz-program/?day="_L1 + QString::number(date.day()) + u'-' +
               QString::number(date.month()) + u'-' + paddedNumber(date.year(), 4);
    });
}

} // namespace guide
