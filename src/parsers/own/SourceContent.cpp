#include "parsers/own/SourceContent.h"

#include "parsers/playlists/Playlist.h"
#include "platform/encoding/CharacterSets.h"
#include "platform/encoding/Utf8.h"

#include <QStringConverter>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The kind of a document shows within its first characters.
constexpr qsizetype kBeginning = 64 * 1024;
constexpr qsizetype kDeclaration = 200;
/// One invalid byte in so many is damage; more are another character set.
constexpr qsizetype kBytesPerFault = 1'000;
constexpr QChar kReplacement = QChar::ReplacementCharacter;

std::optional<QByteArray> unpacked(const QByteArray& bytes, const DecompressionLimits& limits,
                                   bool& damaged) {
    if (hasGzipSignature(bytes)) {
        return dataWithCompressedData(bytes, limits, &damaged);
    }
    return hasXzSignature(bytes) ? dataWithXzData(bytes, limits, &damaged) : std::optional(bytes);
}

/// What the XML declaration at the beginning says; empty when there is none.
QString declaredEncoding(const QByteArray& text) {
    const QByteArray start = text.first(std::min(text.size(), kDeclaration)).trimmed();
    const qsizetype end = start.indexOf("?>");
    const qsizetype name = start.indexOf("encoding=");
    if (!start.startsWith("<?xml") || name < 0 || name > end || name + 10 >= start.size()) {
        return {};
    }
    const char quote = start[name + 9];
    const qsizetype closing = start.indexOf(quote, name + 10);
    return closing < 0 ? QString() : QString::fromLatin1(start.sliced(name + 10, closing - name - 10));
}

/// Without what is no character; counts it.
QByteArray repaired(const QByteArray& text, qsizetype& replaced) {
    const QString decoded = QString::fromUtf8(text);
    const QByteArray mark = QString(kReplacement).toUtf8();
    replaced = decoded.count(kReplacement) - text.count(mark);
    return decoded.toUtf8();
}

QByteArray utf8(QByteArray text, const QString& declared, qsizetype& replaced) {
    const auto marked = QStringConverter::encodingForData(text);
    if (marked && *marked != QStringConverter::Utf8) {
        return QString(QStringDecoder(*marked)(text)).toUtf8();
    }
    for (const QString& name : {marked ? QString() : declared, marked ? QString() : declaredEncoding(text)}) {
        if (!name.isEmpty() && name.compare("utf-8"_L1, Qt::CaseInsensitive) != 0) {
            if (auto decoded = utf8FromCharacterSet(text, name)) {
                return *std::move(decoded);
            }
        }
    }
    if (isValidUtf8(text)) {
        return text;
    }
    QByteArray kept = repaired(text, replaced);
    if (replaced > text.size() / kBytesPerFault) {
        if (auto decoded = utf8FromCharacterSet(std::move(text), u"windows-1250"_s)) {
            replaced = 0;
            return *std::move(decoded);
        }
    }
    return kept;
}

SourceKind kindOf(const QByteArray& text) {
    const QString start = QString::fromUtf8(text.first(std::min(text.size(), kBeginning)));
    const QString trimmed = start.trimmed();
    if (trimmed.isEmpty()) {
        return SourceKind::Empty;
    }
    if (isPlaylist(start)) {
        return SourceKind::Playlist;
    }
    if (trimmed.startsWith("<!doctype html"_L1, Qt::CaseInsensitive) ||
        trimmed.startsWith("<html"_L1, Qt::CaseInsensitive)) {
        return SourceKind::Page;
    }
    if (start.contains("<tv>"_L1) || start.contains("<tv "_L1) || start.contains("<!DOCTYPE tv"_L1) ||
        start.contains("<tv\n"_L1)) {
        return SourceKind::Feed;
    }
    return start.contains("<html"_L1, Qt::CaseInsensitive) ? SourceKind::Page : SourceKind::Unknown;
}

} // namespace

SourceContent sourceContent(QByteArray bytes, const DecompressionLimits& limits, const QString& declared) {
    SourceContent content;
    std::optional<QByteArray> text = unpacked(bytes, limits, content.damaged);
    if (!text) {
        content.damaged = true;
        return content;
    }
    bytes.clear();
    content.text = utf8(*std::move(text), declared, content.replaced);
    content.kind = kindOf(content.text);
    return content;
}

} // namespace guide
