#include "text/categories/genres/GenreWords.h"

#include "text/search/FoldTable.h"

#include <algorithm>
#include <array>
#include <utility>

namespace guide::genres {

namespace {

template <class Use>
void forEachWord(std::uint32_t places, Use&& use) {
    for (const std::span<const Row> rows : {titleRows(), channelRows(), germanicRows(), romanceRows(),
                                            slavicRows(), cyrillicRows(), otherRows()}) {
        for (const Row& row : rows) {
            if ((row.places & places) == 0) {
                continue;
            }
            for (const QStringView word : QStringView(row.words).tokenize(u'|')) {
                use(row, word);
            }
        }
    }
}

Hash hashOf(QStringView folded) {
    Hash hash = kEmptyHash;
    for (const QChar unit : folded) {
        hash = extended(hash, unit.unicode());
    }
    return hash;
}

/// Of a whole name, with what stands between its words.
Hash hashOfName(QStringView name) {
    const FoldTable& table = FoldTable::of(FoldMode::CaseAndDiacritics);
    Hash hash = kEmptyHash;
    for (const QChar unit : name) {
        const char16_t folded = table[unit.unicode()];
        if (folded != FoldTable::kDropped) {
            hash = extended(hash, folded != FoldTable::kSeveral ? folded : unit.unicode());
        }
    }
    return hash;
}

bool isWordPart(char16_t unit) {
    if (unit < 0x80) {
        return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') ||
               (unit >= u'0' && unit <= u'9');
    }
    if (unit < 0x250) {
        return unit >= 0xC0 && unit != 0xD7 && unit != 0xF7;
    }
    const QChar character(unit);
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate();
}

constexpr std::uint32_t kAnyLanguage = 0;

/// Whether a row with these languages counts in a text of the others.
constexpr bool isCommon(std::uint32_t row, std::uint32_t text) {
    return row == kAnyLanguage || (row & text) != 0;
}

Phrase phraseOf(const Row& row) {
    return {&row, row.languages ? languagesOf(row.languages) : kAnyLanguage, {}, 0};
}

} // namespace

struct GenreWords::Word {
    /// More than any word of the tables has; what is behind is not compared.
    static constexpr std::size_t kMostUnits = 48;

    qsizetype begin = 0;
    qsizetype end = 0;
    Hash hash = kEmptyHash;
    std::size_t size = 0;
    std::array<char16_t, kMostUnits> folded;

