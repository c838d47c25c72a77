#include "sources/PageText.h"

#include "platform/encoding/CharacterSets.h"
#include "platform/encoding/Decompression.h"
#include "platform/encoding/Utf8.h"

#include <algorithm>

namespace guide {

namespace {

PageText textOf(std::optional<QByteArray> text) {
    const PageReason reason = text ? PageReason::None : PageReason::Encoding;
    return {std::move(text), reason};
}

/// The length of the longest valid beginning.
qsizetype validLength(QByteArrayView bytes) {
    constexpr qsizetype kShort = 64;
    const auto isInsideCharacter = [&bytes](qsizetype at) {
        return (static_cast<unsigned char>(bytes[at]) & 0xc0) == 0x80;
    };
    // What precedes `valid` is valid, and halves of the rest are examined until it is short.
    qsizetype valid = 0;
    qsizetype end = bytes.size();
    while (end - valid > kShort) {
        qsizetype middle = valid + (end - valid) / 2;
        while (middle > valid && isInsideCharacter(middle)) {
            --middle;
        }
        if (middle > valid && isValidUtf8(bytes.sliced(valid, middle - valid))) {
            valid = middle;
        } else {
            end = std::max(middle, valid + kShort);
        }
    }
    while (!isValidUtf8(bytes.sliced(valid, end - valid))) {
        --end;
    }
    return end;
}

using Unpack = std::optional<QByteArray> (*)(QByteArrayView data, const DecompressionLimits& limits,
                                             bool* incomplete);

PageText unpacked(const QByteArray& body, const DecompressionLimits& limits, Unpack unpack) {
    bool incomplete = false;
    std::optional<QByteArray> content = unpack(body, limits, &incomplete);
    if (content && incomplete) {
        content->truncate(validLength(*content));
        if (content->isEmpty()) {
            content.reset();
        }
    }
    if (!content) {
        return {std::nullopt, PageReason::Compression};
    }
    PageText text = textOf(utf8FromUtf8(*std::move(content)));
    text.incomplete = incomplete;
    return text;
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
        return unpacked(body, limits, dataWithXzData);
    }
    if (type == "application/x-gzip") {
        // Some servers declare a gzip file as a content encoding; the transfer has then unpacked it already.
        if (response.header("Content-Encoding") && !hasGzipSignature(body)) {
            return textOf(utf8FromUtf8(std::move(body)));
        }
        return unpacked(body, limits, dataWithCompressedData);
    }
    if (const std::optional<QString> charset = declaredCharset(type)) {
        return textOf(charset->isEmpty() ? utf8FromUtf8(std::move(body))
                                         : utf8FromCharacterSet(std::move(body), *charset));
    }
    if (hasXzSignature(body)) {
        return unpacked(body, limits, dataWithXzData);
    }
    if (hasGzipSignature(body)) {
        return unpacked(body, limits, dataWithCompressedData);
    }
    return textOf(utf8FromUtf8(std::move(body)));
}

} // namespace guide
