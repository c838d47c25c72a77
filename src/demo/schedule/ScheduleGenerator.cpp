#include "demo/schedule/ScheduleGenerator.h"

#include "demo/schedule/BlockFitting.h"
#include "demo/schedule/ProgrammeGenerator.h"

#include <QDateTime>
#include <QHash>
#include <QTimeZone>

namespace guide {

namespace {

constexpr std::chrono::hours kMorning{6};

Moment morningOf(const QDate& day, const QByteArray& zone) {
    const QDateTime morning(day, QTime(int(kMorning.count()), 0), QTimeZone(zone));
    return Moment(std::chrono::milliseconds(morning.toMSecsSinceEpoch()));
}

/// Items of a day with different keys count their occurrences separately.
QString placeInPlan(const PlannedItem& item, bool repeat) {
    return item.kind + QChar(u'0' + item.ordinal) + QChar(repeat ? u'~' : u' ');
}

} // namespace

void ScheduleGenerator::appendDay(const DemoChannel& channel, const QDate& day,
                                  std::vector<Programme>& programmes) const {
    const std::vector<PlannedBlock> plan = dayPlan(channel.profile, day.dayOfWeek());
    const Moment morning = morningOf(day, channel.zone);
    const auto length =
        std::chrono::duration_cast<std::chrono::minutes>(morningOf(day.addDays(1), channel.zone) - morning);
    Random lengths(mixedSeed(namedSeed(channel.key.toUtf8()), std::uint64_t(day.toJulianDay())));

    std::vector<FittedItem> items;
    QHash<QString, int> totals;
    for (std::size_t i = 0; i < plan.size(); ++i) {
        const int end = i + 1 < plan.size() ? plan[i + 1].from : kDayBegins + int(length.count());
        for (const FittedItem& item : fitBlock(plan[i].items, end - plan[i].from, lengths)) {
            ++totals[placeInPlan(item.item, item.item.repeat)];
            items.push_back(item);
        }
    }

    QHash<QString, int> counts;
    Moment start = morning;
    for (const FittedItem& item : items) {
        const QString place = placeInPlan(item.item, item.item.repeat);
        // A repeat numbers its episodes as the first showing did.
        const int total = totals.value(placeInPlan(item.item, false), totals.value(place));
        Programme programme =
            ProgrammeGenerator(*m_texts, channel, item.item, day, counts[place]++, total).programme();
        programme.start = start;
        programme.stop = start + std::chrono::minutes(item.minutes);
        start = programme.stop;
        programmes.push_back(std::move(programme));
    }
}

std::vector<Programme> ScheduleGenerator::schedule(const DemoChannel& channel, const QDate& firstDay,
                                                   int days) const {
    std::vector<Programme> programmes;
    for (int i = 0; i < days; ++i) {
        appendDay(channel, firstDay.addDays(i), programmes);
    }
    return programmes;
}

QDate broadcastDay(Moment now, const QByteArray& zone) {
    const auto shifted = now - kMorning;
    return QDateTime::fromMSecsSinceEpoch(shifted.time_since_epoch().count(), QTimeZone(zone)).date();
}

} // namespace guide
