#pragma once

#include "core/ObjectId.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// The channels in a selection file: a JSON array of identities, 24 hexadecimal digits each, in display
/// order. Other entries are left out; one log line counts them. Unset, with the reason, when the file cannot
/// be read or is not an array.
std::optional<std::vector<ObjectId>> selectionFromFile(const QString& path, QString& why);

} // namespace guide
