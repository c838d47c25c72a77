#include "platform/linux/calendar/EDSCalendar.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDateTime>
#include <QStringList>
#include <QThread>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

/// An event's UID and, empty for all of a repeated event, that of an occurrence.
struct EDSObjectId {
    QString uid;
    QString occurrence;
};

QDBusArgument& operator<<(QDBusArgument& argument, const EDSObjectId& id) {
    argument.beginStructure();
    argument << id.uid << id.occurrence;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, EDSObjectId& id) {
    argument.beginStructure();
    argument >> id.uid >> id.occurrence;
    argument.endStructure();
    return argument;
}

namespace {

/// Fails instead of overwriting what was changed on the server meanwhile.
constexpr uint kFailOnConflict = 1;
constexpr int kLooks = 10;
constexpr std::chrono::milliseconds kLookInterval{50};
/// All of a repeated event.
const QString kAll = u"all"_s;

QStringList texts(const QList<QByteArray>& components) {
    QStringList list;
    for (const QByteArray& component : components) {
        list << QString::fromUtf8(component);
    }
    return list;
}

/// Of the years that the service can compute with.
QString queryTime(Moment moment) {
    constexpr Moment kFirst = std::chrono::sys_days(std::chrono::year(1970) / 1 / 2);
    constexpr Moment kLast = std::chrono::sys_days(std::chrono::year(2200) / 1 / 1);
    return QDateTime::fromMSecsSinceEpoch(std::clamp(moment, kFirst, kLast).time_since_epoch().count(),
                                          Qt::UTC)
        .toString(u"yyyyMMdd'T'HHmmss'Z'"_s);
}

} // namespace

std::optional<EDSError> EDSCalendar::open(std::chrono::milliseconds longest) {
    if (SteadyClock::now() < m_leftAloneUntil) {
        return EDSError{.fault = EventFault::Unavailable, .message = u"the calendar does not answer"_s};
    }
    if (isOpen()) {
        return std::nullopt;
    }
    const EDSObject factory{kEDSCalendarService, u"/org/gnome/evolution/dataserver/CalendarFactory"_s,
                            u"org.gnome.evolution.dataserver.CalendarFactory"_s};
    EDSReply reply = m_connection.call(factory, u"OpenCalendar"_s, {m_sourceUid}, longest);
    const EDSObject object{reply.values.value(1).toString(), reply.text(),
                           u"org.gnome.evolution.dataserver.Calendar"_s};
    if (reply.isOk()) {
        reply = m_connection.call(object, u"Open"_s, {}, longest);
    }
    note(reply.error);
    if (!reply.isOk()) {
        reply.error->fault = EventFault::Unavailable;
        return reply.error;
    }
    m_object = object;
    // A calendar on a server may be read-only at first, until its server has answered.
    for (int look = 0; look < kLooks && !isWritable(); ++look) {
        QThread::msleep(kLookInterval.count());
    }
    return std::nullopt;
}

bool EDSCalendar::isWritable() {
    return m_connection.property(m_object, u"Writable"_s).value_or(false).toBool();
}

bool EDSCalendar::isOnline() {
    return m_connection.property(m_object, u"Online"_s).value_or(false).toBool();
}

void EDSCalendar::note(const std::optional<EDSError>& error) {
    m_isReachable = !error || error->fault != EventFault::Unavailable;
    if (error && error->isLate) {
        m_leftAloneUntil = SteadyClock::now() + m_leftAloneFor;
    }
}

EDSReply EDSCalendar::call(const QString& member, const QVariantList& arguments) {
    return calls(member, {arguments}).first();
}

QList<EDSReply> EDSCalendar::calls(const QString& member, const QList<QVariantList>& arguments) {
    QList<EDSReply> replies;
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (const std::optional<EDSError> error = open()) {
            replies = QList<EDSReply>(arguments.size(), EDSReply{.values = {}, .error = error});
        } else {
            replies = m_connection.calls(m_object, member, arguments);
            note(replies.last().error);
        }
        if (std::ranges::none_of(replies,
                                 [](const EDSReply& reply) { return reply.error && reply.error->isGone; })) {
            break;
        }
        close();
    }
    return replies;
}

EDSReply EDSCalendar::create(const QList<QByteArray>& components) {
    return call(u"CreateObjects"_s, {texts(components), kFailOnConflict});
}

EDSReply EDSCalendar::modify(const QList<QByteArray>& components) {
    return call(u"ModifyObjects"_s, {texts(components), kAll, kFailOnConflict});
}

EDSReply EDSCalendar::remove(const QList<QByteArray>& uids) {
    qDBusRegisterMetaType<EDSObjectId>();
    qDBusRegisterMetaType<QList<EDSObjectId>>();
    QList<EDSObjectId> ids;
    for (const QByteArray& uid : uids) {
        ids.append({QString::fromUtf8(uid), QString()});
    }
    return call(u"RemoveObjects"_s, {QVariant::fromValue(ids), kAll, kFailOnConflict});
}

QList<EDSReply> EDSCalendar::get(const QList<QByteArray>& uids) {
    QList<QVariantList> arguments;
    for (const QByteArray& uid : uids) {
        arguments << QVariantList{QString::fromUtf8(uid), QString()};
    }
    return calls(u"GetObject"_s, arguments);
}

EDSReply EDSCalendar::list(Moment start, Moment end) {
    const QString query = u"(occur-in-time-range? (make-time \"%1\") (make-time \"%2\"))"_s;
    return call(u"GetObjectList"_s, {query.arg(queryTime(start), queryTime(end + std::chrono::seconds(1)))});
}

EDSReply EDSCalendar::timezone(const QByteArray& name) {
    return call(u"GetTimezone"_s, {QString::fromUtf8(name)});
}

void EDSCalendar::refresh() {
    if (isOpen()) {
        m_connection.send(m_object, u"Refresh"_s);
    }
}

EDSReply EDSCalendar::view() {
    return call(u"GetView"_s, {u"#t"_s});
}

} // namespace guide
