#pragma once

#include "text/search/TextMatches.h"

#include <QColor>
#include <QString>

#include <vector>

namespace guide {

/// The text as styled text for QML in which the ranges are bold and have the colour. The ranges are in order
/// and do not overlap; what lies outside the text is ignored.
QString markedText(const QString& text, const std::vector<TextRange>& ranges, const QColor& color);

} // namespace guide
