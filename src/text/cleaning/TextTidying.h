#pragma once

#include <QString>

namespace guide {

// Texts of feeds as people would have typed them.

/// The text on one line, with single blanks and none at its ends. A line end written as "\n", in two
/// characters, is a blank as well.
QString tidiedTitle(const QString& text);

/// The same of a text that may have several lines: lines that are folded within a sentence are joined, and a
/// line end behind a sentence or an empty line is kept.
QString tidiedLines(const QString& text);

/// Adds a full stop unless the text ends in a mark that closes a sentence, behind which quotation marks and
/// brackets may follow.
void closeSentence(QString& text);

} // namespace guide
