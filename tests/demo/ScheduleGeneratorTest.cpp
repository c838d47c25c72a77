#include "demo/schedule/ScheduleGenerator.h"

#include "demo/Texts.h"

#include <QDateTime>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

constexpr int kDays = 8;
// A Tuesday; the eight days span a weekend.
const QDate kFirstDay(2026, 11, 17);

std::vector<Programme> schedule(const DemoChannel& channel, const QDate& firstDay, int days) {
    return ScheduleGenerator(sourceTexts()).schedule(channel, firstDay, days);
}

bool same(const Programme& a, const Programme& b) {
    return a.start == b.start && a.stop == b.stop && a.title == b.title && a.subtitle == b.subtitle &&
           a.description == b.description && a.actors == b.actors && a.episode == b.episode;
}

// The dates: eight days over a weekend, and the shortest and the longest day of the year.
TEST(ScheduleGenerator, FillsItsDaysWithoutGapOrOverlap) {
    const std::pair<QDate, int> spans[] = {
        {kFirstDay, kDays}, {QDate(2026, 3, 28), 2}, {QDate(2026, 10, 24), 2}};
    for (const DemoChannel& channel : demoChannels()) {
        const auto morning = [&channel](const QDate& day) {
            return QDateTime(day, QTime(6, 0), QTimeZone(channel.zone)).toMSecsSinceEpoch();
        };
        for (const auto& [first, days] : spans) {
            const auto programmes = schedule(channel, first, days);
            ASSERT_FALSE(programmes.empty());
            EXPECT_EQ(programmes.front().start.time_since_epoch().count(), morning(first));
            EXPECT_EQ(programmes.back().stop.time_since_epoch().count(), morning(first.addDays(days)));
            for (std::size_t i = 0; i < programmes.size(); ++i) {
                EXPECT_LT(programmes[i].start, programmes[i].stop);
                EXPECT_TRUE(i == 0 || programmes[i - 1].stop == programmes[i].start);
            }
        }
    }
}

TEST(ScheduleGenerator, GeneratesTheSameDayForEveryRange) {
    for (const DemoChannel& channel : demoChannels()) {
        const auto week = schedule(channel, kFirstDay, kDays);
        const auto day = schedule(channel, kFirstDay.addDays(3), 1);
        const auto begins = std::find_if(week.begin(), week.end(), [&day](const Programme& each) {
            return each.start == day.front().start;
        });
        ASSERT_GE(week.end() - begins, std::ptrdiff_t(day.size()));
        EXPECT_TRUE(std::equal(day.begin(), day.end(), begins, same)) << channel.key.toStdString();
    }
}

TEST(ScheduleGenerator, GeneratesCompleteTexts) {
    for (const DemoChannel& channel : demoChannels()) {
        for (const Programme& programme : schedule(channel, kFirstDay, kDays)) {
            const std::string title = programme.title.toStdString();
            EXPECT_FALSE(title.empty());
            EXPECT_TRUE(programme.topic == Topic::None || !programme.description.isEmpty()) << title;
            for (const QString& text : {programme.title, programme.subtitle, programme.description}) {
                EXPECT_FALSE(text.contains(u'{') || text.contains(u'}') || text.contains(u'@') ||
                             text.contains("  "_L1))
                    << text.toStdString();
            }
            EXPECT_TRUE(programme.description.isEmpty() || programme.description.endsWith(u'.')) << title;
            EXPECT_FALSE(!programme.subtitle.isEmpty() && programme.subtitle.front().isDigit()) << title;
            EXPECT_TRUE(channel.spoken.contains(programme.language)) << title;
        }
    }
}

TEST(ScheduleGenerator, BroadcastDayEndsAtSix) {
    const auto at = [](int hour, int minute) {
        return Moment(std::chrono::milliseconds(
            QDateTime(QDate(2026, 11, 21), QTime(hour, minute), QTimeZone("Europe/Prague"))
                .toMSecsSinceEpoch()));
    };
    EXPECT_EQ(broadcastDay(at(5, 59), "Europe/Prague"), QDate(2026, 11, 20));
    EXPECT_EQ(broadcastDay(at(6, 0), "Europe/Prague"), QDate(2026, 11, 21));
}

} // namespace
} // namespace guide
