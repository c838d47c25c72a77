#pragma once

#include <QString>

namespace guide {

/// A title that is all in capitals in small letters with initial capitals, by the rules of its language (an
/// ISO 639-1 code, may be empty). Acronyms and Roman numbers stay. Any other title is returned as it is.
QString withoutCapitals(const QString& title, const QString& language);

} // namespace guide
