#include "text/categories/CategoryTable.h"

#include <bit>

namespace guide {

namespace {

/// Whether the unit may compose with the preceding one. Among the characters of feed texts only marks do.
unsigned mayCompose(char16_t unit) {
    const auto isWithin = [unit](char16_t first, char16_t behind) {
        return static_cast<unsigned>(unit >= first) & static_cast<unsigned>(unit < behind);
    };
    return isWithin(0x300, 0x370) | isWithin(0x483, 0x48A) | isWithin(0x590, 0x2000) |
           static_cast<unsigned>(unit > 0x2116);
}

bool mayCompose(QStringView text) {
    // Branch-free, so that it is vectorised.
    unsigned found = 0;
    for (const QChar unit : text) {
        found |= mayCompose(unit.unicode());
    }
    return found != 0;
}

} // namespace

CategoryTable::CategoryTable(const std::vector<CategoryRow>& rows) {
    Q_ASSERT(rows.size() <= kMostRows);
    for (const CategoryRow& row : rows) {
        m_adds.push_back(row.adds);
    }
    for (const FoldMode mode :
         {FoldMode::None, FoldMode::Case, FoldMode::Diacritics, FoldMode::CaseAndDiacritics}) {
        std::vector<QString> keys;
        std::vector<std::uint8_t> rowOfKey;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (const CategoryKey& key : rows[row].keys) {
                if (key.mode == mode) {
                    keys.push_back(
                        QString::fromUtf16(key.text.data(), static_cast<qsizetype>(key.text.size())));
                    rowOfKey.push_back(static_cast<std::uint8_t>(row));
                }
            }
        }
        if (!keys.empty()) {
            m_searches.push_back({WordAutomaton(keys, mode), std::move(rowOfKey)});
        }
    }
}

std::uint64_t CategoryTable::rowsFoundIn(const QString& text) const {
    QString composed;
    QStringView searched = text;
    if (mayCompose(text)) {
        composed = text.normalized(QString::NormalizationForm_C);
        searched = composed;
    }
    std::uint64_t rows = 0;
    for (const Search& search : m_searches) {
        search.automaton.findWords(searched, [&](int key) {
            rows |= std::uint64_t(1) << search.rowOfKey[static_cast<std::size_t>(key)];
        });
    }
    return rows;
}

TVListingsCategory CategoryTable::categoriesOf(std::uint64_t rows) const {
    TVListingsCategory categories = 0;
    for (std::uint64_t left = rows; left != 0; left &= left - 1) {
        categories |= m_adds[static_cast<std::size_t>(std::countr_zero(left))];
    }
    return categories;
}

} // namespace guide
