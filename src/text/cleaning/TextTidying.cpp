#include "text/cleaning/TextTidying.h"

#include <QStringView>

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

/// Whether there is nothing to do, as in most texts.
bool isTidy(QStringView text) {
    QChar before = u' ';
    for (const QChar unit : text) {
        const bool isBlank = unit == u' ' && before != u' ';
        if (!isPlain(unit) && !isBlank && (unit < QChar(0x1680) || unit.isSpace() || isInvisible(unit))) {
            return false;
        }
        before = unit;
    }
    return before != u' ';
}

/// One pass: blanks are collapsed, and line ends become blanks or, with `keepsLines`, stay where they divide
/// sentences.
QString tidied(const QString& text, bool keepsLines) {
    if (isTidy(text)) {
        return text;
    }
    QString result(text.size(), Qt::Uninitialized);
    QChar* to = result.data();
    QChar* const begin = to;
    bool isBlank = false;
    int lineEnds = 0;
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
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
