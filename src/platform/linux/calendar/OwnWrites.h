#pragma once

#include "platform/linux/calendar/EventReading.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

namespace guide {

/// What the guide wrote lately, so that its own changes are recognised when the service reports them, which
/// may be after later changes. One thread.
class OwnWrites {
  public:
    void saved(const QString& calendar, const StoredEvent& event) { put(calendar, event.uid, event.event); }
    void removed(const QString& calendar, const QByteArray& uid) { put(calendar, uid, std::nullopt); }

    /// Whether a reported state is what the guide wrote. Forgets earlier states, and all of them when it is
    /// not: the same state may then come from somebody who restores it.
    bool isOwn(const QString& calendar, const QByteArray& uid, const std::optional<CalendarEvent>& now) {
        const auto found = m_written.find({calendar, uid});
        if (found == m_written.end()) {
            return false;
        }
        const qsizetype at = found->indexOf(now);
        if (at < 0) {
            m_written.erase(found);
            return false;
        }
        found->remove(0, at);
        return true;
    }

  private:
    /// Without identifier, calendar and revision; unset when it was removed.
    using State = std::optional<CalendarEvent>;

    static constexpr qsizetype kMostEvents = 20'000;
    static constexpr qsizetype kMostStates = 8;

    void put(const QString& calendar, const QByteArray& uid, const State& state) {
        if (m_written.size() >= kMostEvents) {
            m_written.clear();
        }
        QList<State>& states = m_written[{calendar, uid}];
        if (states.size() == kMostStates) {
            states.removeFirst();
        }
        states << state;
    }

    /// The states that have not been followed by a later one in the reports.
    QHash<std::pair<QString, QByteArray>, QList<State>> m_written;
};

} // namespace guide
