#pragma once

#include <QString>

namespace guide {

/// The text as seen by searches that ignore case and diacritics: decomposed, without marks, case folded, and
/// with plain letters for those that only look different. Composed and decomposed input give the same result.
QString foldedText(QStringView text);

} // namespace guide
