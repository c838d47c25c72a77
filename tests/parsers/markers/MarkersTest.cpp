#include "parsers/ShowJSON.h"
#include "parsers/markers/MarkerWalk.h"
#include "parsers/markers/PlainText.h"
#include "parsers/markers/ZoneClock.h"

#include <QDateTime>

#include <gtest/gtest.h>
#include <string_view>
#include <tuple>

namespace guide {
namespace {

using namespace std::chrono_literals;

TEST(MarkerWalk, DoesNotMoveWhenAMarkerIsMissing) {
    MarkerTrace trace;
    MarkerWalk walk("<li>Čas 20:15</li><li>open", trace);
    EXPECT_EQ(walk.take("<li>", "</li>"), "Čas 20:15");
    const std::size_t place = walk.position();
    EXPECT_FALSE(walk.take("<li>", "</li>"));
    EXPECT_EQ(walk.position(), place);
    EXPECT_EQ(trace.lastMissed(), "</li>");
    EXPECT_TRUE(walk.pass("<li>"));
    EXPECT_EQ(walk.rest(), "open");
}

TEST(MarkerWalk, StaysWithinThePart) {
    MarkerTrace trace;
    const MarkerWalk page("a|bc|d|", trace);
    MarkerWalk part = page.part(2, 4);
    EXPECT_FALSE(part.find("|"));
    EXPECT_FALSE(part.find("c|")) << "a marker must end within the part";
    EXPECT_EQ(part.find("c"), 3U);
    EXPECT_EQ(part.find("bc"), 2U) << "a marker may fill the part";
    EXPECT_EQ(part.findOrLimit("d"), 4U);
    EXPECT_EQ(page.findLast("|"), 6U);
    EXPECT_FALSE(page.part(2, 4).findLast("a"));
    part.moveTo(100);
    EXPECT_TRUE(part.atEnd());
    EXPECT_EQ(part.part(0, 100).limit(), 4U);
}

TEST(MarkerWalk, CountsCharactersNotBytes) {
    MarkerTrace trace;
    EXPECT_EQ(MarkerWalk("žluťoučký", trace).characters(4), "žluť");
    EXPECT_EQ(MarkerWalk("ž", trace).characters(5), "ž");
}

TEST(MarkerPlaces, FindsTheNextMarkerFromAnyPosition) {
    const MarkerPlaces places("<p>1<p>2", "<p>");
    EXPECT_EQ(places.next(0), 0U);
    EXPECT_EQ(places.next(1), 4U);
    EXPECT_FALSE(places.next(5));
}

TEST(MarkedFields, FindFieldsFromAnyPosition) {
    const std::string text = "<a>1</a> <a><a>2</a> <a>open";
    const MarkedFields fields(text, "<a>", "</a>");
    const auto first = fields.next(0);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->text, "1");
    EXPECT_EQ(first->end, 4U);
    EXPECT_EQ(fields.next(1)->text, "<a>2") << "the first opening marker counts";
    EXPECT_EQ(fields.next(10)->text, "2");
    EXPECT_TRUE(fields.next(0, 8));
    EXPECT_FALSE(fields.next(0, 7)) << "the closing marker must end before the limit";
    EXPECT_FALSE(fields.next(13));
    EXPECT_FALSE(fields.next(100));
}

TEST(PlainText, KeepsTheVisibleText) {
    const std::pair<std::string_view, QString> rows[] = {
        {"<p>One <b>two</b></p>\n three", QStringLiteral("One two\nthree")},
        {"a<br>b<BR/>c", QStringLiteral("a\nb\nc")},
        {"&#232;&#xE8;&egrave;&none;&", QStringLiteral("\u00E8\u00E8\u00E8&none;&")},
        {"1 > 0 < 2", QStringLiteral("1 > 0 < 2")},
        {"0 < 2", QStringLiteral("0 < 2")},
    };
    for (const auto& [html, text] : rows) {
        EXPECT_EQ(plainText(html), text) << html;
    }
}

std::string utc(ZoneClock& clock, QDate date, std::chrono::minutes time) {
    const auto moment = clock.momentAt(date, time);
    return moment ? isoMoment(*moment).toStdString() : "none";
}

TEST(ZoneClock, ResolvesTimesAroundClockChanges) {
    ZoneClock prague(QTimeZone("Europe/Prague"));
    const std::tuple<const char*, QDate, std::chrono::minutes, const char*> rows[] = {
        {"the day before the spring change", {2026, 3, 28}, 2h + 30min, "2026-03-28T01:30:00Z"},
        {"just before the gap", {2026, 3, 29}, 1h + 59min, "2026-03-29T00:59:00Z"},
        {"in the gap: forward by the gap", {2026, 3, 29}, 2h + 30min, "2026-03-29T01:30:00Z"},
        {"after the gap", {2026, 3, 29}, 3h, "2026-03-29T01:00:00Z"},
        {"across the gap from the day before", {2026, 3, 28}, 27h, "2026-03-29T01:00:00Z"},
        {"the day after", {2026, 3, 30}, 2h + 30min, "2026-03-30T00:30:00Z"},
        {"before the repeated hour", {2026, 10, 25}, 1h + 30min, "2026-10-24T23:30:00Z"},
        {"repeated: the first", {2026, 10, 25}, 2h + 30min, "2026-10-25T00:30:00Z"},
        {"after the repeated hour", {2026, 10, 25}, 3h, "2026-10-25T02:00:00Z"},
        {"no date", {2026, 2, 30}, 1h, "none"},
    };
    for (const auto& [name, date, time, expected] : rows) {
        EXPECT_EQ(utc(prague, date, time), expected) << name;
    }
}

TEST(ZoneClock, OffsetsMatchTheZoneOnBothSidesOfEveryChange) {
    for (const char* name : {"Europe/Prague", "Europe/Bucharest", "Africa/Casablanca", "UTC", "Etc/GMT+5"}) {
        const QTimeZone zone(name);
        ZoneClock clock(zone);
        const Moment start = std::chrono::sys_days{std::chrono::year{2035} / 1 / 1};
        // Forwards, jumping back at times, into years beyond the table of transitions.
        for (int i = 0; i < 4 * 365 * 24; ++i) {
            const Moment moment = start + std::chrono::hours(i % 7 == 0 ? i / 2 : i);
            for (const Moment near : {moment - 1ms, moment}) {
                const QDateTime time =
                    QDateTime::fromMSecsSinceEpoch(near.time_since_epoch().count(), Qt::UTC);
                ASSERT_EQ(clock.offsetAt(near).count(), zone.offsetFromUtc(time))
                    << name << ' ' << isoMoment(near).toStdString();
            }
        }
    }
}

TEST(ZoneClock, ReadsTimesOfDay) {
    EXPECT_EQ(timeOfDay("00:00"), 0min);
    EXPECT_EQ(timeOfDay("9:05"), 9h + 5min);
    EXPECT_EQ(timeOfDay("23:59"), 23h + 59min);
    for (const char* text :
         {"", ":", "24:00", "12:60", "12:5", "12:345", "1a:00", " 9:00", "12.30", "-1:00"}) {
        EXPECT_FALSE(timeOfDay(text)) << text;
    }
}

} // namespace
} // namespace guide
