#include "alarms/CalendarEvents.h"

#include "alarms/GuideEvents.h"

namespace guide {

void CalendarEvents::add(const CalendarEvent& event, const QString& scheme) {
    if (scheme.isEmpty() || !isOfGuide(event, scheme) || event.url->host().isEmpty()) {
        return;
    }
    if (event.identifier.isEmpty()) {
        m_events.remove(*event.url);
    } else {
        m_events.insert(*event.url, event.identifier);
    }
}

void CalendarEvents::removeWithIdentifier(const QString& identifier) {
    for (auto event = m_events.cbegin(); event != m_events.cend(); ++event) {
        if (*event == identifier) {
            m_events.erase(event);
            return;
        }
    }
}

} // namespace guide
