#pragma once

#include "platform/linux/calendar/EventReading.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <utility>

namespace guide {

/// What the guide wrote last, so that its own changes are recognised when the service reports them. One
/// thread.
class OwnWrites {
  public:
    void saved(const QString& calendar, const StoredEvent& event) { put(calendar, event.uid, event.event); }
    void removed(const QString& calendar, const QByteArray& uid) { put(calendar, uid, std::nullopt); }

    /// Whether a reported state is what the guide wrote. Forgets what it wrote when it is not.
    bool isOwn(const QString& calendar, const QByteArray& uid, const std::optional<CalendarEvent>& now) {
        const auto found = m_written.constFind({calendar, uid});
        if (found == m_written.constEnd()) {
            return false;
        }
        const bool isSame = *found == now;
        if (!isSame) {
            m_written.erase(found);
        }
        return isSame;
    }

  private:
    static constexpr qsizetype kMost = 20'000;

    void put(const QString& calendar, const QByteArray& uid, const std::optional<CalendarEvent>& state) {
        if (m_written.size() >= kMost) {
            m_written.clear();
        }
        m_written.insert({calendar, uid}, state);
    }

    /// Without identifier, calendar and revision; unset when it was removed.
    QHash<std::pair<QString, QByteArray>, std::optional<CalendarEvent>> m_written;
};

} // namespace guide
