// The scenarios of the alarms on real calendars, in which another program made the events that were there.
#include "fakes/AlarmScenarios.h"
#include "platform/calendar/FolderCalendar.h"
#include "platform/calendar/RemoteCalendar.h"

namespace guide::test {
namespace {

using namespace std::chrono_literals;

const QString kGuide = u"guide"_s;

/// Every n-th scenario.
void playOn(CalendarUnderTest& test, std::size_t every = 1) {
    const EventCalendar calendar = test.calendar();
    for (std::size_t i = 0; i < std::size(kAlarmScenarios); i += every) {
        const AlarmScenario& scenario = kAlarmScenarios[i];
        if (scenario.repeatsEvents) {
            continue;
        }
        AlarmWorld world(test.store(), calendar);
        world.addElsewhere = [&](const QString& name, const CalendarEvent& event) {
            test.put(name.toUtf8(), newEventComponent(event, name.toUtf8(), world.clock.now()));
            for (const CalendarEvent& stored :
                 test.store().eventsBetween(event.startDate, event.startDate + 1s, calendar).events) {
                if (stored.identifier.contains(u'/' + name)) {
                    return stored.identifier;
                }
            }
            ADD_FAILURE() << scenario.name << ": event " << name.toStdString() << " was not added";
            return name;
        };
        play(scenario, world);
        const EventRange left = test.store().eventsBetween(AlarmWorld::kMidnight - 1000 * 24h,
                                                           AlarmWorld::kMidnight + 1000 * 24h, calendar);
        for (const CalendarEvent& event : left.events) {
            test.erase(uidOf(event));
        }
    }
}

TEST(AlarmScenariosOnCalendars, Folder) {
    FolderCalendar test(kGuide);
    playOn(test);
}

TEST(AlarmScenariosOnCalendars, Local) {
    DesktopCalendar test(u"system-calendar"_s, kGuide);
    playOn(test);
}

TEST(AlarmScenariosOnCalendars, Remote) {
    RemoteCalendar test({}, kGuide);
    // Half of them, because a server is slow.
    playOn(test, 2);
}

} // namespace
} // namespace guide::test
