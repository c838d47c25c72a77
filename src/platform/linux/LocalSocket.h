#pragma once

#include "platform/linux/FileDescriptor.h"

#include <QByteArray>

#include <chrono>
#include <optional>

namespace guide {

/// A listening stream socket at the path, which may exceed the length limit of a socket address. Replaces an
/// existing socket.
FileDescriptor listeningSocket(const QByteArray& path);
/// A stream socket connected to the one at the path.
FileDescriptor connectedSocket(const QByteArray& path);
/// Whether the peer belongs to the same user.
bool isSameUser(const FileDescriptor& connection);

/// Reads a line without its line end. Empty when there is none within the limit and the time, or when the
/// `stop` descriptor (-1 for none) becomes readable first.
std::optional<QByteArray> readLine(const FileDescriptor& connection, qsizetype limit,
                                   std::chrono::milliseconds time, int stop = -1);
bool writeLine(const FileDescriptor& connection, const QByteArray& line);

} // namespace guide
