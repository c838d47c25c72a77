#include "platform/linux/calendar/EDSConnection.h"

#include <QDBusError>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kCalendarError = "_e_2dcal_2dclient_2derror_2dquark.Code"_L1;
constexpr auto kNetworkError = "_g_2dio_2derror_2dquark.Code"_L1;
constexpr auto kClientError = "_e_2dclient_2derror_2dquark.Code"_L1;
/// A service that did not answer within less is not to blame.
constexpr std::chrono::seconds kPatience{2};

/// The number at the end of the error's name, of one of the lists.
std::optional<int> codeOf(const QString& name, QLatin1StringView list) {
    const qsizetype at = name.indexOf(list);
    return at < 0 ? std::nullopt : std::optional(QStringView(name).mid(at + list.size()).toInt());
}

EDSReply outOfTime() {
    return {.values = {},
            .error = EDSError{.fault = EventFault::Unavailable, .message = u"the calendar takes too long"_s}};
}

/// The meaning of an error of the service.
EDSError edsError(const QString& name, const QString& message) {
    // Numbers of ECalClientError, EClientError and GIOErrorEnum.
    EDSError error{.message = message};
    if (const std::optional<int> code = codeOf(name, kCalendarError)) {
        error.isTaken = *code == 4;
        if (*code == 1) {
            error.fault = EventFault::NotFound;
        } else if (*code == 0) {
            error.fault = EventFault::Unavailable;
        }
        return error;
    }
    if (const std::optional<int> code = codeOf(name, kClientError)) {
        constexpr int kReadOnly = 8;
        constexpr int kNotOpened = 20;
        constexpr int kOutOfSync = 21;
        // Busy, not loaded, authentication, offline, no TLS, the service's own bus.
        constexpr int kUnavailable[] = {1, 2, 4, 5, 6, 7, 12, 13, 18, kNotOpened};
        error.isGone = *code == kNotOpened;
        error.isOutOfSync = *code == kOutOfSync;
        if (*code == kReadOnly) {
            error.fault = EventFault::ReadOnly;
        } else if (*code == kOutOfSync) {
            error.fault = EventFault::Conflict;
        } else if (std::ranges::find(kUnavailable, *code) != std::end(kUnavailable)) {
            error.fault = EventFault::Unavailable;
        }
        return error;
    }
    if (const std::optional<int> code = codeOf(name, kNetworkError)) {
        constexpr int kNoSpace = 12;
        error.fault = *code == kNoSpace ? EventFault::Failed : EventFault::Unavailable;
        return error;
    }
    if (name.startsWith("org.freedesktop.DBus.Error."_L1)) {
        const QString kind = name.section(u'.', -1);
        const QStringList gone{u"ServiceUnknown"_s, u"UnknownObject"_s, u"UnknownMethod"_s,
                               u"NameHasNoOwner"_s, u"Disconnected"_s,  u"NoReply"_s};
        error.isGone = gone.contains(kind);
        error.fault = EventFault::Unavailable;
    }
    return error;
}

} // namespace

EDSConnection::EDSConnection(const QString& address)
    : m_name(u"calendars-"_s + QUuid::createUuid().toString(QUuid::Id128))
    , m_bus(QDBusConnection::connectToBus(address, m_name)) {}

EDSConnection::~EDSConnection() {
    QDBusConnection::disconnectFromBus(m_name);
}

void EDSConnection::beginCalls(std::chrono::milliseconds time) {
    m_until = Clock::now() + time;
}

std::optional<std::chrono::milliseconds> EDSConnection::timeFor(std::chrono::milliseconds longest) const {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(m_until - Clock::now());
    const std::chrono::milliseconds time = std::min(longest, left);
    return time.count() > 0 ? std::optional(time) : std::nullopt;
}

EDSReply EDSConnection::reply(const QDBusMessage& answer, Clock::time_point begin,
                              std::chrono::milliseconds time) {
    if (answer.type() == QDBusMessage::ReplyMessage) {
        return {.values = answer.arguments(), .error = std::nullopt};
    }
    EDSError error = edsError(answer.errorName(), answer.errorMessage());
    // A service that is slow is not gone. Timers may end a little early.
    const bool isOver = error.isGone && Clock::now() - begin >= time * 9 / 10;
    error.isLate = isOver && time >= kPatience;
    error.isGone = error.isGone && !isOver;
    return {.values = {}, .error = std::move(error)};
}

EDSReply EDSConnection::call(const EDSObject& object, const QString& member, const QVariantList& arguments,
                             std::chrono::milliseconds longest) {
    const auto time = timeFor(longest);
    if (!time) {
        return outOfTime();
    }
    QDBusMessage message =
        QDBusMessage::createMethodCall(object.service, object.path, object.interface, member);
    message.setArguments(arguments);
    const Clock::time_point begin = Clock::now();
    return reply(m_bus.call(message, QDBus::Block, static_cast<int>(time->count())), begin, *time);
}

QList<EDSReply> EDSConnection::calls(const EDSObject& object, const QString& member,
                                     const QList<QVariantList>& arguments) {
    const auto time = timeFor(std::chrono::seconds(25));
    if (!time) {
        return QList<EDSReply>(arguments.size(), outOfTime());
    }
    const Clock::time_point begin = Clock::now();
    QList<QDBusPendingCall> pending;
    for (const QVariantList& list : arguments) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(object.service, object.path, object.interface, member);
        message.setArguments(list);
        pending << m_bus.asyncCall(message, static_cast<int>(time->count()));
    }
    QList<EDSReply> replies;
    for (QDBusPendingCall& one : pending) {
        one.waitForFinished();
        replies << reply(one.reply(), begin, *time);
    }
    return replies;
}

void EDSConnection::send(const EDSObject& object, const QString& member) {
    m_bus.send(QDBusMessage::createMethodCall(object.service, object.path, object.interface, member));
}

std::optional<QVariant> EDSConnection::property(const EDSObject& object, const QString& name) {
    const EDSReply reply = call({object.service, object.path, u"org.freedesktop.DBus.Properties"_s}, u"Get"_s,
                                {object.interface, name}, std::chrono::seconds(5));
    return reply.isOk() ? std::optional(reply.values.value(0).value<QDBusVariant>().variant()) : std::nullopt;
}

} // namespace guide
