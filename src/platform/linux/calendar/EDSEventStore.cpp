#include "platform/linux/calendar/EDSEventStore.h"

#include "platform/linux/calendar/CalendarColor.h"
#include "platform/linux/calendar/EDSChanges.h"
#include "platform/linux/calendar/EDSWatch.h"

#include <QSet>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using SteadyClock = std::chrono::steady_clock;

/// Of one function.
constexpr auto kLongest = 28s;
/// Of opening one calendar while all are listed.
constexpr auto kLongestOpening = 5s;
/// How often a calendar that was just made is tried.
constexpr std::chrono::milliseconds kOpeningInterval = 20ms;
/// How long after an attempt to watch all calendars the next one is made; twice as long after each that
/// failed.
constexpr SteadyClock::duration kRewatchInterval = 5s;
constexpr SteadyClock::duration kLongestRewatchInterval = 80s;
const QString kPersonalCalendar = u"system-calendar"_s;

/// The calendar and the UID of an event's identifier.
std::pair<QString, QByteArray> parts(const QString& identifier) {
    const qsizetype slash = identifier.indexOf(u'/');
    return {identifier.left(slash), slash < 0 ? QByteArray() : identifier.mid(slash + 1).toUtf8()};
}

CalendarEvent calendarEvent(const QString& calendar, EDSEvent found) {
    CalendarEvent event = std::move(found.stored.event);
    event.identifier = calendar + u'/' + QString::fromUtf8(found.stored.uid);
    event.calendar = calendar;
    event.revision = found.revision;
    return event;
}

} // namespace

/// Everything happens here, on the store's thread.
class EDSEventStore::Worker final : public QObject {
  public:
    Worker(const QString& busAddress, const QString& scheme, const Clock& clock)
        : m_clock(clock)
        , m_connection(busAddress)
        , m_scheme(scheme) {}

    bool isConnected() const { return m_connection.isConnected(); }

    std::optional<std::vector<EventCalendar>> calendars() {
        m_connection.beginCalls(kLongest);
        const std::optional<std::vector<EDSSource>> sources = edsSources(m_connection);
        if (!sources) {
            return std::nullopt;
        }
        std::vector<EventCalendar> calendars;
        for (const EDSSource& source : *sources) {
            calendars.push_back(calendar(source));
        }
        return calendars;
    }

    std::optional<EventCalendar> create(const QString& title) {
        m_connection.beginCalls(kLongest);
        const QString uid = createEDSSource(m_connection, title);
        const std::vector<EDSSource> sources = edsSources(m_connection).value_or(std::vector<EDSSource>{});
        const auto made = std::ranges::find(sources, uid, &EDSSource::uid);
        if (uid.isEmpty() || made == sources.end()) {
            return std::nullopt;
        }
        waitUntilKnown(uid);
        return calendar(*made);
    }

    void refresh() {
        for (auto& [identifier, open] : m_calendars) {
            open.calendar.refresh();
        }
    }

    EventRange events(Moment start, Moment end, const QString& identifier) {
        m_connection.beginCalls(kLongest);
        Open& open = opened(identifier);
        open.isUsed = true;
        if (!watch(identifier, open)) {
            watchAgain();
        }
        const EDSReply reply = open.calendar.list(start, end);
        if (!reply.isOk()) {
            return {.events = {}, .fault = reply.error->message};
        }
        EventRange range;
        const QStringList components = reply.values.value(0).toStringList();
        for (const QString& component : components) {
            if (std::optional<EDSEvent> found = edsEvent(component, open.reading)) {
                range.events.push_back(calendarEvent(identifier, std::move(*found)));
            }
        }
        keepBetween(start, end, range.events);
        return range;
    }

    std::optional<CalendarEvent> eventWithIdentifier(const QString& identifier) {
        m_connection.beginCalls(kLongest);
        const auto [calendar, uid] = parts(identifier);
        Open& open = opened(calendar);
        const EDSReply reply = open.calendar.get(uid);
        std::optional<EDSEvent> found = reply.isOk() ? edsEvent(reply.text(), open.reading) : std::nullopt;
        return found ? std::optional(calendarEvent(calendar, std::move(*found))) : std::nullopt;
    }

