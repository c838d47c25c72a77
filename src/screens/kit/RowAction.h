#pragma once

#include "screens/kit/ColorRole.h"

#include <QString>

#include <functional>

namespace guide {

/// One of the actions on a row: offered by a swipe from the trailing edge, a right click, a long press or the
/// menu key.
struct RowAction {
    QString title;
    /// The title in words, when the title is a symbol.
    QString name;
    ColorRole color = ColorRole::Tint;
    /// Main queue.
    std::function<void()> action;
};

} // namespace guide
