#pragma once

#include <QChar>
#include <QString>
#include <QStringView>

namespace guide {

/// Where "." of a pattern stops.
bool isLineEnd(QChar unit);

/// Removes every blank or no-break space with a parenthesised stretch behind it: from "(" to the last ")" of
/// the line.
QString withoutParentheses(const QString& text);

/// Removes every stretch from "[" to the last "]" of the line.
QString withoutBrackets(const QString& text);

/// Removes every blank with a word that ends in ":" behind it, together with the rest of the line.
QString withoutLabelTails(const QString& text);

/// Without white space at both ends.
QStringView trimmedSpace(QStringView text);

} // namespace guide
