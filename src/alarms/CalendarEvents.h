#pragma once

#include "platform/calendar/EventStore.h"

#include <QHash>
#include <QString>
#include <QUrl>

#include <cstddef>

namespace guide {

/// The events of the broadcasts to come: the identifier of each event by the URL of its show.
class CalendarEvents {
  public:
    std::size_t eventCount() const { return static_cast<std::size_t>(m_events.size()); }
    const QHash<QUrl, QString>& events() const { return m_events; }

    /// Only an event with a URL of the scheme counts. Of two events of one show the later call wins; one
    /// without an identifier removes what was there.
    void add(const CalendarEvent& event, const QString& scheme);
    /// Removes one entry with the identifier.
    void removeWithIdentifier(const QString& identifier);

  private:
    QHash<QUrl, QString> m_events;
};

} // namespace guide