    std::vector<EventOutcome> apply(const std::vector<EventChange>& changes) {
        m_connection.beginCalls(kLongest);
        std::vector<EventOutcome> outcomes(changes.size());
        // By calendar and kind: the service has a call for each kind.
        std::map<std::pair<QString, int>, std::vector<EDSChange>> groups;
        QSet<QString> seen;
        const auto flush = [&] {
            for (auto& [group, list] : groups) {
                make(group.first, static_cast<EDSChanges::Kind>(group.second), list);
            }
            groups.clear();
            seen.clear();
        };
        for (std::size_t i = 0; i < changes.size(); ++i) {
            const CalendarEvent& event = std::visit(
                [](const auto& change) -> const CalendarEvent& { return change.event; }, changes[i]);
            const bool isNew = event.identifier.isEmpty();
            auto [calendar, uid] = parts(event.identifier);
            if (!isNew && seen.contains(event.identifier)) {
                flush();
            }
            seen.insert(event.identifier);
            const bool isRemoval = std::holds_alternative<RemoveEvent>(changes[i]);
            const EDSChanges::Kind kind = isRemoval ? EDSChanges::Kind::Remove
                                          : isNew   ? EDSChanges::Kind::Create
                                                    : EDSChanges::Kind::Save;
            outcomes[i].identifier = event.identifier;
            groups[{isNew ? event.calendar : calendar, static_cast<int>(kind)}].push_back(
                {event, uid, &outcomes[i]});
        }
        flush();
        for (EventOutcome& outcome : outcomes) {
            if (outcome.fault) {
                outcome.identifier.clear();
            }
        }
        return outcomes;
    }

    /// Any thread; does not wait for other work.
    void setChanged(std::function<void()> changed) {
        const std::lock_guard lock(m_changedMutex);
        m_changed = std::move(changed);
    }

    /// Watches while there is somebody to call.
    void followChanges() {
        const bool isWanted = [this] {
            const std::lock_guard lock(m_changedMutex);
            return m_changed != nullptr;
        }();
        if (!isWanted) {
            m_watch.reset();
        } else if (m_watch == nullptr) {
            m_watch = std::make_unique<EDSWatch>(
                m_connection, m_writes, [this] { serviceEnded(); }, [this] { announce(); });
            m_connection.beginCalls(kLongestOpening);
            if (!watchAll()) {
                watchAgain();
            }
        }
    }

  private:
    struct Open {
        Open(EDSConnection& connection, const QString& identifier, const QString& scheme)
            : calendar(connection, identifier)
            , reading(scheme, [this](const QByteArray& name) { return timezone(name); }) {}

        /// As ICalendarZones::LookUp.
        std::optional<QByteArray> timezone(const QByteArray& name) {
            const EDSReply reply = calendar.timezone(name);
            if (reply.isOk()) {
                return reply.text().toUtf8();
            }
            return reply.error->fault == EventFault::Unavailable ? std::nullopt : std::optional(QByteArray());
        }

        EDSCalendar calendar;
        /// Each calendar has zones of its own.
        EventReading reading;
        /// The events were read.
        bool isUsed = false;
    };

    Open& opened(const QString& identifier) {
        return m_calendars.try_emplace(identifier, m_connection, identifier, m_scheme).first->second;
    }

    /// The process that opens calendars hears of a new one a little later than we do.
    void waitUntilKnown(const QString& uid) {
        const SteadyClock::time_point latest = SteadyClock::now() + kLongestOpening;
        while (opened(uid).calendar.open(kLongestOpening) && SteadyClock::now() < latest) {
            QThread::msleep(kOpeningInterval.count());
        }
    }

    EventCalendar calendar(const EDSSource& source) {
        EventCalendar calendar{.identifier = source.uid, .title = source.title, .source = source.account};
        calendar.color = calendarColor(source.color).value_or(calendar.color);
        if (source.isReadOnlyKind()) {
            return calendar;
        }
        EDSCalendar& open = opened(source.uid).calendar;
        if (source.needsUser() || open.open(kLongestOpening)) {
            calendar.state = CalendarState::Unavailable;
        } else if (!source.isLocal() &&
                   (source.isDisconnected() || !open.isReachable() || !open.isOnline())) {
            calendar.state = CalendarState::Offline;
        }
        // A calendar whose server cannot be reached stays the chosen one.
        calendar.allowsContentModifications =
            calendar.state == CalendarState::Ready ? open.isWritable() : !source.isLocal();
        return calendar;
    }

    void make(const QString& identifier, EDSChanges::Kind kind, const std::vector<EDSChange>& changes) {
        Open& open = opened(identifier);
        EDSChanges(open.calendar, identifier, open.reading, m_writes, m_clock.now()).make(kind, changes);
    }

    void announce() {
        const std::lock_guard lock(m_changedMutex);
        if (m_changed != nullptr) {
            m_changed();
        }
    }

    /// False when it should be watched and cannot be.
    bool watch(const QString& identifier, Open& open) {
        return m_watch == nullptr || m_watch->watch(identifier, open.calendar, open.reading);
    }

    /// Those whose events were read.
    bool watchAll() {
        bool isComplete = true;
        for (auto& [identifier, open] : m_calendars) {
            isComplete = (!open.isUsed || watch(identifier, open)) && isComplete;
        }
        return isComplete;
    }

