#pragma once

#include <QString>

#include <optional>

namespace guide {

/// A fragment lifted from a page, without its CDATA wrapper and with its references decoded, at most 10,000
/// units. What lies in the first CDATA section is left alone. Kept as the pages need it: "&quot" takes no
/// ";", a numeric reference leaves its ";" behind, and a decimal one loses its first digit.
QString decodeMarkup(const QString& text);

/// The fragment without white space and punctuation in front and without white space behind, each pair of
/// blanks made one; nothing when nothing is left.
std::optional<QString> trimmedListingText(const QString& text);

} // namespace guide
