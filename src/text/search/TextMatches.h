#pragma once

#include "text/TextRange.h"

#include <QString>

#include <vector>

namespace guide {

/// Where a pattern occurs in the text when case and diacritics are ignored: from left to right, without
/// overlaps, each with the marks of its last letter. The pattern is already folded; none when it is empty.
std::vector<TextRange> textMatches(QStringView text, QStringView foldedPattern);

} // namespace guide
