#pragma once

#include "core/own/SourcePreview.h"
#include "platform/encoding/Decompression.h"

#include <QByteArray>
#include <QString>

namespace guide {

/// The content of an address or file, whatever its name or server say that it is.
struct SourceContent {
    SourceKind kind = SourceKind::Unknown;
    /// UTF-8.
    QByteArray text;
    /// Of a packed file.
    bool damaged = false;
    /// The number of bytes that were no characters and were replaced.
    qsizetype replaced = 0;
};

/// Unpacks what has the signature of gzip or xz, decodes it, and looks at its beginning. The character set is
/// the one of a byte order mark, else `declared` (by a server; may be empty), else the one that the document
/// declares, else UTF-8. A text that is not valid in it is taken for the character set of Central European
/// Windows when it has many invalid bytes, and otherwise keeps everything but them.
SourceContent sourceContent(QByteArray bytes, const DecompressionLimits& limits,
                            const QString& declared = {});

} // namespace guide
