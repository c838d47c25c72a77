#include "text/CategoryTable.h"

#include <algorithm>
#include <array>

namespace guide {

namespace {

/// Whether the text may hold something that composes: marks stand above the Latin letters.
bool mayCompose(QStringView text) {
    return std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() >= 0x300; });
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
    const QString composed = mayCompose(text) ? text.normalized(QString::NormalizationForm_C) : text;
    std::uint64_t rows = 0;
    for (const Search& search : m_searches) {
        search.automaton.walk(composed, [&](int key, qsizetype) {
            rows |= std::uint64_t(1) << search.rowOfKey[static_cast<std::size_t>(key)];
        });
    }
    return rows;
}

TVListingsCategory CategoryTable::categoriesOf(std::uint64_t rows) const {
    TVListingsCategory categories = 0;
    for (std::size_t row = 0; row < m_adds.size(); ++row) {
        if (rows >> row & 1) {
            categories |= m_adds[row];
        }
    }
    return categories;
}

} // namespace guide
