#include "text/ShowClassifier.h"

#include "text/MatchWord.h"
#include "text/ShowClassifierWords.h"
#include "text/WordAutomaton.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <initializer_list>
#include <map>
#include <vector>

namespace guide {

namespace {

constexpr std::size_t kMostWords = 384;
using WordSet = std::bitset<kMostWords>;

/// What one pass over a text found.
struct FoundWords {
    /// That stand as a word, as matchWord says.
    WordSet matched;
    /// That occur at all.
    WordSet seen;
};

/// The words of all groups and of the later steps in one automaton, and the groups as sets of words.
class Vocabulary {
  public:
    struct Group {
        TVListingsCategory adds = 0;
        TVListingsCategory clears = 0;
        WordSet words;
        std::optional<std::size_t> substring;
        std::optional<std::size_t> conditional;
        std::size_t unless = 0;
    };

    Vocabulary() {
        for (const ClassifierGroup& group : classifierGroups()) {
            Group& made = m_groups.emplace_back(Group{group.adds, group.clears, {}, {}, {}, 0});
            for (const char16_t* word : group.words) {
                made.words.set(indexOf(word));
            }
            if (group.substring) {
                made.substring = indexOf(group.substring);
            }
            if (group.conditional) {
                made.conditional = indexOf(group.conditional);
                made.unless = indexOf(group.unless);
            }
        }
        fallenLeaves = indexOf(u"kad lišće pada");
        pets = indexOf(u"kućni ljubimci");
        southPark = indexOf(u"south park");
        reportage = indexOf(u"reportaža");
        tale = indexOf(u"priča");
        film = indexOf(u"f.");
        series = indexOf(u"s.");
        seriesWithComma = indexOf(u"s,");
        Q_ASSERT(m_words.size() <= kMostWords);
        m_automaton.emplace(m_words, FoldMode::CaseAndDiacritics);
    }

    static const Vocabulary& instance() {
        static const Vocabulary kVocabulary;
        return kVocabulary;
    }

    const std::vector<Group>& groups() const { return m_groups; }

    FoundWords find(QStringView text) const {
        FoundWords found;
        m_automaton->walk(text, [&](int word, qsizetype end) {
            const auto index = static_cast<std::size_t>(word);
            // Only the first occurrence of a word is looked at.
            if (found.seen.test(index)) {
                return;
            }
            found.seen.set(index);
            if (standsAsWord(text, m_automaton->beginOf(text, word, end), end)) {
                found.matched.set(index);
            }
        });
        return found;
    }

    std::size_t fallenLeaves = 0;
    std::size_t pets = 0;
    std::size_t southPark = 0;
    std::size_t reportage = 0;
    std::size_t tale = 0;
    std::size_t film = 0;
    std::size_t series = 0;
    std::size_t seriesWithComma = 0;

  private:
    std::size_t indexOf(const char16_t* word) {
        const auto [place, isNew] = m_indices.try_emplace(QString::fromUtf16(word), m_words.size());
        if (isNew) {
            m_words.push_back(place->first);
        }
        return place->second;
    }

