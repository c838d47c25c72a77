#pragma once

#include "agent/CalendarReader.h"
#include "agent/GuideProgram.h"
#include "agent/Notifications.h"
#include "agent/RingSchedule.h"
#include "agent/RungAlarms.h"
#include "agent/WallClockTimer.h"
#include "platform/Clock.h"
#include "platform/Device.h"

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <optional>

namespace guide {

struct GuideAgentOptions {
    EventStoreOptions calendars;
    /// Keeps which alarms have rung.
    QString recordPath;
    /// Says which channels have a stream.
    QString playableChannels;
    /// Of the guide that is opened; empty for the usual one.
    QString profile;
};

/// Rings the alarms of the guide by notifications of the desktop. Main thread.
class GuideAgent final : public QObject {
  public:
    GuideAgent(const QDBusConnection& bus, const Clock& clock, const Device& device,
               const GuideAgentOptions& options);

  private:
    void calendarsRead(CalendarReading reading);
    /// Rings what is due, and sets the timer for what comes next.
    void ring();
    void show(const Ring& ring);
    /// The number of the notification; nothing when it was not shown.
    void wasShown(const Ring& ring, std::optional<unsigned> number);
    void chosen(unsigned number, const QString& action, const QString& token);
    void watchOtherReminder();
    /// Whether the reminder of the desktop may still start and ring what was missed before this agent
    /// started.
    bool mayRingElsewhere(const Ring& ring) const;
    void save();

    QDBusConnection m_bus;
    const Clock& m_clock;
    const Device& m_device;
    const QString m_recordPath;
    const QString m_playableChannels;
    const Moment m_started;
    QDeadlineTimer m_login;
    RungAlarms m_rung;
    /// Unset before the first reading.
    std::optional<CalendarReading> m_calendars;
    /// Whether the reminder of the desktop runs; unset before that is known.
    std::optional<bool> m_otherRings;
    /// By the number of the notification.
    QHash<unsigned, RingEvent> m_shown;
    /// After a failure.
    QTimer m_retryReading;
    QTimer m_retryRinging;
    std::chrono::milliseconds m_pause;
    /// Before the notification server is asked again for what it has refused.
    std::chrono::milliseconds m_refusalPause;

    GuideProgram m_guide;
    WallClockTimer m_timer;
    Notifications m_notifications;
    QDBusServiceWatcher m_otherReminder;
    CalendarReader m_reader;
};

} // namespace guide
