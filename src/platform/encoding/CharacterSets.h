#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace guide {

/// Converts a page to UTF-8 from the character set with the given IANA name or a common alias; case, blanks
/// and punctuation in the name are ignored. Empty when the name is unknown or a byte cannot be decoded. A
/// page that is UTF-8 already is returned without a copy and keeps its byte order mark; a byte order mark of
/// UTF-16 or UTF-32 is removed. NUL characters are kept.
std::optional<QByteArray> utf8FromCharacterSet(QByteArray bytes, const QString& ianaName);

/// Returns the bytes if they are valid UTF-8.
std::optional<QByteArray> utf8FromUtf8(QByteArray bytes);

} // namespace guide
