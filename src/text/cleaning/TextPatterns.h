#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

namespace guide {

/// Whether the character ends a line, as for "." in a regular expression.
bool isLineEnd(QChar unit);

/// Removes every blank or no-break space together with the parentheses that follow it: from "(" to the last
/// ")" on the line.
QString withoutParentheses(const QString& text);

/// Removes everything from a "[" to the last "]" on the line.
QString withoutBrackets(const QString& text);

/// Removes every blank followed by a word that ends in ":", together with the rest of the line.
QString withoutLabelTails(const QString& text);

/// The text without leading and trailing white space.
QStringView trimmedSpace(QStringView text);

} // namespace guide
