#pragma once

#include <QByteArray>
#include <QCborValue>

#include <optional>

namespace guide {

/// Archives share one container: a signature, a version, a checksum and the content (CBOR). These two
/// functions are for small archives; KeyedArchiver and KeyedUnarchiver for lists of shows.
QByteArray archivedData(const QCborValue& root);

/// Empty when the bytes are not an archive, have another version, or are truncated or damaged.
std::optional<QCborValue> unarchivedRoot(const QByteArray& data);

} // namespace guide