    /// Soon, and until it succeeds.
    void watchAgain() {
        if (std::exchange(m_isRewatchPlanned, true)) {
            return;
        }
        const auto wait =
            std::max(m_lastRewatch + m_rewatchInterval - SteadyClock::now(), SteadyClock::duration(0));
        QTimer::singleShot(std::chrono::ceil<std::chrono::milliseconds>(wait), this, [this] {
            m_isRewatchPlanned = false;
            m_lastRewatch = SteadyClock::now();
            m_connection.beginCalls(kLongestOpening);
            if (!watchAll()) {
                m_rewatchInterval = std::min(2 * m_rewatchInterval, kLongestRewatchInterval);
                watchAgain();
                return;
            }
            m_rewatchInterval = kRewatchInterval;
            // Changes made before were not seen.
            if (m_watch != nullptr) {
                m_watch->report();
            }
        });
    }

    void serviceEnded() {
        for (auto& [identifier, open] : m_calendars) {
            open.calendar.close();
        }
        watchAgain();
    }

    const Clock& m_clock;
    EDSConnection m_connection;
    const QString m_scheme;
    OwnWrites m_writes;
    std::map<QString, Open> m_calendars;
    std::unique_ptr<EDSWatch> m_watch;
    SteadyClock::time_point m_lastRewatch;
    SteadyClock::duration m_rewatchInterval = kRewatchInterval;
    bool m_isRewatchPlanned = false;

    /// Held while the function is called.
    std::mutex m_changedMutex;
    std::function<void()> m_changed;
};

EDSEventStore::EDSEventStore(const QString& busAddress, const QString& scheme, const Clock& clock) {
    m_thread.setObjectName(u"calendars"_s);
    m_thread.start();
    auto* starter = new QObject;
    starter->moveToThread(&m_thread);
    QMetaObject::invokeMethod(
        starter,
        [&] {
            m_worker = new Worker(busAddress, scheme, clock);
            starter->deleteLater();
        },
        Qt::BlockingQueuedConnection);
    QObject::connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
}

EDSEventStore::~EDSEventStore() {
    m_thread.quit();
    m_thread.wait();
}

template <typename Work>
auto EDSEventStore::run(Work work) const {
    decltype(work()) result{};
    QMetaObject::invokeMethod(m_worker, [&] { result = work(); }, Qt::BlockingQueuedConnection);
    return result;
}

CalendarAccess EDSEventStore::access() {
    return run([this] { return m_worker->isConnected(); }) ? CalendarAccess::Granted
                                                           : CalendarAccess::Refused;
}

void EDSEventStore::requestAccess(std::function<void(bool granted)> completion) {
    completion(access() == CalendarAccess::Granted);
}

std::optional<std::vector<EventCalendar>> EDSEventStore::calendars() {
    return run([this] { return m_worker->calendars(); });
}

std::optional<EventCalendar> EDSEventStore::defaultCalendarForNewEvents() {
    const std::optional<std::vector<EventCalendar>> all = calendars();
    if (!all) {
        return std::nullopt;
    }
    const auto isUsable = [](const EventCalendar& calendar) {
        return calendar.allowsContentModifications && calendar.state == CalendarState::Ready;
    };
    const auto personal = std::ranges::find(*all, kPersonalCalendar, &EventCalendar::identifier);
    if (personal != all->end() && isUsable(*personal)) {
        return *personal;
    }
    // One that opens slowly may be the default as soon as it is open.
    if (std::ranges::find(*all, CalendarState::Unavailable, &EventCalendar::state) != all->end()) {
        return std::nullopt;
    }
    const auto first = std::ranges::find_if(*all, isUsable);
    return first == all->end() ? createCalendar(u"TV"_s) : std::optional(*first);
}

std::optional<EventCalendar> EDSEventStore::createCalendar(const QString& title) {
    return run([&] { return m_worker->create(title); });
}

void EDSEventStore::refreshSources() {
    QMetaObject::invokeMethod(m_worker, [worker = m_worker] { worker->refresh(); }, Qt::QueuedConnection);
}

EventRange EDSEventStore::eventsBetween(Moment start, Moment end, const EventCalendar& calendar) {
    return run([&] { return m_worker->events(start, end, calendar.identifier); });
}

std::optional<CalendarEvent> EDSEventStore::eventWithIdentifier(const QString& identifier) {
    return run([&] { return m_worker->eventWithIdentifier(identifier); });
}

std::vector<EventOutcome> EDSEventStore::apply(const std::vector<EventChange>& changes) {
    return run([&] { return m_worker->apply(changes); });
}

void EDSEventStore::setCalendarsChanged(std::function<void()> calendarsChanged) {
    m_worker->setChanged(std::move(calendarsChanged));
    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker] { worker->followChanges(); }, Qt::QueuedConnection);
}

QString EDSEventStore::name() const {
    return u"Calendars of the desktop"_s;
}

} // namespace guide