    QStringView text() const { return {folded.data(), static_cast<qsizetype>(size)}; }
};

struct GenreWords::Search {
    QStringView text;
    std::uint32_t languages;
    std::uint32_t places;
    std::vector<Word> words;
    std::vector<Hit> hits;
};

GenreWords::GenreWords(std::uint32_t places) {
    forEachWord(places, [&](const Row& row, QStringView written) {
        const bool isSuffix = written.startsWith(u'*');
        const bool isStem = written.endsWith(u'*');
        std::vector<Word> words;
        for (qsizetype at = 0; at < written.size();) {
            Word word;
            readWord(written, at, word);
            if (word.size > 0) {
                words.push_back(word);
            }
        }
        Q_ASSERT(!words.empty() && (!isSuffix || words.size() == 1));
        Phrase phrase = phraseOf(row);
        for (std::size_t i = 1; i < words.size(); ++i) {
            phrase.rest.push_back(words[i].hash);
        }
        if (isStem) {
            phrase.stem = static_cast<qsizetype>(words.back().size);
        }
        if (isSuffix) {
            Hash hash = kEmptyHash;
            for (std::size_t i = words[0].size; i > 0; --i) {
                hash = extended(hash, words[0].folded[i - 1]);
            }
            m_suffixLanguages |= phrase.languages == kAnyLanguage ? 0xFFFFFFFF : phrase.languages;
            m_suffixes.add(hash, std::move(phrase));
        } else {
            (isStem && words.size() == 1 ? m_stems : m_words).add(words[0].hash, std::move(phrase));
        }
    });
    for (PhraseIndex* index : {&m_words, &m_stems, &m_suffixes}) {
        index->finish();
    }
}

/// Reads the word at the position or behind it, and moves the position behind the word.
void GenreWords::readWord(QStringView text, qsizetype& at, Word& word) {
    const FoldTable& table = FoldTable::of(FoldMode::CaseAndDiacritics);
    while (at < text.size() && !isWordPart(text[at].unicode())) {
        ++at;
    }
    word.begin = at;
    for (; at < text.size() && isWordPart(text[at].unicode()); ++at) {
        char16_t unit = table[text[at].unicode()];
        if (unit == FoldTable::kDropped) {
            continue;
        }
        if (unit == FoldTable::kSeveral) {
            unit = text[at].unicode();
        }
        if (word.size < Word::kMostUnits) {
            word.folded[word.size++] = unit;
            word.hash = extended(word.hash, unit);
        }
    }
    word.end = at;
}

/// Adds the phrases that begin with a word.
void GenreWords::findAt(Search& search, std::size_t place) const {
    /// Between the words of a phrase: ". ", " & ".
    constexpr qsizetype kWidestGap = 3;
    const Word& first = search.words[place];
    const auto add = [&](std::span<const Phrase> phrases) {
        for (const Phrase& phrase : phrases) {
            if ((phrase.row->places & search.places) == 0 || !isCommon(phrase.languages, search.languages) ||
                phrase.rest.size() >= search.words.size() - place) {
                continue;
            }
            bool matches = true;
            for (std::size_t i = 0; matches && i < phrase.rest.size(); ++i) {
                const Word& word = search.words[place + 1 + i];
                const bool isStem = phrase.stem > 0 && i + 1 == phrase.rest.size();
                const Hash hash = isStem && static_cast<qsizetype>(word.size) > phrase.stem
                                      ? hashOf(word.text().first(phrase.stem))
                                      : word.hash;
                matches = hash == phrase.rest[i] && word.begin - search.words[place + i].end <= kWidestGap;
            }
            if (matches) {
                search.hits.push_back(
                    {first.begin, search.words[place + phrase.rest.size()].end, phrase.row});
            }
        }
    };
    add(m_words.find(first.hash));
    constexpr std::size_t kShortestPart = 3;
    Hash hash = kEmptyHash;
    for (std::size_t i = 0; i < first.size; ++i) {
        hash = extended(hash, first.folded[i]);
        if (i + 1 >= kShortestPart) {
            add(m_stems.find(hash));
        }
    }
    if ((m_suffixLanguages & search.languages) == 0) {
        return;
    }
    hash = kEmptyHash;
    for (std::size_t i = first.size; first.size > kShortestPart && i > 0; --i) {
        hash = extended(hash, first.folded[i - 1]);
        if (first.size - i + 1 >= kShortestPart) {
            add(m_suffixes.find(hash));
        }
    }
}

std::vector<Hit> GenreWords::find(QStringView text, QStringView language, std::uint32_t places) const {
    static thread_local std::vector<Word> kept;
    Search search{text, languagesOf(language), places, std::move(kept), {}};
    search.words.clear();
    for (qsizetype at = 0; at < text.size();) {
        Word& word = search.words.emplace_back();
        readWord(text, at, word);
        if (word.size == 0) {
            search.words.pop_back();
        }
    }
    for (std::size_t place = 0; place < search.words.size(); ++place) {
        findAt(search, place);
    }
    kept = std::move(search.words);
    std::vector<Hit>& hits = search.hits;
    if (hits.size() > 1) {
        std::ranges::stable_sort(hits, [](const Hit& a, const Hit& b) {
            return a.begin != b.begin ? a.begin < b.begin : a.end > b.end;
        });
        // Ends only grow among those that stay, so the last one decides.
        std::size_t left = 1;
        for (std::size_t i = 1; i < hits.size(); ++i) {
            const Hit& before = hits[left - 1];
            const bool isSame = hits[i].begin == before.begin && hits[i].end == before.end;
            if (isSame || hits[i].end > before.end) {
                hits[left++] = hits[i];
            }
        }
        hits.resize(left);
    }
    return std::move(hits);
}

Bits bitsOfName(QStringView name, QStringView language) {
    static const PhraseIndex kNames = [] {
        PhraseIndex names;
        forEachWord(kName, [&](const Row& row, QStringView word) {
            if (!word.startsWith(u'*') && !word.endsWith(u'*')) {
                names.add(hashOfName(word), phraseOf(row));
            }
        });
        names.finish();
        return names;
    }();
    const std::span<const Phrase> found = kNames.find(hashOfName(name));
    if (found.empty()) {
        return 0;
    }
    // A word of the language first, then one of all languages; the name of a genre hardly ever means
    // something else in another language.
    const std::uint32_t wanted = languagesOf(language);
    auto phrase =
        std::ranges::find_if(found, [&](const Phrase& each) { return (each.languages & wanted) != 0; });
    if (phrase == found.end()) {
        phrase = std::ranges::find(found, kAnyLanguage, &Phrase::languages);
    }
    return phrase != found.end() ? phrase->row->adds : found.front().row->adds;
}

} // namespace guide::genres
