#pragma once

#include <QString>

#include <optional>

namespace guide {

/// Decodes a fragment of a page: removes its CDATA wrapper and decodes its references, up to 10,000 units.
/// The content of the first CDATA section is left alone. Quirks that the pages rely on are kept: "&quot" does
/// not consume its ";", a numeric reference leaves its ";", and a decimal one loses its first digit.
QString decodeMarkup(const QString& text);

/// Trims leading white space and punctuation and trailing white space, and replaces each pair of blanks by
/// one. Empty if nothing is left.
std::optional<QString> trimmedListingText(const QString& text);

} // namespace guide
