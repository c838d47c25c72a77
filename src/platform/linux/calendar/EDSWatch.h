#pragma once

#include "platform/linux/calendar/EDSCalendar.h"
#include "platform/linux/calendar/EventReading.h"
#include "platform/linux/calendar/OwnWrites.h"

#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <functional>

namespace guide {

/// Reports changes that others make to calendars, to the list of calendars, and to whether they can be
/// written. Needs the event loop of its thread.
class EDSWatch final : public QObject {
    Q_OBJECT

  public:
    /// `lost` is called when a process of the service has ended, before `changed`; no calendar is watched
    /// then.
    EDSWatch(EDSConnection& connection, OwnWrites& writes, std::function<void()> lost,
             std::function<void()> changed);
    ~EDSWatch() override;

    /// Does nothing for a calendar that is watched. False when it cannot be. The reading must outlive the
    /// watch.
    bool watch(const QString& identifier, EDSCalendar& calendar, EventReading& reading);
    /// Calls `changed` soon, once for all that is reported until then.
    void report();

  private Q_SLOTS:
    void objectsChanged(const QDBusMessage& signal);
    void objectsRemoved(const QDBusMessage& signal);
    void sourcesChanged();
    void calendarPropertiesChanged(const QDBusMessage& signal);

  private:
    struct Watched {
        QString identifier;
        EventReading* reading = nullptr;
    };

    void serviceEnded(const QString& service);

    EDSConnection& m_connection;
    OwnWrites& m_writes;
    const std::function<void()> m_lost;
    QDBusServiceWatcher m_services;
    QTimer m_timer;
    /// Calendars by the paths of their views.
    QHash<QString, Watched> m_calendars;
    /// By calendar.
    QHash<QString, EDSObject> m_views;
};

} // namespace guide
