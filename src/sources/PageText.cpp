#include "sources/PageText.h"

#include "platform/encoding/CharacterSets.h"
#include "platform/encoding/Decompression.h"

namespace guide {

namespace {

PageText textOf(std::optional<QByteArray> text) {
    const PageReason reason = text ? PageReason::None : PageReason::Encoding;
    return {std::move(text), reason};
}

PageText unpacked(std::optional<QByteArray> content) {
    if (!content) {
        return {std::nullopt, PageReason::Compression};
    }
    return textOf(utf8FromUtf8(*std::move(content)));
}

/// What follows "charset=", without quotes and further parameters. Nothing when the marker is missing,
/// empty when too little follows it.
std::optional<QString> declaredCharset(const QByteArray& contentType) {
    constexpr QByteArrayView kMarker = "charset=";
    const qsizetype marker = contentType.toLower().indexOf(kMarker);
    if (marker < 0) {
        return std::nullopt;
    }
    const qsizetype start = marker + kMarker.size();
    if (start >= contentType.size() - 1) {
        return QString();
    }
    QByteArray name = contentType.mid(start);
    if (const qsizetype end = name.indexOf(';'); end >= 0) {
        name.truncate(end);
    }
    name = name.trimmed();
    if (name.size() >= 2 && name.front() == name.back() && (name.front() == '"' || name.front() == '\'')) {
        name = name.mid(1, name.size() - 2).trimmed();
    }
    return QString::fromLatin1(name.toUpper());
}

} // namespace

PageText pageText(QByteArray body, const HTTPResponse& response, std::uint64_t physicalMemory) {
    const DecompressionLimits limits{physicalMemory};
    const QByteArray type = response.header("Content-Type").value_or(QByteArray());
    if (type == "application/x-xz") {
        return unpacked(dataWithXzData(body, limits));
    }
    if (type == "application/x-gzip") {
        // Some servers declare a gzip file as a content encoding; the transfer has then unpacked it already.
        if (response.header("Content-Encoding") && !hasGzipSignature(body)) {
            return textOf(utf8FromUtf8(std::move(body)));
        }
        return unpacked(dataWithCompressedData(body, limits));
    }
    if (const std::optional<QString> charset = declaredCharset(type)) {
        return textOf(charset->isEmpty() ? utf8FromUtf8(std::move(body))
                                         : utf8FromCharacterSet(std::move(body), *charset));
    }
    if (hasXzSignature(body)) {
        return unpacked(dataWithXzData(body, limits));
    }
    if (hasGzipSignature(body)) {
        return unpacked(dataWithCompressedData(body, limits));
    }
    return textOf(utf8FromUtf8(std::move(body)));
}

} // namespace guide
