#pragma once

#include "alarms/Favorites.h"

#include <QString>

#include <optional>

namespace guide {

/// "5min before", "2h before", "At beginning of the show"; "None" when unset.
QString leadTimeText(std::optional<int> minutes);

/// When the show is announced: by the rule's recurring alarm, if it has one, or by an alarm on this
/// broadcast.
QString leadTimeText(const Favorite* rule, std::optional<int> minutes);

} // namespace guide
