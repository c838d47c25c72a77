#include "demo/ScheduleGenerator.h"

#include "demo/ProgrammeKind.h"
#include "demo/StretchFitting.h"
#include "demo/Words.h"

#include <QDateTime>
#include <QSet>
#include <QTimeZone>

#include <gtest/gtest.h>
#include <map>

using namespace Qt::StringLiterals;

namespace guide {

namespace {

constexpr int kDays = 8;
// A Tuesday; the eight days span a weekend.
const QDate kFirstDay(2026, 11, 17);

class EveryChannel : public testing::TestWithParam<int> {
  protected:
    const DemoChannel& channel() const { return demoChannels()[std::size_t(GetParam())]; }
};

bool same(const Programme& a, const Programme& b) {
    return a.start == b.start && a.stop == b.stop && a.title == b.title && a.subtitle == b.subtitle &&
           a.description == b.description && a.actors == b.actors && a.episode == b.episode;
}

TEST_P(EveryChannel, FillsEightDaysWithoutGapOrOverlap) {
    const auto programmes = schedule(channel(), kFirstDay, kDays);
    const QTimeZone zone(channel().zone);
    ASSERT_FALSE(programmes.empty());
    EXPECT_EQ(QDateTime(kFirstDay, QTime(6, 0), zone).toMSecsSinceEpoch(),
              programmes.front().start.time_since_epoch().count());
    EXPECT_EQ(QDateTime(kFirstDay.addDays(kDays), QTime(6, 0), zone).toMSecsSinceEpoch(),
              programmes.back().stop.time_since_epoch().count());
    for (std::size_t i = 0; i < programmes.size(); ++i) {
        EXPECT_LT(programmes[i].start, programmes[i].stop);
        if (i > 0) {
            EXPECT_EQ(programmes[i - 1].stop, programmes[i].start);
        }
    }
}

TEST_P(EveryChannel, SaysTheSameOfADayWheneverItIsAsked) {
    const auto week = schedule(channel(), kFirstDay, kDays);
    const auto day = schedule(channel(), kFirstDay.addDays(3), 1);
    const auto begins = std::find_if(
        week.begin(), week.end(), [&day](const Programme& each) { return each.start == day.front().start; });
    ASSERT_GE(week.end() - begins, std::ptrdiff_t(day.size()));
    EXPECT_TRUE(std::equal(day.begin(), day.end(), begins, same));
}

// The longest and the shortest day of the year, where the zone has them.
TEST_P(EveryChannel, KeepsItsMorningsOverAChangeOfClock) {
    for (const QDate& day : {QDate(2026, 3, 28), QDate(2026, 10, 24)}) {
        const auto programmes = schedule(channel(), day, 2);
        EXPECT_EQ(QDateTime(day.addDays(2), QTime(6, 0), QTimeZone(channel().zone)).toMSecsSinceEpoch(),
                  programmes.back().stop.time_since_epoch().count());
        for (std::size_t i = 1; i < programmes.size(); ++i) {
            EXPECT_EQ(programmes[i - 1].stop, programmes[i].start);
        }
    }
}

TEST_P(EveryChannel, TellsTextsThatTheReaderLeavesWhole) {
    for (const Programme& programme : schedule(channel(), kFirstDay, kDays)) {
        const QByteArray title = programme.title.toUtf8();
        EXPECT_NE(programme.topic == Topic::None ? title : programme.description.toUtf8(), "")
            << title.constData();
        EXPECT_FALSE(title.isEmpty());
        for (const QString& text : {programme.title, programme.subtitle, programme.description}) {
            EXPECT_FALSE(text.contains(u'{') || text.contains(u'}') || text.contains(u'@') ||
                         text.contains("  "_L1))
                << text.toUtf8().constData();
        }
        // A comma, a bracket or a parenthesis would cut the title short.
        for (const QChar mark : {u',', u'(', u'['}) {
            EXPECT_FALSE(programme.title.contains(mark)) << title.constData();
        }
        EXPECT_TRUE(programme.description.isEmpty() || programme.description.endsWith(u'.'))
            << title.constData();
        EXPECT_FALSE(!programme.subtitle.isEmpty() && programme.subtitle.front().isDigit());
        EXPECT_TRUE(channel().spoken.contains(programme.language));
    }
}

INSTANTIATE_TEST_SUITE_P(All, EveryChannel, testing::Range(0, int(demoChannels().size())),
                         [](const auto& row) {
                             return demoChannels()[std::size_t(row.param)].key.toStdString();
                         });

TEST(ScheduleGenerator, HasEveryKindOfShow) {
    std::map<Topic, int> topics;
    QSet<QString> titles;
    int repeats = 0;
    int overMidnight = 0;
    int episodes = 0;
    int total = 0;
    for (const DemoChannel& channel : demoChannels()) {
        const QTimeZone zone(channel.zone);
        for (const Programme& programme : schedule(channel, kFirstDay, kDays)) {
            ++topics[programme.topic];
            titles.insert(programme.title);
            repeats += int(programme.repeat);
            episodes += int(programme.episode > 0);
            const auto date = [&zone](Moment at) {
                return QDateTime::fromMSecsSinceEpoch(at.time_since_epoch().count(), zone).date();
            };
            overMidnight += int(date(programme.start) != date(programme.stop));
            ++total;
        }
    }
    EXPECT_EQ(topics.size(), std::size_t(Topic::Sports) + 1);
    EXPECT_GT(titles.size(), 1000);
    EXPECT_GT(repeats, total / 20);
    EXPECT_GT(episodes, total / 5);
    EXPECT_GT(overMidnight, 100);
}

TEST(ScheduleGenerator, NewsBeginOnTheHour) {
    const auto news =
        std::find_if(demoChannels().begin(), demoChannels().end(),
                     [](const DemoChannel& channel) { return channel.character == Character::News; });
    std::map<int, int> hours;
    for (const Programme& programme : schedule(*news, kFirstDay, 1)) {
        const QTime at =
            QDateTime::fromMSecsSinceEpoch(programme.start.time_since_epoch().count(), QTimeZone(news->zone))
                .time();
        hours[at.hour()] += int(at.minute() == 0 && programme.topic == Topic::News);
    }
    for (int hour = 9; hour < 24; ++hour) {
        EXPECT_EQ(hours[hour], 1) << hour;
    }
}

TEST(ScheduleGenerator, ABroadcastDayLastsUntilSix) {
    const auto at = [](int hour, int minute) {
        return Moment(std::chrono::milliseconds(
            QDateTime(QDate(2026, 11, 21), QTime(hour, minute), QTimeZone("Europe/Prague"))
                .toMSecsSinceEpoch()));
    };
    EXPECT_EQ(broadcastDay(at(5, 59), "Europe/Prague"), QDate(2026, 11, 20));
    EXPECT_EQ(broadcastDay(at(6, 0), "Europe/Prague"), QDate(2026, 11, 21));
}

TEST(StretchFitting, TakesExactlyItsTime) {
    Random random(1);
    const auto item = [](const char* kind, bool filling = false) {
        return PlannedItem{.kind = QString::fromLatin1(kind), .filling = filling};
    };
    const std::vector<std::vector<PlannedItem>> plans = {
        {item("news"), item("weather")}, {item("sitcom", true), item("short")}, {item("film")}, {}};
    for (const auto& plan : plans) {
        for (int minutes = 0; minutes <= 400; minutes += 5) {
            int sum = 0;
            for (const FittedItem& fitted : fittedStretch(plan, minutes, random)) {
                EXPECT_GE(fitted.minutes, 5);
                sum += fitted.minutes;
            }
            EXPECT_EQ(sum, minutes);
        }
    }
}

TEST(Words, ReferToWhatThereIs) {
    for (const QString& language : {u"cs"_s, u"sk"_s, u"en"_s, u"fr"_s, u"tr"_s, u"ru"_s}) {
        EXPECT_EQ(grammarOf(language).faults().join(u'\n').toStdString(), "");
    }
}

TEST(Words, FaultsAreFound) {
    const Grammar grammar(u"a=\n  one {b} {c.2} {x:c.1} {x.3} {#5-5}\nc=\n  c/cs\n"_s);
    EXPECT_EQ(grammar.faults().size(), 3);
}

// Every kind that a channel plans can be told in each language that it speaks.
TEST(Words, EveryPlannedKindHasItsRule) {
    for (const DemoChannel& channel : demoChannels()) {
        for (int weekday = 1; weekday <= 7; ++weekday) {
            for (const PlannedStretch& stretch : dayPlan(channel.character, weekday)) {
                for (const PlannedItem& item : stretch.items) {
                    const QStringList kinds = item.kind == "film"_L1 ? channel.films : QStringList(item.kind);
                    EXPECT_FALSE(kinds.isEmpty()) << channel.key.toStdString();
                    for (const QString& kind : kinds) {
                        EXPECT_NE(programmeKind(kind), nullptr) << kind.toStdString();
                        for (const QString& language : channel.spoken) {
                            EXPECT_TRUE(grammarOf(language).has(kind))
                                << language.toStdString() << ' ' << kind.toStdString();
                        }
                    }
                }
            }
        }
    }
}

} // namespace

} // namespace guide
