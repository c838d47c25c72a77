#pragma once

#include <QByteArrayView>
#include <QString>

namespace guide {

/// True when the bytes are well-formed UTF-8: no surrogates, no overlong forms, nothing above U+10FFFF. NUL
/// is allowed.
bool isValidUtf8(QByteArrayView bytes);

/// Decodes UTF-8 into `text`, byte order mark included. False when the bytes are not well-formed; `text` is
/// then unspecified.
bool readUtf8(QByteArrayView bytes, QString& text);

/// Encodes the text at `out`, which must have room for three bytes per UTF-16 unit; a lone surrogate becomes
/// U+FFFD. Returns the end.
char* writeUtf8(QStringView text, char* out);

} // namespace guide
