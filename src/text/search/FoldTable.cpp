#include "text/search/FoldTable.h"

#include <algorithm>

namespace guide {

namespace {

bool ignoresCase(FoldMode mode) {
    return mode == FoldMode::Case || mode == FoldMode::CaseAndDiacritics;
}

bool ignoresDiacritics(FoldMode mode) {
    return mode == FoldMode::Diacritics || mode == FoldMode::CaseAndDiacritics;
}

} // namespace

void FoldedCharacter::append(char32_t character) {
    if (QChar::requiresSurrogates(character)) {
        m_units[static_cast<std::size_t>(m_size++)] = QChar::highSurrogate(character);
        m_units[static_cast<std::size_t>(m_size++)] = QChar::lowSurrogate(character);
    } else {
        m_units[static_cast<std::size_t>(m_size++)] = static_cast<char16_t>(character);
    }
}

char32_t takeCodePoint(QStringView text, qsizetype& position) {
    const QChar first = text[position++];
    if (first.isHighSurrogate() && position < text.size() && text[position].isLowSurrogate()) {
        return QChar::surrogateToUcs4(first, text[position++]);
    }
    return first.unicode();
}

FoldTable::FoldTable(FoldMode mode)
    : m_mode(mode)
    , m_units(std::make_unique<std::array<char16_t, 0x10000>>()) {
    for (char32_t unit = 0; unit < 0x10000; ++unit) {
        char16_t& entry = (*m_units)[unit];
        if (unit < 0x80) {
            entry =
                static_cast<char16_t>(ignoresCase(mode) && unit >= u'A' && unit <= u'Z' ? unit + 0x20 : unit);
            continue;
        }
        if (QChar::isSurrogate(unit)) {
            entry = kSeveral;
            continue;
        }
        const FoldedCharacter folded = fold(unit);
        entry = folded.size() == 0 ? kDropped : folded.size() > 1 ? kSeveral : *folded.begin();
    }
}

const FoldTable& FoldTable::of(FoldMode mode) {
    switch (mode) {
    case FoldMode::None: {
        static const FoldTable kTable(FoldMode::None);
        return kTable;
    }
    case FoldMode::Case: {
        static const FoldTable kTable(FoldMode::Case);
        return kTable;
    }
    case FoldMode::Diacritics: {
        static const FoldTable kTable(FoldMode::Diacritics);
        return kTable;
    }
    case FoldMode::CaseAndDiacritics:
        break;
    }
    static const FoldTable kTable(FoldMode::CaseAndDiacritics);
    return kTable;
}

FoldedCharacter FoldTable::fold(char32_t character) const {
    FoldedCharacter folded;
    if (ignoresDiacritics(m_mode)) {
        appendBases(character, folded);
    } else {
        append(character, folded);
    }
    return folded;
}

void FoldTable::append(char32_t character, FoldedCharacter& to) const {
    to.append(ignoresCase(m_mode) ? QChar::toCaseFolded(character) : character);
}

void FoldTable::appendBases(char32_t character, FoldedCharacter& to) const {
    if (QChar::isMark(character)) {
        return;
    }
    if (QChar::decompositionTag(character) != QChar::Canonical) {
        append(character, to);
        return;
    }
    // The first part may decompose further.
    const QString parts = QChar::decomposition(character);
    for (qsizetype i = 0; i < parts.size();) {
        appendBases(takeCodePoint(parts, i), to);
    }
}

QString FoldTable::folded(QStringView text) const {
    QString folded(text.size(), Qt::Uninitialized);
    QChar* to = folded.data();
    for (qsizetype i = 0; i < text.size();) {
        const char16_t unit = (*this)[text[i].unicode()];
        if (unit != kSeveral) {
            *to = QChar(unit);
            to += unit != kDropped;
            ++i;
            continue;
        }
        qsizetype behind = i;
        const FoldedCharacter several = fold(takeCodePoint(text, behind));
        const qsizetype written = to - folded.constData();
        // Leaves room for the rest of the text.
        if (folded.size() - written < several.size() + text.size() - behind) {
            folded.resize(written + several.size() + 3 * (text.size() - behind));
            to = folded.data() + written;
        }
        to = std::copy(several.begin(), several.end(), to);
        i = behind;
    }
    folded.truncate(to - folded.constData());
    return folded;
}

} // namespace guide
