#include "platform/linux/database/ServerReach.h"

#include "platform/linux/FileDescriptor.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <netdb.h>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostNumbers = 8;
constexpr std::chrono::milliseconds kLongestInAll{2000};

using AddressList = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

AddressList addressList(const char* host, const char* port, int flags, int& failure) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = flags;
    addrinfo* found = nullptr;
    failure = getaddrinfo(host, port, &hints, &found);
    return {failure == 0 ? found : nullptr, &freeaddrinfo};
}

/// The error of an attempt to connect, 0 if there is none.
int connectionFailure(const sockaddr* to, socklen_t size, std::chrono::milliseconds longest,
                      const WakeUp& stop) {
    const FileDescriptor socket(::socket(to->sa_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (socket.get() < 0 || ::connect(socket.get(), to, size) == 0) {
        return socket.get() < 0 ? errno : 0;
    }
    if (errno != EINPROGRESS) {
        return errno;
    }
    if (!waitFor(socket.get(), POLLOUT, stop, std::chrono::steady_clock::now() + longest)) {
        return ETIMEDOUT;
    }
    int failure = 0;
    socklen_t length = sizeof failure;
    return ::getsockopt(socket.get(), SOL_SOCKET, SO_ERROR, &failure, &length) == 0 ? failure : errno;
}

DatabaseFault faultOf(int failure) {
    switch (failure) {
    case 0:
        // It answers by now.
        return DatabaseFault::Lost;
    case ECONNREFUSED:
    case ENOENT:
    case ENOTDIR:
        return DatabaseFault::NoServer;
    case ENETUNREACH:
    case ENETDOWN:
    case EADDRNOTAVAIL:
    // The rights of the socket, or a firewall of this device.
    case EACCES:
    case EPERM:
        return DatabaseFault::NoNetwork;
    default:
        return DatabaseFault::NoAnswer;
    }
}

} // namespace

QList<QByteArray> numbersOf(const DatabaseAddress& address, DatabaseError& error) {
    if (address.isSocket()) {
        return {};
    }
    int failure = 0;
    const AddressList found = addressList(address.host.toUtf8().constData(), nullptr, 0, failure);
    QList<QByteArray> numbers;
    for (const addrinfo* each = found.get(); each != nullptr && numbers.size() < kMostNumbers;
         each = each->ai_next) {
        char number[NI_MAXHOST] = {};
        if (getnameinfo(each->ai_addr, each->ai_addrlen, number, sizeof number, nullptr, 0, NI_NUMERICHOST) ==
            0) {
            numbers.append(number);
        }
    }
    if (numbers.isEmpty()) {
        // EAI_AGAIN: no server of names could be asked.
        error = failure == EAI_AGAIN
                    ? DatabaseError{DatabaseFault::NoNetwork, u"the server's name cannot be looked up"_s}
                    : DatabaseError{DatabaseFault::UnknownHost, u"the server's name is not known"_s};
    }
    return numbers;
}

DatabaseFault whyNotReached(const DatabaseAddress& address, const QList<QByteArray>& numbers,
                            const WakeUp& stop) {
    if (address.isSocket()) {
        sockaddr_un socket{};
        socket.sun_family = AF_UNIX;
        const QByteArray path =
            QFile::encodeName(address.host) + "/.s.PGSQL." + QByteArray::number(address.port);
        if (path.size() >= qsizetype{sizeof socket.sun_path}) {
            return DatabaseFault::NoServer;
        }
        std::ranges::copy(path, socket.sun_path);
        return faultOf(connectionFailure(reinterpret_cast<const sockaddr*>(&socket), sizeof socket,
                                         kLongestInAll, stop));
    }
    // Of several numbers, the one that comes closest to a server counts.
    constexpr std::array kClosestFirst{DatabaseFault::Lost, DatabaseFault::NoServer, DatabaseFault::NoAnswer,
                                       DatabaseFault::NoNetwork};
    const auto rank = [&](DatabaseFault fault) { return std::ranges::find(kClosestFirst, fault); };
    std::optional<DatabaseFault> closest;
    for (const QByteArray& number : numbers) {
        int failure = 0;
        const AddressList found =
            addressList(number.constData(), QByteArray::number(address.port).constData(),
                        AI_NUMERICHOST | AI_NUMERICSERV, failure);
        if (found) {
            const DatabaseFault fault = faultOf(
                connectionFailure(found->ai_addr, found->ai_addrlen, kLongestInAll / numbers.size(), stop));
            closest = closest && rank(*closest) < rank(fault) ? closest : fault;
        }
    }
    return closest.value_or(DatabaseFault::Lost);
}

QString sentenceFor(DatabaseFault fault) {
    switch (fault) {
    case DatabaseFault::UnknownHost:
        return u"There is no server with the name in the address."_s;
    case DatabaseFault::NoNetwork:
        return u"This device has no network, or no way to the server of the database."_s;
    case DatabaseFault::NoServer:
        return u"The server does not run a database at the address."_s;
    case DatabaseFault::NoAnswer:
        return u"The server of the database does not answer."_s;
    case DatabaseFault::Login:
        return u"The database does not accept the user or the password."_s;
    case DatabaseFault::NoPassword:
        return u"This device does not have the password of the database."_s;
    case DatabaseFault::Rights:
        return u"The user in the address may not use the database."_s;
    case DatabaseFault::Identity:
        return u"The server of the database cannot prove its identity, so nothing is sent to it."_s;
    case DatabaseFault::NoDatabase:
        return u"The server has no database with the name in the address."_s;
    case DatabaseFault::Schema:
        return u"The database is not set up for the guide."_s;
    case DatabaseFault::Lost:
    case DatabaseFault::Later:
    case DatabaseFault::Statement:
        break;
    }
    return u"The database cannot be reached."_s;
}

} // namespace guide
