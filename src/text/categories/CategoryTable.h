#pragma once

#include "text/categories/TVListingsCategory.h"
#include "text/search/WordAutomaton.h"

#include <QString>

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace guide {

/// A key of a category table: its text and what the search ignores.
struct CategoryKey {
    constexpr CategoryKey(const char16_t* keyText,
                          FoldMode keyMode = FoldMode::None) // NOLINT: keys are literals
        : text(keyText)
        , mode(keyMode) {}

    std::u16string_view text;
    FoldMode mode;
};

/// A row of a category table: any of its keys adds its bits.
struct CategoryRow {
    TVListingsCategory adds;
    std::vector<CategoryKey> keys;
};

/// A table of words, searched in one pass for each fold mode that its keys use.
class CategoryTable {
  public:
    static constexpr std::size_t kMostRows = 64;

    explicit CategoryTable(const std::vector<CategoryRow>& rows);

    /// The rows with a key that occurs in the text: bit i is row i.
    std::uint64_t rowsFoundIn(const QString& text) const;

    /// The combined bits of the rows.
    TVListingsCategory categoriesOf(std::uint64_t rows) const;

  private:
    struct Search {
        WordAutomaton automaton;
        std::vector<std::uint8_t> rowOfKey;
    };
    std::vector<Search> m_searches;
    std::vector<TVListingsCategory> m_adds;
};

} // namespace guide
