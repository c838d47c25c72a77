#include "text/FoldTable.h"

namespace guide {

namespace {

bool ignoresCase(FoldMode mode) {
    return mode == FoldMode::Case || mode == FoldMode::CaseAndDiacritics;
}

bool ignoresDiacritics(FoldMode mode) {
    return mode == FoldMode::Diacritics || mode == FoldMode::CaseAndDiacritics;
}

void appendCodePoint(char32_t character, QString& to) {
    if (QChar::requiresSurrogates(character)) {
        to += QChar(QChar::highSurrogate(character));
        to += QChar(QChar::lowSurrogate(character));
    } else {
        to += QChar(static_cast<char16_t>(character));
    }
}

} // namespace

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
    QString folded;
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
        folded.clear();
        append(unit, folded);
        entry = folded.isEmpty() ? kDropped : folded.size() > 1 ? kSeveral : folded[0].unicode();
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

void FoldTable::append(char32_t character, QString& to) const {
    if (!ignoresDiacritics(m_mode)) {
        appendCodePoint(ignoresCase(m_mode) ? QChar::toCaseFolded(character) : character, to);
        return;
    }
    if (QChar::isMark(character)) {
        return;
    }
    const auto appendBase = [&](char32_t base) {
        if (!QChar::isMark(base)) {
            appendCodePoint(ignoresCase(m_mode) ? QChar::toCaseFolded(base) : base, to);
        }
    };
    if (QChar::decompositionTag(character) != QChar::Canonical) {
        appendBase(character);
        return;
    }
    // A canonical decomposition is already taken all the way down.
    const QString parts = QChar::decomposition(character);
    for (qsizetype i = 0; i < parts.size();) {
        appendBase(takeCodePoint(parts, i));
    }
}

} // namespace guide
