#pragma once

#include <QByteArray>
#include <QCborValue>

#include <optional>

namespace guide {

/// The container of every archive of ours: a signature, a version, a checksum of the content, the content
/// (CBOR). Small archives go through these two; lists of shows through KeyedArchiver and KeyedUnarchiver.
QByteArray archivedData(const QCborValue& root);

/// Nothing when the bytes are no archive, of another version, cut short or damaged.
std::optional<QCborValue> unarchivedRoot(const QByteArray& data);

} // namespace guide
