// What a run's changes cost through the store of the desktop's calendars, against one call of the service
// with all of them, on a local calendar of a private session.
#include "platform/calendar/DesktopCalendar.h"
#include "platform/linux/calendar/EventWriting.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace guide::bench {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr int kRounds = 5;
constexpr int kChanges = 200;
constexpr int kEvents = 2'400;

/// The events on which both sides work.
constexpr auto kGuide = "ca";
constexpr auto kFloor = "cb";

void require(bool isTrue, const char* what) {
    if (!isTrue) {
        std::fprintf(stderr, "%s\n", what);
        std::exit(1);
    }
}

template <typename Work>
double milliseconds(Work work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

CalendarEvent event(const char* prefix, int number) {
    return test::showEvent(QString::fromLatin1(prefix) + QString::number(number),
                           test::kEvening + number * 1min);
}

QByteArray uid(int number) {
    return uidFor(*event(kFloor, number).url, 1);
}

QList<QByteArray> components(int count, std::chrono::minutes later) {
    QList<QByteArray> list;
    for (int i = 0; i < count; ++i) {
        CalendarEvent changed = event(kFloor, i);
        changed.startDate += later;
        list << newEventComponent(changed, uid(i), test::kEvening);
    }
    return list;
}

struct Row {
    const char* name;
    double atMost;
    std::array<double, kRounds> guide{};
    std::array<double, kRounds> floor{};
};

double median(std::array<double, kRounds> times) {
    std::ranges::sort(times);
    return times[kRounds / 2];
}

} // namespace

int measure() {
    // Moves and removals read each event first, so that they do not undo what was changed elsewhere.
    Row rows[] = {{"200 new events in the desktop's calendar", 3},
                  {"200 moved events in the desktop's calendar", 5},
                  {"200 removed events in the desktop's calendar", 5},
                  {"range of 2,400 events of the desktop's calendar", 2}};
    for (std::size_t round = 0; round < kRounds; ++round) {
        test::DesktopCalendar desktop;
        EventStore& store = desktop.store();
        EDSCalendar& service = desktop.other;
        const EventCalendar calendar = desktop.calendar();
        require(!service.open(), "the calendar cannot be opened");
        const auto events = [&] {
            return store.eventsBetween(test::kEvening - 24h, test::kEvening + 24h * 10, calendar).events;
        };
        const auto apply = [&](const std::vector<EventChange>& changes) {
            const std::vector<EventOutcome> outcomes = store.apply(changes);
            require(changes.size() == kChanges && std::ranges::all_of(outcomes, &EventOutcome::isDone),
                    "a change failed");
        };
        const auto changes = [&](bool isRemoval) {
            std::vector<EventChange> list;
            for (CalendarEvent& stored : events()) {
                if (stored.url->host().startsWith(QString::fromLatin1(kGuide))) {
                    stored.startDate += 5min;
                    list.push_back(isRemoval ? EventChange(RemoveEvent{stored})
                                             : EventChange(SaveEvent{stored}));
                }
            }
            return list;
        };

        std::vector<EventChange> created;
        for (int i = 0; i < kChanges; ++i) {
            created.emplace_back(SaveEvent{event(kGuide, i)});
            std::get<SaveEvent>(created.back()).event.calendar = calendar.identifier;
        }
        const QList<QByteArray> added = components(kChanges, 0min);
        rows[0].floor[round] = milliseconds([&] { require(service.create(added).isOk(), "create"); });
        rows[0].guide[round] = milliseconds([&] { apply(created); });

        const QList<QByteArray> changed = components(kChanges, 5min);
        const std::vector<EventChange> moved = changes(false);
        rows[1].floor[round] = milliseconds([&] { require(service.modify(changed).isOk(), "modify"); });
        rows[1].guide[round] = milliseconds([&] { apply(moved); });

        QList<QByteArray> uids;
        for (int i = 0; i < kChanges; ++i) {
            uids << uid(i);
        }
        const std::vector<EventChange> removed = changes(true);
        rows[2].floor[round] = milliseconds([&] { require(service.remove(uids).isOk(), "remove"); });
        rows[2].guide[round] = milliseconds([&] { apply(removed); });
        require(events().empty(), "events remain");

        require(service.create(components(kEvents, 0min)).isOk(), "create");
        rows[3].floor[round] = milliseconds([&] {
            require(service.list(test::kEvening - 24h, test::kEvening + 24h * 10)
                            .values.value(0)
                            .toStringList()
                            .size() == kEvents,
                    "list");
        });
        rows[3].guide[round] = milliseconds([&] { require(events().size() == kEvents, "range"); });
    }
    for (const Row& row : rows) {
        std::printf("{\"row\": \"%s\", \"unit\": \"ms\", \"guide\": %.2f, \"floor\": %.2f, \"atMost\": %g}\n",
                    row.name, median(row.guide), median(row.floor), row.atMost);
    }
    return 0;
}

} // namespace guide::bench

int main() {
    return guide::bench::measure();
}
