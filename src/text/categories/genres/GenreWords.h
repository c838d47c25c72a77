#pragma once

#include "text/categories/genres/PhraseIndex.h"

#include <QStringView>

#include <vector>

namespace guide::genres {

/// Words of the tables in a text.
struct Hit {
    qsizetype begin;
    qsizetype end;
    const Row* row;
};

/// The words of all tables that count in one of some places. A text is cut into words, which are looked up by
/// their hashes: the tables have so many words that an automaton would take many megabytes. Immutable; may be
/// used from any thread.
class GenreWords {
  public:
    explicit GenreWords(std::uint32_t places);

    /// The words in the text that count in `places` and mean something in the language (any if empty), in
    /// the order of their beginnings. Words within longer ones are left out. What stands between the words of
    /// a phrase makes no difference: "talk-show" and "talk show" are equal.
    std::vector<Hit> find(QStringView text, QStringView language, std::uint32_t places) const;

  private:
    struct Word;
    struct Search;

    static void readWord(QStringView text, qsizetype& at, Word& word);
    void findAt(Search& search, std::size_t place) const;

    PhraseIndex m_words;
    /// By their beginnings and by their ends.
    PhraseIndex m_stems;
    PhraseIndex m_suffixes;
    /// In which any suffix counts.
    std::uint32_t m_suffixLanguages = 0;
};

/// What the name means as a whole, ignoring case and diacritics; 0 if the tables do not have it as a name.
Bits bitsOfName(QStringView name, QStringView language);

} // namespace guide::genres
