#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace guide {

/// The content of a regular file of at most `mostBytes` bytes. Nothing when the file is missing, unreadable,
/// larger, or something else (a folder, pipe, socket or device), which is not waited for.
std::optional<QByteArray> fileContent(const QString& path, qint64 mostBytes);

/// Whether fileContent would read the file. For readers that open a file themselves.
bool isReadableFile(const QString& path, qint64 mostBytes);

} // namespace guide
