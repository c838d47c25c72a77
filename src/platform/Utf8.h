#pragma once

#include <QByteArrayView>
#include <QString>

namespace guide {

/// True when the bytes are well-formed UTF-8: no surrogates, no overlong forms, nothing past U+10FFFF. A NUL
/// is a character like any other.
bool isValidUtf8(QByteArrayView bytes);

/// Reads UTF-8 into `text`, strictly; false when the bytes are not well-formed, and `text` is then
/// unspecified.
bool readUtf8(QByteArrayView bytes, QString& text);

/// Writes the text as UTF-8 at `out`, where three bytes for each unit of the text have to be free; a lone
/// surrogate as U+FFFD. Returns the end.
char* writeUtf8(QStringView text, char* out);

} // namespace guide
