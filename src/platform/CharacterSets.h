#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace guide {

/// The bytes of a page as UTF-8, from the character set of the given IANA name (or a common alias; case,
/// blanks and punctuation of a name do not count). Nothing when nobody knows the name, or when the bytes do
/// not decode to the last one. A page that is UTF-8 already comes back as it stands, not copied, with a byte
/// order mark that it begins with; those of UTF-16 and UTF-32 go. NUL characters stay.
std::optional<QByteArray> utf8FromCharacterSet(QByteArray bytes, const QString& ianaName);

/// The bytes as they stand if they are UTF-8, else nothing.
std::optional<QByteArray> utf8FromUtf8(QByteArray bytes);

} // namespace guide
