#pragma once

#include "core/ObjectId.h"

#include <QByteArray>
#include <QCborValue>

#include <optional>
#include <vector>

namespace guide {

/// The form of a selection in its file and in the key-value store: an array of the channels' 12 bytes.
QCborValue selectionValue(const std::vector<ObjectId>& selected);
/// The reverse; nothing when the value is not an array. An element may also be the 24 digits of a channel.
/// Others are left out.
std::optional<std::vector<ObjectId>> selectionOfValue(const QCborValue& value);

/// The selection in the content of its file; nothing when it is damaged.
std::optional<std::vector<ObjectId>> selectionOfFile(const QByteArray& content);

} // namespace guide
