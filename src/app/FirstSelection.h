#pragma once

#include "core/ObjectId.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// The channels that a selection file names: a JSON array of identities, 24 hexadecimal digits each, in the
/// order in which they are to be shown. Nothing, with a log line, when the file cannot be read or is no such
/// array.
std::optional<std::vector<ObjectId>> selectionFromFile(const QString& path);

} // namespace guide
