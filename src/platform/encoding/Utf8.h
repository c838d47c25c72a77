#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <span>

namespace guide {

struct CheckedUtf8 {
    /// As isValidUtf8().
    bool isValid = false;
    /// Whether there are control characters that XML does not allow: all but tabs and line ends.
    bool hasControlCharacters = false;
};
CheckedUtf8 checkedUtf8(QByteArrayView bytes);

/// True when the bytes are well-formed UTF-8: no surrogates, no overlong forms, nothing above U+10FFFF. NUL
/// is allowed.
bool isValidUtf8(QByteArrayView bytes);

/// Decodes UTF-8 into `text`, byte order mark included. False when the bytes are not well-formed; `text` is
/// then unspecified.
bool readUtf8(QByteArrayView bytes, QString& text);

/// Encodes the text at `out`, which must have room for three bytes per UTF-16 unit; a lone surrogate becomes
/// U+FFFD. Returns the end.
char* writeUtf8(QStringView text, char* out);

bool isAscii(QByteArrayView bytes);

/// The size of the character that begins the text, which must not be empty; 0 when the text ends within it,
/// -1 when its first byte begins none.
int characterSize(QByteArrayView text);

/// The number of bytes at the end of the text that begin a character without ending it; 0 to 3.
std::size_t cutCharacterSize(QByteArrayView text);

/// Replaces the control characters that XML does not allow by blanks and returns their number.
std::int64_t blankControlCharacters(std::span<char> text);

} // namespace guide
