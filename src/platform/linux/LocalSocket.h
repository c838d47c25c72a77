#pragma once

#include "platform/linux/FileDescriptor.h"

#include <QByteArray>

#include <chrono>
#include <optional>

namespace guide {

/// A stream socket at the path, which may be longer than a socket's address, listening; one that stands there
/// is replaced.
FileDescriptor listeningSocket(const QByteArray& path);
/// A stream socket connected to the one at the path.
FileDescriptor connectedSocket(const QByteArray& path);
/// The other end belongs to the same user.
bool isOwnUsers(const FileDescriptor& connection);

/// Reads up to a line end, which is left out. Nothing when there is none within the limit and the time, or
/// when the `stop` descriptor (-1 for none) can be read before.
std::optional<QByteArray> readLine(const FileDescriptor& connection, qsizetype limit,
                                   std::chrono::milliseconds time, int stop = -1);
bool writeLine(const FileDescriptor& connection, const QByteArray& line);

} // namespace guide
