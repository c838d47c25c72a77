#include "text/cleaning/TextTidying.h"

#include <QStringView>

#include <algorithm>
#include <cstdint>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

bool isInvisible(QChar unit) {
    const char16_t code = unit.unicode();
    return code == 0x200b || code == 0xfeff || code == 0x2060 || (code < 0x20 && !unit.isSpace()) ||
           code == 0x7f;
}

bool isLineBreak(QChar unit) {
    const char16_t code = unit.unicode();
    return code == u'\n' || code == u'\r' || code == 0x85 || code == 0x2028 || code == 0x2029;
}

/// Whether a sentence may end with the character.
bool closes(QChar unit) {
    return QStringView(u".!?…:;\"”“»)]").contains(unit);
}

/// A character that is neither a blank nor invisible nor a backslash; false for some of these too.
bool isPlain(QChar unit) {
    const char16_t code = unit.unicode();
    return (code > 0x20 && code < 0x7f && code != u'\\') || (code > 0xa0 && code < 0x1680) ||
           (code > 0x2010 && code < 0x2027);
}

/// Whether all units of a block are plain or single blanks; as one sum, which compilers make vectors of.
bool isTidyBlock(const char16_t* block, qsizetype size) {
    std::uint16_t wrong = 0;
    for (qsizetype i = 0; i < size; ++i) {
        const std::uint16_t code = block[i];
        const std::uint16_t before = block[i - 1];
        wrong |= static_cast<std::uint16_t>(
            (code < 0x20) | (code == u'\\') | ((code >= 0x7f) & (code <= 0xa0)) |
            ((code >= 0x1680) & (code <= 0x2010)) | (code >= 0x2027) | ((code == 0x20) & (before == 0x20)));
    }
    return wrong == 0;
}

/// The size of the beginning that stays as it is, which is all of most texts.
qsizetype tidySize(QStringView text) {
    constexpr qsizetype kBlock = 16;
    if (text.isEmpty() || !isPlain(text.front())) {
        return 0;
    }
    qsizetype at = 1;
    while (at + kBlock <= text.size() && isTidyBlock(text.utf16() + at, kBlock)) {
        at += kBlock;
    }
    while (at < text.size() && (isPlain(text[at]) || (text[at] == u' ' && text[at - 1] != u' '))) {
        ++at;
    }
    // A blank at the end, or in front of another one, goes.
    return text[at - 1] == u' ' ? at - 1 : at;
}

/// One pass: blanks are collapsed, and line ends become blanks or, with `keepsLines`, stay where they divide
/// sentences.
QString tidied(const QString& text, bool keepsLines) {
    const qsizetype tidy = tidySize(text);
    const qsizetype size = text.size();
    if (tidy == size) {
        return text;
    }
    QString result(size, Qt::Uninitialized);
    QChar* const begin = result.data();
    QChar* to = std::copy_n(text.constData(), tidy, begin);
    bool isBlank = false;
    int lineEnds = 0;
    for (qsizetype i = tidy; i < size; ++i) {
        const QChar unit = text[i];
        if (isPlain(unit) && !isBlank) {
            *to++ = unit;
        } else if (isLineBreak(unit)) {
            lineEnds += unit == u'\r' && i + 1 < size && text[i + 1] == u'\n' ? 0 : 1;
            isBlank = true;
        } else if (unit.isSpace()) {
            isBlank = true;
        } else if (unit == u'\\' && i + 1 < size && text[i + 1] == u'n') {
            ++i;
            ++lineEnds;
            isBlank = true;
        } else if (!isInvisible(unit)) {
            if (isBlank && to != begin) {
                const bool isLine = keepsLines && lineEnds > 0 && (lineEnds > 1 || closes(to[-1]));
                *to++ = isLine ? u'\n' : u' ';
            }
            isBlank = false;
            lineEnds = 0;
            *to++ = unit;
            if (const qsizetype more = tidySize(QStringView(text).sliced(i)); more > 1) {
                to = std::copy_n(text.constData() + i + 1, more - 1, to);
                i += more - 1;
            }
        }
    }
    result.truncate(to - begin);
    return result == text ? text : result;
}

} // namespace

QString tidiedTitle(const QString& text) {
    return tidied(text, false);
}

QString tidiedLines(const QString& text) {
    return tidied(text, true);
}

void closeSentence(QString& text) {
    QStringView rest(text);
    while (!rest.isEmpty() && QStringView(u"\"”“»’')]").contains(rest.back())) {
        rest.chop(1);
    }
    if (!rest.isEmpty() && !QStringView(u".!?…:").contains(rest.back())) {
        text.reserve(text.size() + 1);
        text += u'.';
    }
}

} // namespace guide
