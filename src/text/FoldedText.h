#pragma once

#include <QString>

namespace guide {

/// The text as searches see it that ignore case and diacritics: decomposed, without marks, case folded.
/// Composed and decomposed input fold alike.
QString foldedText(QStringView text);

} // namespace guide
