#include "text/search/FoldTable.h"

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

namespace {

bool ignoresCase(FoldMode mode) {
    return mode == FoldMode::Case || mode == FoldMode::CaseAndDiacritics || mode == FoldMode::Lookalikes;
}

bool ignoresDiacritics(FoldMode mode) {
    return mode == FoldMode::Diacritics || mode == FoldMode::CaseAndDiacritics ||
           mode == FoldMode::Lookalikes;
}

/// What is typed in place of a letter, in lower case, that has no decomposition; null for any other.
const char* lookalike(char32_t letter) {
    static constexpr std::array<std::pair<char32_t, const char*>, 11> kLetters{{
        {U'ß', "ss"},
        {U'æ', "ae"},
        {U'ð', "d"},
        {U'ø', "o"},
        {U'þ', "th"},
        {U'đ', "d"},
        {U'ħ', "h"},
        {U'ı', "i"},
        {U'ł', "l"},
        {U'œ', "oe"},
        {U'ŧ', "t"},
    }};
    const auto found =
        std::ranges::lower_bound(kLetters, letter, {}, &std::pair<char32_t, const char*>::first);
    return found != kLetters.end() && found->first == letter ? found->second : nullptr;
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
    case FoldMode::CaseAndDiacritics: {
        static const FoldTable kTable(FoldMode::CaseAndDiacritics);
        return kTable;
    }
    case FoldMode::Lookalikes:
        break;
    }
    static const FoldTable kTable(FoldMode::Lookalikes);
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
    const char32_t folded = ignoresCase(m_mode) ? QChar::toCaseFolded(character) : character;
    if (const char* typed = m_mode == FoldMode::Lookalikes && folded >= 0x80 ? lookalike(folded) : nullptr) {
        for (; *typed != 0; ++typed) {
            to.append(static_cast<char32_t>(*typed));
        }
    } else {
        to.append(folded);
    }
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
