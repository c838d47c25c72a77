#pragma once

#include "platform/linux/database/PostgresConnection.h"

namespace guide {

/// The addresses of the host as numbers, at most eight; none for a socket. May take long. Without any,
/// `error` says why.
QList<QByteArray> numbersOf(const DatabaseAddress& address, DatabaseError& error);

/// Why no connection to any of the numbers, or to the socket, was made. libpq says it in words only, so this
/// tries again, for at most two seconds and not after `stop` has been woken.
DatabaseFault whyNotReached(const DatabaseAddress& address, const QList<QByteArray>& numbers,
                            const WakeUp& stop);

/// One sentence for people, without names, addresses and passwords.
QString sentenceFor(DatabaseFault fault);

} // namespace guide
