#pragma once

#include <QStringView>

namespace guide {

/// Whether the word occurs in the text as a whole word, ignoring case and diacritics. Only its first
/// occurrence is looked at. It must not follow a letter, and must be followed by nothing or by an ASCII
/// character that is no letter.
bool matchWord(QStringView text, QStringView word);

/// The test of one occurrence, from `begin` up to `end`. A mark behind it belongs to it; one before it stands
/// for the letter that it is on.
bool standsAsWord(QStringView text, qsizetype begin, qsizetype end);

} // namespace guide
