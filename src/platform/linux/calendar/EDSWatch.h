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
    /// `lost` is called when the service has ended, before `changed`.
    EDSWatch(EDSConnection& connection, EventReading& reading, OwnWrites& writes, std::function<void()> lost,
             std::function<void()> changed);
    ~EDSWatch() override;

    /// Does nothing for a calendar that is watched. False when it cannot be.
    bool watch(const QString& identifier, EDSCalendar& calendar);

  private Q_SLOTS:
    void objectsChanged(const QDBusMessage& signal);
    void objectsRemoved(const QDBusMessage& signal);
    void sourcesChanged();
    void calendarPropertiesChanged(const QDBusMessage& signal);

  private:
    void serviceEnded();

    EDSConnection& m_connection;
    EventReading& m_reading;
    OwnWrites& m_writes;
    const std::function<void()> m_lost;
    QDBusServiceWatcher m_services;
    QTimer m_timer;
    /// Calendars by the paths of their views.
    QHash<QString, QString> m_calendars;
    /// Services and paths of the views.
    QHash<QString, EDSObject> m_views;
};

} // namespace guide
