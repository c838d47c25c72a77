#pragma once

#include "screens/kit/RowId.h"

#include <variant>

namespace guide {

enum class Presentation {
    /// On top of the stack.
    Push,
    /// In a box at its anchor; on a phone the same as Push.
    Popover,
    /// From below on a phone, centred elsewhere.
    Sheet,
};

struct BarButtonAnchor {
    bool left = false;
    int index = 0;
};

/// What a popover points at.
using Anchor = std::variant<std::monostate, BarButtonAnchor, RowId>;

} // namespace guide
