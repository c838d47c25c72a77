#pragma once

#include "text/categories/genres/GenreRow.h"

#include <QStringView>

#include <bitset>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace guide::genres {

using Hash = std::uint64_t;

/// FNV-1a over code units: the hashes of all beginnings of a word come for free.
inline constexpr Hash kEmptyHash = 0xcbf29ce484222325;

constexpr Hash extended(Hash hash, char16_t unit) {
    return (hash ^ unit) * 0x100000001b3;
}

/// A bit for each language, several separated by blanks; all bits if there are none.
std::uint32_t languagesOf(QStringView languages);

/// A row's words that begin with a known one.
struct Phrase {
    const Row* row;
    /// Of the row, as languagesOf().
    std::uint32_t languages;
    /// Of the other words, folded.
    std::vector<Hash> rest;
    /// The length of the last word if it may have other endings; of one that is alone, it is not used.
    qsizetype stem = 0;
};
/// Phrases by their first word.
class PhraseIndex {
  public:
    void add(Hash first, Phrase phrase);
    /// To be called when all are added.
    void finish();
    std::span<const Phrase> find(Hash first) const;

  private:
    struct Slot {
        Hash first = 0;
        std::uint32_t from = 0;
        std::uint32_t behind = 0;
    };
    /// By some bits of the hashes: most words of a text are in no phrase.
    std::bitset<0x20000> m_filter;
    std::vector<std::pair<Hash, Phrase>> m_added;
    std::vector<Phrase> m_phrases;
    /// A hash table with open addressing.
    std::vector<Slot> m_slots;
};

} // namespace guide::genres
