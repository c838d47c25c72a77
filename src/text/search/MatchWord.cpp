#include "text/search/MatchWord.h"

#include "text/search/FoldTable.h"

namespace guide {

namespace {

bool isLetter(char32_t character) {
    return character < 0x80 ? (character | 0x20) >= U'a' && (character | 0x20) <= U'z'
                            : QChar::isLetter(character);
}

/// Whether the character that ends at the position is a letter; marks count as part of the character before
/// them.
bool letterEndsAt(QStringView text, qsizetype position) {
    while (position > 0) {
        --position;
        char32_t character = text[position].unicode();
        if (text[position].isLowSurrogate() && position > 0 && text[position - 1].isHighSurrogate()) {
            --position;
            character = QChar::surrogateToUcs4(text[position], text[position + 1]);
        }
        if (character < 0x80 || !QChar::isMark(character)) {
            return isLetter(character);
        }
    }
    return false;
}

/// Whether the text ends at the position or continues with an ASCII character that is not a letter.
bool wordEndsAt(QStringView text, qsizetype position) {
    while (position < text.size()) {
        const char32_t character = takeCodePoint(text, position);
        if (character < 0x80) {
            return !isLetter(character);
        }
        if (!QChar::isMark(character)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool isWholeWord(QStringView text, qsizetype begin, qsizetype end) {
    return wordEndsAt(text, end) && !letterEndsAt(text, begin);
}

bool matchWord(QStringView text, QStringView word) {
    const FoldTable& table = FoldTable::of(FoldMode::CaseAndDiacritics);
    const QString wanted = table.folded(word);
    const qsizetype at = wanted.isEmpty() ? -1 : table.folded(text).indexOf(wanted);
    if (at < 0) {
        return false;
    }
    // Maps the match back to positions in the original text.
    qsizetype begin = 0;
    qsizetype end = 0;
    for (qsizetype units = 0; units < at + wanted.size();) {
        const qsizetype character = end;
        const qsizetype before = units;
        units += table.fold(takeCodePoint(text, end)).size();
        if (before <= at && at < units) {
            begin = character;
        }
    }
    return isWholeWord(text, begin, end);
}

} // namespace guide
