#include "text/MatchWord.h"

#include "text/FoldTable.h"

#include <vector>

namespace guide {

namespace {

/// Whether the character that ends at the position is a letter, marks taken as part of what they are on.
bool letterEndsAt(QStringView text, qsizetype position) {
    while (position > 0) {
        --position;
        char32_t character = text[position].unicode();
        if (text[position].isLowSurrogate() && position > 0 && text[position - 1].isHighSurrogate()) {
            --position;
            character = QChar::surrogateToUcs4(text[position], text[position + 1]);
        }
        if (!QChar::isMark(character)) {
            return QChar::isLetter(character);
        }
    }
    return false;
}

} // namespace

bool standsAsWord(QStringView text, qsizetype begin, qsizetype end) {
    if (letterEndsAt(text, begin)) {
        return false;
    }
    while (end < text.size()) {
        qsizetype behind = end;
        const char32_t character = takeCodePoint(text, behind);
        if (!QChar::isMark(character)) {
            return character < 0x80 && !QChar::isLetter(character);
        }
        end = behind;
    }
    return true;
}

bool matchWord(QStringView text, QStringView word) {
    const FoldTable& table = FoldTable::of(FoldMode::CaseAndDiacritics);
    QString wanted;
    for (qsizetype i = 0; i < word.size();) {
        table.append(takeCodePoint(word, i), wanted);
    }
    if (wanted.isEmpty()) {
        return false;
    }
    // The folded text, and for each of its units where the character stands that it comes from.
    QString folded;
    std::vector<qsizetype> begins;
    std::vector<qsizetype> ends;
    folded.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype begin = i;
        table.append(takeCodePoint(text, i), folded);
        begins.resize(static_cast<std::size_t>(folded.size()), begin);
        ends.resize(static_cast<std::size_t>(folded.size()), i);
    }
    const qsizetype at = folded.indexOf(wanted);
    return at >= 0 && standsAsWord(text, begins[static_cast<std::size_t>(at)],
                                   ends[static_cast<std::size_t>(at + wanted.size() - 1)]);
}

} // namespace guide
