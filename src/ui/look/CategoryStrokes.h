#pragma once

#include "screens/kit/Symbol.h"

#include <QPainterPath>

namespace guide {

/// The outline of a category's symbol in a square of 24; empty for a symbol that is not a category's.
QPainterPath categoryStrokes(Symbol symbol);

} // namespace guide
