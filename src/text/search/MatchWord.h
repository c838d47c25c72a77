#pragma once

#include <QStringView>

namespace guide {

/// Whether the word occurs in the text as a whole word, ignoring case and diacritics. Only its first
/// occurrence is tested. It must not follow a letter, and must be followed by the end or by an ASCII
/// character that is not a letter.
bool matchWord(QStringView text, QStringView word);

/// Tests one occurrence, from `begin` to `end`. A mark after it belongs to it; a mark before it counts as the
/// letter that it modifies.
bool isWholeWord(QStringView text, qsizetype begin, qsizetype end);

} // namespace guide
