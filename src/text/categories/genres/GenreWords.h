#pragma once

#include "text/categories/genres/GenreRow.h"
#include "text/search/WordAutomaton.h"

#include <QString>

#include <memory>
#include <vector>

namespace guide::genres {

/// A word of the tables in a text.
struct Hit {
    qsizetype begin;
    qsizetype end;
    const Row* row;
};

/// The words of all tables that count in one of some places. Immutable; may be used from any thread.
class GenreWords {
  public:
    explicit GenreWords(std::uint32_t places);
    ~GenreWords();

    /// The words in the text that count in `places` and mean something in the language (any if empty), in
    /// the order of their beginnings. Words within longer ones are left out.
    std::vector<Hit> find(QStringView text, QStringView language, std::uint32_t places) const;

  private:
    struct Word;

    std::vector<Word> m_words;
    std::unique_ptr<WordAutomaton> m_automaton;
};

/// What the name means as a whole, ignoring case and diacritics; 0 if the tables do not have it as a name.
Bits bitsOfName(QStringView name, QStringView language);

/// Whether the words of the row mean this in the language.
bool isOfLanguage(const Row& row, QStringView language);

} // namespace guide::genres