    std::vector<Group> m_groups;
    std::vector<QString> m_words;
    std::map<QString, std::size_t> m_indices;
    std::optional<WordAutomaton> m_automaton;
};

struct NumberedSource {
    int number;
    TVListingsCategory adds;
};

constexpr std::array kNumberedSources{
    NumberedSource{41, TVListingsCategoryForChildren},
    NumberedSource{77, TVListingsCategoryForChildren},
    NumberedSource{36, TVListingsCategorySports},
    NumberedSource{37, TVListingsCategorySports},
    NumberedSource{58, TVListingsCategorySports},
    NumberedSource{94, TVListingsCategorySports},
    NumberedSource{98, TVListingsCategorySports},
    NumberedSource{102, TVListingsCategorySports},
    NumberedSource{161, TVListingsCategorySports},
    NumberedSource{211, TVListingsCategorySports},
    NumberedSource{22, TVListingsCategoryMusic},
    NumberedSource{63, TVListingsCategoryEntertainment},
    NumberedSource{14, TVListingsCategoryDocumentaries},
    NumberedSource{65, TVListingsCategoryDocumentaries},
    NumberedSource{66, TVListingsCategoryDocumentaries},
    NumberedSource{83, TVListingsCategoryDocumentaries},
    NumberedSource{85, TVListingsCategoryDocumentaries},
    NumberedSource{141, TVListingsCategoryDocumentaries},
    NumberedSource{174, TVListingsCategoryDocumentaries},
    NumberedSource{182, TVListingsCategoryDocumentaries},
    NumberedSource{89, TVListingsCategorySeries},
};

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

TVListingsCategory categoriesOfSource(const QString& sourceId) {
    if (sourceId.isEmpty() || sourceId.size() >= 5 || !isDigit(sourceId[0])) {
        return 0;
    }
    int number = 0;
    for (const QChar character : sourceId) {
        if (!isDigit(character)) {
            break;
        }
        number = number * 10 + (character.unicode() - u'0');
    }
    const auto found = std::ranges::find(kNumberedSources, number, &NumberedSource::number);
    return found == kNumberedSources.end() ? 0 : found->adds;
}

struct Exclusion {
    /// All of these have to be there,
    TVListingsCategory all;
    /// and one of these, where there are any.
    TVListingsCategory any;
    TVListingsCategory clears;
};

constexpr TVListingsCategory kSeries = TVListingsCategorySeries;
constexpr TVListingsCategory kSports = TVListingsCategorySports;
constexpr TVListingsCategory kEntertainment = TVListingsCategoryEntertainment;
constexpr TVListingsCategory kDocumentaries = TVListingsCategoryDocumentaries;
constexpr TVListingsCategory kForChildren = TVListingsCategoryForChildren;
constexpr TVListingsCategory kAllFilm = TVListingsCategoryAllFilm;

/// Each on the result of the one before.
constexpr std::array kExclusions{
    Exclusion{kSeries | TVListingsCategoryCrime, 0, TVListingsCategoryCrime},
    Exclusion{kSeries | TVListingsCategoryDramas, 0, TVListingsCategoryDramas},
    Exclusion{kSeries | TVListingsCategoryComedies, 0, TVListingsCategoryComedies},
    Exclusion{kSeries | kSports, 0, kSeries},
    Exclusion{kSports, kAllFilm, kSports},
    Exclusion{kSeries | kEntertainment, 0, kEntertainment},
    Exclusion{kEntertainment, kAllFilm, kEntertainment},
    Exclusion{kSeries, kAllFilm, kAllFilm},
    Exclusion{kDocumentaries, kAllFilm, kAllFilm},
    Exclusion{kForChildren, kAllFilm, kAllFilm},
    Exclusion{kSeries | kForChildren, 0, kSeries},
    Exclusion{kSports | kForChildren, 0, kSports},
    Exclusion{kSeries | kDocumentaries, 0, kSeries},
    Exclusion{TVListingsCategorySF | TVListingsCategoryFantasy, 0, TVListingsCategoryFantasy},
    Exclusion{kSports | kEntertainment, 0, kEntertainment},
};

void addGroups(const Vocabulary& vocabulary, const FoundWords& found, TVListingsCategory& categories) {
    for (const Vocabulary::Group& group : vocabulary.groups()) {
        if ((group.words & found.matched).any() || (group.substring && found.seen.test(*group.substring)) ||
            (group.conditional && found.matched.test(*group.conditional) &&
             !found.matched.test(group.unless))) {
            categories = (categories & ~group.clears) | group.adds;
        }
    }
}

/// The last resort: abbreviations of a film or a series.
TVListingsCategory abbreviated(const Vocabulary& vocabulary, std::initializer_list<const FoundWords*> texts,
                               const FoundWords& identificator) {
    for (const FoundWords* text : texts) {
        if (text != &identificator && text->matched.test(vocabulary.film)) {
            return TVListingsCategoryMovies;
        }
        if (text->matched.test(vocabulary.series) || text->matched.test(vocabulary.seriesWithComma)) {
            return TVListingsCategorySeries;
        }
    }
    return 0;
}

} // namespace

TVListingsCategory classifyEntry(const std::optional<QString>& sourceId, const ClassifiedTexts& texts) {
    const Vocabulary& vocabulary = Vocabulary::instance();
    TVListingsCategory categories = sourceId ? categoriesOfSource(*sourceId) : 0;

    const auto find = [&](const std::optional<QString>& text) {
        return text && !text->isEmpty() ? vocabulary.find(*text) : FoundWords{};
    };
    const FoundWords details = find(texts.instantDetails1);
    const FoundWords title = find(texts.identificator);
    const FoundWords description = find(texts.instantDescription1);
    const auto inOrder = {&details, &title, &description};
    if ((details.seen | title.seen | description.seen).none()) {
        return categories;
    }
    for (const FoundWords* text : inOrder) {
        if (text->seen.any()) {
            addGroups(vocabulary, *text, categories);
        }
    }

    if (title.matched.test(vocabulary.fallenLeaves)) {
        categories = (categories & ~kAllFilm) | kSeries;
    }
    if (title.matched.test(vocabulary.pets)) {
        categories &= ~kAllFilm;
    }
    const bool filmOrChildren = categories & (kAllFilm | kForChildren);
    for (const FoundWords* text : inOrder) {
        if (filmOrChildren && text->matched.test(vocabulary.southPark)) {
            categories &= ~kForChildren;
        }
        if (filmOrChildren && text->matched.test(vocabulary.reportage)) {
            categories &= ~kAllFilm;
        }
    }
    if (!(categories & (kAllFilm | kSeries))) {
        for (const FoundWords* text : inOrder) {
            if (text->matched.test(vocabulary.tale)) {
                categories |= kForChildren;
            }
        }
        categories |= abbreviated(vocabulary, inOrder, title);
    }
    for (const Exclusion& exclusion : kExclusions) {
        if ((categories & exclusion.all) == exclusion.all &&
            (exclusion.any == 0 || (categories & exclusion.any) != 0)) {
            categories &= ~exclusion.clears;
        }
    }
    return categories;
}

} // namespace guide
