#pragma once

#include <QString>

#include <vector>

namespace guide {

/// A part of a text, in UTF-16 units.
struct TextRange {
    qsizetype start = 0;
    qsizetype length = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// Where a pattern occurs in the text when case and diacritics are ignored: from left to right, without
/// overlaps, each with the marks of its last letter. The pattern is already folded; none when it is empty.
std::vector<TextRange> textMatches(QStringView text, QStringView foldedPattern);

} // namespace guide
