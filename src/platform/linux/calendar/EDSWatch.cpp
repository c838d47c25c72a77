#include "platform/linux/calendar/EDSWatch.h"

#include "platform/linux/calendar/EDSChanges.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDebug>

#include <chrono>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString kViewInterface = u"org.gnome.evolution.dataserver.CalendarView"_s;
const QString kPropertiesInterface = u"org.freedesktop.DBus.Properties"_s;
const QString kObjectManagerInterface = u"org.freedesktop.DBus.ObjectManager"_s;
/// Of reading the events of one signal.
constexpr auto kLongest = 5s;
/// One report for what arrives together.
constexpr auto kGathering = 100ms;

} // namespace

EDSWatch::EDSWatch(EDSConnection& connection, OwnWrites& writes, std::function<void()> lost,
                   std::function<void()> changed)
    : m_connection(connection)
    , m_writes(writes)
    , m_lost(std::move(lost)) {
    m_services.setConnection(connection.bus());
    m_services.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    m_services.addWatchedService(kEDSCalendarService);
    connect(&m_services, &QDBusServiceWatcher::serviceUnregistered, this, &EDSWatch::serviceEnded);
    m_timer.setSingleShot(true);
    m_timer.setInterval(kGathering);
    connect(&m_timer, &QTimer::timeout, this, std::move(changed));
    for (const QString& signal : {u"InterfacesAdded"_s, u"InterfacesRemoved"_s}) {
        m_connection.bus().connect(kEDSSourcesService, kEDSSourceManagerPath, kObjectManagerInterface, signal,
                                   this, SLOT(sourcesChanged()));
    }
}

EDSWatch::~EDSWatch() {
    for (const EDSObject& view : std::as_const(m_views)) {
        m_connection.send(view, u"Dispose"_s);
    }
}

bool EDSWatch::watch(const QString& identifier, EDSCalendar& calendar, EventReading& reading) {
    if (m_views.contains(identifier)) {
        return true;
    }
    const EDSReply made = calendar.view();
    if (!made.isOk()) {
        return false;
    }
    const EDSObject view{calendar.object().service, made.values.first().value<QDBusObjectPath>().path(),
                         kViewInterface};
    QDBusConnection& bus = m_connection.bus();
    bus.connect(view.service, view.path, kViewInterface, u"ObjectsAdded"_s, this,
                SLOT(objectsChanged(QDBusMessage)));
    bus.connect(view.service, view.path, kViewInterface, u"ObjectsModified"_s, this,
                SLOT(objectsChanged(QDBusMessage)));
    bus.connect(view.service, view.path, kViewInterface, u"ObjectsRemoved"_s, this,
                SLOT(objectsRemoved(QDBusMessage)));
    bus.connect(view.service, calendar.object().path, kPropertiesInterface, u"PropertiesChanged"_s, this,
                SLOT(calendarPropertiesChanged(QDBusMessage)));
    // Without the events that are there already.
    constexpr uint kOnlyChanges = 0;
    if (!m_connection.call(view, u"SetFlags"_s, {kOnlyChanges}).isOk() ||
        !m_connection.call(view, u"Start"_s).isOk()) {
        return false;
    }
    m_views.insert(identifier, view);
    m_calendars.insert(view.path, {identifier, &reading});
    // The process that keeps this calendar may end alone.
    if (!m_services.watchedServices().contains(view.service)) {
        m_services.addWatchedService(view.service);
    }
    return true;
}

void EDSWatch::report() {
    // Not started anew, so that a long row of changes is reported before its end.
    if (!m_timer.isActive()) {
        m_timer.start();
    }
}

void EDSWatch::objectsChanged(const QDBusMessage& signal) {
    const Watched watched = m_calendars.value(signal.path());
    if (watched.reading == nullptr) {
        return;
    }
    // The reading may ask for zones.
    m_connection.beginCalls(kLongest);
    const QStringList components = signal.arguments().value(0).toStringList();
    for (const QString& component : components) {
        const std::optional<EDSEvent> event = edsEvent(component, *watched.reading);
        if (!event || !m_writes.isOwn(watched.identifier, event->stored.uid, event->stored.event)) {
            report();
        }
    }
}

void EDSWatch::objectsRemoved(const QDBusMessage& signal) {
    const QString calendar = m_calendars.value(signal.path()).identifier;
    const QStringList ids = signal.arguments().value(0).toStringList();
    for (const QString& id : ids) {
        // The part after a line end names an occurrence.
        if (!m_writes.isOwn(calendar, id.section(u'\n', 0, 0).toUtf8(), std::nullopt)) {
            report();
        }
    }
}

void EDSWatch::sourcesChanged() {
    report();
}

void EDSWatch::calendarPropertiesChanged(const QDBusMessage& signal) {
    const QVariantMap changed = qdbus_cast<QVariantMap>(signal.arguments().value(1));
    if (changed.contains(u"Writable"_s) || changed.contains(u"Online"_s)) {
        report();
    }
}

void EDSWatch::serviceEnded(const QString& service) {
    qInfo().noquote() << "the calendar service has ended; its calendars are opened again:" << service;
    for (const EDSObject& view : std::as_const(m_views)) {
        if (view.service != service) {
            m_connection.send(view, u"Dispose"_s);
        }
    }
    m_views.clear();
    m_calendars.clear();
    m_services.setWatchedServices({kEDSCalendarService});
    m_lost();
    report();
}

} // namespace guide
