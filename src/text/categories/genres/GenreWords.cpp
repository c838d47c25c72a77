#include "text/categories/genres/GenreWords.h"

#include "text/search/FoldedText.h"

#include <QHash>

#include <algorithm>
#include <array>

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

bool isWordPart(QChar unit) {
    return unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate();
}

} // namespace

bool isOfLanguage(const Row& row, QStringView language) {
    if (!row.languages || language.isEmpty()) {
        return true;
    }
    for (const QStringView known : QStringView(row.languages).tokenize(u' ')) {
        if (known == language) {
            return true;
        }
    }
    return false;
}

/// Several rows may have a word.
struct GenreWords::Word {
    std::vector<const Row*> rows;
    bool isOpenBefore = false;
    bool isOpenBehind = false;
};

GenreWords::GenreWords(std::uint32_t places) {
    std::vector<QString> words;
    QHash<QString, qsizetype> known;
    forEachWord(places, [&](const Row& row, QStringView written) {
        QString word = foldedText(written);
        const auto place = known.constFind(word);
        if (place != known.constEnd()) {
            m_words[static_cast<std::size_t>(*place)].rows.push_back(&row);
            return;
        }
        known.insert(word, static_cast<qsizetype>(m_words.size()));
        Word& made = m_words.emplace_back();
        made.rows.push_back(&row);
        made.isOpenBefore = word.startsWith(u'*');
        made.isOpenBehind = word.endsWith(u'*');
        words.push_back(word.remove(u'*'));
    });
    m_automaton = std::make_unique<WordAutomaton>(words, FoldMode::CaseAndDiacritics);
}

GenreWords::~GenreWords() = default;

std::vector<Hit> GenreWords::find(QStringView text, QStringView language, std::uint32_t places) const {
    std::vector<Hit> hits;
    m_automaton->walk(text, [&](const WordAutomaton::Occurrence& occurrence) {
        const Word& word = m_words[static_cast<std::size_t>(occurrence.word)];
        if (!word.isOpenBehind && occurrence.end < text.size() && isWordPart(text[occurrence.end])) {
            return;
        }
        const qsizetype begin = m_automaton->beginOf(text, occurrence);
        if (!word.isOpenBefore && begin > 0 && isWordPart(text[begin - 1])) {
            return;
        }
        for (const Row* row : word.rows) {
            if ((row->places & places) != 0 && isOfLanguage(*row, language)) {
                hits.push_back({begin, occurrence.end, row});
            }
        }
    });
    if (hits.size() > 1) {
        std::ranges::stable_sort(hits, [](const Hit& a, const Hit& b) {
            return a.begin != b.begin ? a.begin < b.begin : a.end > b.end;
        });
        // Ends only grow among those that stay, so the last one decides.
        std::size_t kept = 1;
        for (std::size_t i = 1; i < hits.size(); ++i) {
            const Hit& before = hits[kept - 1];
            const bool isSame = hits[i].begin == before.begin && hits[i].end == before.end;
            if (isSame || hits[i].end > before.end) {
                hits[kept++] = hits[i];
            }
        }
        hits.resize(kept);
    }
    return hits;
}

Bits bitsOfName(QStringView name, QStringView language) {
    static const auto kNames = [] {
        QHash<QString, std::vector<const Row*>> names;
        forEachWord(kName, [&](const Row& row, QStringView word) {
            if (!word.startsWith(u'*') && !word.endsWith(u'*')) {
                names[foldedText(word)].push_back(&row);
            }
        });
        return names;
    }();
    const auto found = kNames.constFind(foldedText(name));
    if (found == kNames.constEnd()) {
        return 0;
    }
    // A word of the language first, then one of all languages; the name of a genre hardly ever means
    // something else in another language.
    const auto rowThat = [&](auto&& isWanted) { return std::ranges::find_if(*found, isWanted); };
    auto row = rowThat([&](const Row* each) { return each->languages && isOfLanguage(*each, language); });
    if (row == found->end()) {
        row = rowThat([](const Row* each) { return !each->languages; });
    }
    return row != found->end() ? (*row)->adds : found->front()->adds;
}

} // namespace guide::genres
