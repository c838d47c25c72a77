#include "agent/RingSchedule.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace std::chrono_literals;

namespace {

/// Events that ring later than this from now are left out until the calendars are read again.
constexpr auto kHorizon = 26h;
constexpr auto kReadAhead = 1h;
/// How far the calendars are read, and how often at least. An alert may precede its event by the difference.
constexpr auto kReach = 24h * 60;
constexpr auto kLongestPause = 24h * 14;
/// Of an event without an end.
constexpr auto kUsualLength = 1h;
constexpr std::size_t kMostAlerts = 16;

bool isOfGuide(const CalendarEvent& event, const QString& scheme) {
    return event.url && event.url->scheme() == scheme;
}

Moment endOf(const CalendarEvent& event) {
    return event.endDate && *event.endDate > event.startDate ? *event.endDate
                                                             : event.startDate + kUsualLength;
}

} // namespace

RingRange ringRange(Moment now) {
    return {now - kUsualLength, now + kReach};
}

RingEvents ringEvents(const std::vector<CalendarEvent>& events, const QString& scheme, Moment now) {
    RingEvents result{{}, now + kLongestPause};
    for (const CalendarEvent& event : events) {
        if (!isOfGuide(event, scheme) || !event.hasAlarms() || endOf(event) <= now) {
            continue;
        }
        RingEvent ring{.names = {event.identifier, event.url->toString()},
                       .title = event.title,
                       .channel = event.location,
                       .start = event.startDate,
                       .end = endOf(event),
                       .alerts = {}};
        for (const std::chrono::seconds offset : event.alarmOffsets) {
            if (ring.alerts.size() < kMostAlerts) {
                ring.alerts.push_back(event.startDate + offset);
            }
        }
        const Moment first = *std::ranges::min_element(ring.alerts);
        if (first < now + kHorizon) {
            result.events.push_back(std::move(ring));
        } else {
            result.readAgain = std::min(result.readAgain, first - kReadAhead);
        }
    }
    std::ranges::stable_sort(result.events, {}, &RingEvent::start);
    return result;
}

RingPlan ringPlan(const RingEvents& events, const RungAlarms& rung, Moment now) {
    RingPlan plan;
    const auto isDue = [&plan](const RingEvent& event, Moment at) {
        return std::ranges::any_of(plan.due, [&](const Ring& other) {
            return other.event.names.url == event.names.url &&
                   std::ranges::find(other.alerts, at) != other.alerts.end();
        });
    };
    for (const RingEvent& event : events.events) {
        if (event.end <= now) {
            continue;
        }
        Ring ring{event, {}, rung.remindsAtStart(event.names)};
        std::vector<Moment> alerts = event.alerts;
        if (ring.hasReminder) {
            alerts.push_back(event.start);
        }
        std::ranges::sort(alerts);
        const auto repeated = std::ranges::unique(alerts);
        alerts.erase(repeated.begin(), repeated.end());
        for (const Moment at : alerts) {
            // A copy in another calendar does not ring again.
            if (rung.hasRung(event.names, at) || isDue(event, at)) {
                continue;
            }
            if (at > now) {
                plan.next = std::min(plan.next.value_or(at), at);
            } else {
                ring.alerts.push_back(at);
            }
        }
        if (!ring.alerts.empty()) {
            plan.due.push_back(std::move(ring));
        }
    }
    return plan;
}

void setRung(RungAlarms& rung, const Ring& ring) {
    for (const Moment at : ring.alerts) {
        rung.setRung(ring.event.names, at);
    }
    if (!ring.alerts.empty() && ring.alerts.back() >= ring.event.start) {
        rung.setRemindsAtStart(ring.event.names, false);
    }
}

void setNotRung(RungAlarms& rung, const Ring& ring) {
    for (const Moment at : ring.alerts) {
        rung.setNotRung(ring.event.names, at);
    }
    if (ring.hasReminder) {
        rung.setRemindsAtStart(ring.event.names, true);
    }
}

} // namespace guide
