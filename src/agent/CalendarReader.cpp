#include "agent/CalendarReader.h"

#include "platform/linux/calendar/FolderEventStore.h"

#include <QDebug>
#include <QHash>

#include <iterator>
#include <malloc.h>
#include <utility>

namespace guide {

class CalendarReader::Worker final : public QObject {
  public:
    Worker(EventStoreOptions options, const Clock& clock)
        : m_options(std::move(options))
        , m_clock(clock) {}
    ~Worker() override {
        if (m_store) {
            m_store->setCalendarsChanged({});
        }
    }

    CalendarReading read(const std::function<void()>& changed) {
        if (!m_store) {
            m_store = eventStoreFor(m_options, m_clock);
            qInfo("calendars: %s", qUtf8Printable(m_store->name()));
            m_store->setCalendarsChanged(changed);
        }
        CalendarReading reading;
        reading.isOfDesktop = guide::isOfDesktop(*m_store);
        // A store of folders remembers all events that it has read, so another one reads than the one that
        // watches.
        const std::unique_ptr<EventStore> reader =
            reading.isOfDesktop
                ? nullptr
                : std::make_unique<FolderEventStore>(m_options.folder, m_options.scheme, m_clock);
        readInto(reading, reader ? *reader : *m_store);
        return reading;
    }

  private:
    void readInto(CalendarReading& reading, EventStore& store) {
        const Moment now = m_clock.now();
        const RingRange range = ringRange(now);
        QHash<QString, std::vector<RingEvent>> byCalendar;
        reading.events = ringEvents({}, m_options.scheme, now);
        const std::optional<std::vector<EventCalendar>> calendars = store.calendars();
        reading.isIncomplete = !calendars;
        for (const EventCalendar& calendar : calendars.value_or(std::vector<EventCalendar>{})) {
            const EventRange found = store.eventsBetween(range.start, range.end, calendar);
            if (found.fault) {
                qWarning("\"%s\" cannot be read: %s", qUtf8Printable(calendar.title),
                         qUtf8Printable(*found.fault));
                reading.isIncomplete = true;
                byCalendar.insert(calendar.identifier, m_last.value(calendar.identifier));
                continue;
            }
            RingEvents events = ringEvents(found.events, m_options.scheme, now);
            reading.events.readAgain = std::min(reading.events.readAgain, events.readAgain);
            byCalendar.insert(calendar.identifier, std::move(events.events));
        }
        if (calendars) {
            m_last = std::move(byCalendar);
        }
        for (const std::vector<RingEvent>& events : std::as_const(m_last)) {
            std::ranges::copy(events, std::back_inserter(reading.events.events));
        }
    }

    const EventStoreOptions m_options;
    const Clock& m_clock;
    std::unique_ptr<EventStore> m_store;
    /// Of each calendar.
    QHash<QString, std::vector<RingEvent>> m_last;
};

CalendarReader::CalendarReader(EventStoreOptions options, const Clock& clock,
                               std::function<void(CalendarReading)> read, std::function<void()> changed)
    : m_read(std::move(read))
    , m_worker(new Worker(std::move(options), clock)) {
    m_changed = [this, changed = std::move(changed)] {
        QMetaObject::invokeMethod(&m_context, changed, Qt::QueuedConnection);
    };
    m_worker->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread.start();
}

CalendarReader::~CalendarReader() {
    m_thread.quit();
    m_thread.wait();
}

void CalendarReader::readAgain() {
    if (std::exchange(m_isReading, true)) {
        m_isWanted = true;
        return;
    }
    QMetaObject::invokeMethod(
        m_worker,
        [this] {
            QMetaObject::invokeMethod(
                &m_context,
                [this, reading = m_worker->read(m_changed)]() mutable { ended(std::move(reading)); },
                Qt::QueuedConnection);
            // The texts of all events are no longer needed.
            ::malloc_trim(0);
        },
        Qt::QueuedConnection);
}

void CalendarReader::ended(CalendarReading reading) {
    m_isReading = false;
    m_read(std::move(reading));
    if (std::exchange(m_isWanted, false)) {
        readAgain();
    }
}

} // namespace guide
