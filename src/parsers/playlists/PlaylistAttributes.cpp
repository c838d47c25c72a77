#include "parsers/playlists/PlaylistAttributes.h"

namespace guide {

namespace {

bool isKeyCharacter(QChar c) {
    return c.isLetterOrNumber() || c == u'-' || c == u'_';
}

bool isQuote(QChar c) {
    return c == u'"' || c == u'\'';
}

qsizetype behindBlanks(QStringView line, qsizetype at) {
    while (at < line.size() && line[at].isSpace()) {
        ++at;
    }
    return at;
}

/// The length of the key before an equals sign; 0 when there is none.
qsizetype keyLength(QStringView line, qsizetype at) {
    qsizetype end = at;
    while (end < line.size() && isKeyCharacter(line[end])) {
        ++end;
    }
    return end > at && end < line.size() && line[end] == u'=' ? end - at : 0;
}

/// Whether a value may end before this position: the line ends, the text begins, or another key follows.
bool valueEndsBefore(QStringView line, qsizetype at) {
    const qsizetype next = behindBlanks(line, at);
    return next == line.size() || line[next] == u',' || keyLength(line, next) > 0;
}

/// The quote that ends the value which begins at `from`; -1 when there is none. Quotes inside a value are
/// common.
qsizetype closingQuote(QStringView line, qsizetype from, QChar quote) {
    for (qsizetype at = line.indexOf(quote, from); at >= 0; at = line.indexOf(quote, at + 1)) {
        if (valueEndsBefore(line, at + 1)) {
            return at;
        }
    }
    return -1;
}

qsizetype endOfBareValue(QStringView line, qsizetype at) {
    while (at < line.size() && !line[at].isSpace() && line[at] != u',') {
        ++at;
    }
    return at;
}

} // namespace

QString PlaylistAttributes::value(std::initializer_list<QLatin1StringView> keys) const {
    for (const QLatin1StringView key : keys) {
        for (const auto& [name, value] : values) {
            if (name == key && !value.isEmpty()) {
                return value;
            }
        }
    }
    return {};
}

PlaylistAttributes playlistAttributes(QStringView line) {
    PlaylistAttributes attributes;
    qsizetype at = 0;
    while (at < line.size()) {
        at = behindBlanks(line, at);
        if (at < line.size() && line[at] == u',') {
            attributes.text = line.sliced(at + 1).trimmed().toString();
            break;
        }
        const qsizetype length = keyLength(line, at);
        if (length == 0) {
            // The duration, or a word that means nothing here.
            const qsizetype end = endOfBareValue(line, at);
            at = end > at ? end : at + 1;
            continue;
        }
        const QString key = line.sliced(at, length).toString().toLower();
        at += length + 1;
        const bool quoted = at < line.size() && isQuote(line[at]);
        const qsizetype closing = quoted ? closingQuote(line, at + 1, line[at]) : -1;
        const qsizetype begin = quoted ? at + 1 : at;
        const qsizetype end = closing >= 0 ? closing : endOfBareValue(line, begin);
        attributes.values.emplace_back(key, line.sliced(begin, end - begin).trimmed().toString());
        at = closing >= 0 ? closing + 1 : end;
    }
    return attributes;
}

} // namespace guide
