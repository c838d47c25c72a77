#pragma once

#include "core/ObjectId.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// The channels in a selection file: a JSON array of identities, 24 hexadecimal digits each, in display
/// order. Unset, with a log line, when the file cannot be read or is not an array.
std::optional<std::vector<ObjectId>> selectionFromFile(const QString& path);

} // namespace guide
