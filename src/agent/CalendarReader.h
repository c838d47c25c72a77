#pragma once

#include "agent/RingSchedule.h"
#include "platform/Clock.h"
#include "platform/linux/calendar/EventStoreChoice.h"

#include <QObject>
#include <QThread>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace guide {

/// What the calendars say.
struct CalendarReading {
    RingEvents events;
    /// They are those of the desktop, which may have another program that rings.
    bool isOfDesktop = false;
    /// At least one could not be read; its events are those of the last time.
    bool isIncomplete = false;
};

/// Reads the calendars on a thread of its own, which may wait for services. Main thread.
class CalendarReader {
  public:
    /// `read` is called on the main thread after each reading, and `changed` when another program, another
    /// device or the guide has changed something.
    CalendarReader(EventStoreOptions options, const Clock& clock, std::function<void(CalendarReading)> read,
                   std::function<void()> changed);
    CalendarReader(const CalendarReader&) = delete;
    CalendarReader& operator=(const CalendarReader&) = delete;
    /// Waits for a running reading.
    ~CalendarReader();

    /// Reads once more after a running reading, however often it is called meanwhile.
    void readAgain();

  private:
    class Worker;

    void ended(CalendarReading reading);

    const std::function<void(CalendarReading)> m_read;
    /// Any thread.
    std::function<void()> m_changed;
    /// Posted functions run on the main thread while it exists.
    QObject m_context;
    QThread m_thread;
    /// Lives on the thread.
    Worker* m_worker;
    bool m_isReading = false;
    bool m_isWanted = false;
};

} // namespace guide
