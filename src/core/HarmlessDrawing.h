#pragma once

#include <QByteArray>

namespace guide {

/// Whether an SVG can be drawn without reading anything else, running anything or taking long: it has no
/// scripts, no embedded pictures, no references but to its own parts, and a bounded number of elements.
bool isHarmlessDrawing(const QByteArray& svg);

} // namespace guide
