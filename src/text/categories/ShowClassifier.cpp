#include "text/categories/ShowClassifier.h"

#include "text/categories/ShowClassifierWords.h"
#include "text/search/MatchWord.h"
#include "text/search/WordAutomaton.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <vector>

namespace guide {

namespace {

/// The clues that one pass over a text found, as a set of bits. A group of the word lists is a clue, numbered
/// by its position; the words that count individually follow.
using Clues = std::uint64_t;

constexpr int kMostGroups = 32;

enum Clue {
    kOnCondition =
        kMostGroups, // one clue for each group that has a conditional word, and one for its "unless"
    kFallenLeaves = kOnCondition + 8,
    kPets,
    kSouthPark,
    kReportage,
    kTale,
    kFilmShort,
    kSeriesShort,
};

constexpr bool has(Clues clues, int clue) {
    return (clues >> clue & 1) != 0;
}

/// The words of all groups and of the later steps in one automaton, with the clues that they give.
class Vocabulary {
  public:
    Vocabulary() {
        int conditions = kOnCondition;
        for (const ClassifierGroup& group : classifierGroups()) {
            const int place = static_cast<int>(m_groups.size());
            Group& made = m_groups.emplace_back(Group{group.adds, group.clears, 0, 0});
            for (const char16_t* word : group.words) {
                add(word, place);
            }
            if (group.substring) {
                meaningOf(group.substring).ifSeen |= Clues(1) << place;
            }
            if (group.conditional) {
                made.conditional = conditions++;
                made.unless = conditions++;
                add(group.conditional, made.conditional);
                add(group.unless, made.unless);
            }
        }
        Q_ASSERT(m_groups.size() <= kMostGroups && conditions <= kFallenLeaves);
        add(u"kad lišće pada", kFallenLeaves);
        add(u"kućni ljubimci", kPets);
        add(u"south park", kSouthPark);
        add(u"reportaža", kReportage);
        add(u"priča", kTale);
        add(u"f.", kFilmShort);
        add(u"s.", kSeriesShort);
        add(u"s,", kSeriesShort);
        Q_ASSERT(m_words.size() <= kMostWords);
        m_automaton.emplace(m_words, FoldMode::CaseAndDiacritics);
    }

    static const Vocabulary& instance() {
        static const Vocabulary kVocabulary;
        return kVocabulary;
    }

    Clues find(QStringView text) const {
        Clues clues = 0;
        std::bitset<kMostWords> seen;
        m_automaton->walk(text, [&](const WordAutomaton::Occurrence& occurrence) {
            const auto word = static_cast<std::size_t>(occurrence.word);
            // Only the first occurrence of a word is tested.
            if (seen.test(word)) {
                return;
            }
            seen.set(word);
            const Meaning& meaning = m_meanings[word];
            clues |= meaning.ifSeen;
            if ((meaning.ifMatched & ~clues) != 0 &&
                isWholeWord(text, m_automaton->beginOf(text, occurrence), occurrence.end)) {
                clues |= meaning.ifMatched;
            }
        });
        return clues;
    }

    /// Applies, in their order, the groups whose words were found.
    TVListingsCategory withGroups(TVListingsCategory categories, Clues clues) const {
        for (std::size_t place = 0; place < m_groups.size(); ++place) {
            const Group& group = m_groups[place];
            if (has(clues, static_cast<int>(place)) ||
                (group.conditional != 0 && has(clues, group.conditional) && !has(clues, group.unless))) {
                categories = (categories & ~group.clears) | group.adds;
            }
        }
        return categories;
    }

  private:
    static constexpr std::size_t kMostWords = 384;

    struct Group {
        TVListingsCategory adds;
        TVListingsCategory clears;
        /// Clues; 0 if there are none.
        int conditional;
        int unless;
    };
    struct Meaning {
        Clues ifMatched = 0;
        Clues ifSeen = 0;
    };

    Meaning& meaningOf(const char16_t* word) {
        const auto [place, isNew] = m_places.try_emplace(QString::fromUtf16(word), m_words.size());
        if (isNew) {
            m_words.push_back(place->first);
            m_meanings.emplace_back();
        }
        return m_meanings[place->second];
    }
    void add(const char16_t* word, int clue) { meaningOf(word).ifMatched |= Clues(1) << clue; }

    std::vector<Group> m_groups;
    std::map<QString, std::size_t> m_places;
    std::vector<QString> m_words;
    std::vector<Meaning> m_meanings;
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
    /// All of these must be set,
    TVListingsCategory all;
    /// and one of these, if any are given.
    TVListingsCategory any;
    TVListingsCategory clears;
};

constexpr TVListingsCategory kSeries = TVListingsCategorySeries;
constexpr TVListingsCategory kSports = TVListingsCategorySports;
constexpr TVListingsCategory kEntertainment = TVListingsCategoryEntertainment;
constexpr TVListingsCategory kDocumentaries = TVListingsCategoryDocumentaries;
constexpr TVListingsCategory kForChildren = TVListingsCategoryForChildren;
constexpr TVListingsCategory kAllFilm = TVListingsCategoryAllFilm;

/// Applied in this order, each to the result of the previous one.
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

} // namespace

TVListingsCategory withoutExcluded(TVListingsCategory categories) {
    for (const Exclusion& exclusion : kExclusions) {
        if ((categories & exclusion.all) == exclusion.all &&
            (exclusion.any == 0 || (categories & exclusion.any) != 0)) {
            categories &= ~exclusion.clears;
        }
    }
    return categories;
}

TVListingsCategory classifyEntry(const std::optional<QString>& sourceId, const ClassifiedTexts& texts) {
    const Vocabulary& vocabulary = Vocabulary::instance();
    TVListingsCategory categories = sourceId ? categoriesOfSource(*sourceId) : 0;

    constexpr std::size_t kTitle = 1;
    const std::array<Clues, 3> clues{vocabulary.find(texts.instantDetails1),
                                     vocabulary.find(texts.identificator),
                                     vocabulary.find(texts.instantDescription1)};
    if ((clues[0] | clues[1] | clues[2]) == 0) {
        return categories;
    }
    for (const Clues text : clues) {
        if (text != 0) {
            categories = vocabulary.withGroups(categories, text);
        }
    }

    if (has(clues[kTitle], kFallenLeaves)) {
        categories = (categories & ~kAllFilm) | kSeries;
    }
    if (has(clues[kTitle], kPets)) {
        categories &= ~kAllFilm;
    }
    if (categories & (kAllFilm | kForChildren)) {
        for (const Clues text : clues) {
            if (has(text, kSouthPark)) {
                categories &= ~kForChildren;
            }
            if (has(text, kReportage)) {
                categories &= ~kAllFilm;
            }
        }
    }
    if (!(categories & (kAllFilm | kSeries))) {
        if (has(clues[0] | clues[1] | clues[2], kTale)) {
            categories |= kForChildren;
        }
        // Abbreviations of film and series, if nothing else was found.
        for (std::size_t i = 0; i < clues.size(); ++i) {
            if (i != kTitle && has(clues[i], kFilmShort)) {
                categories |= TVListingsCategoryMovies;
                break;
            }
            if (has(clues[i], kSeriesShort)) {
                categories |= kSeries;
                break;
            }
        }
    }
    return withoutExcluded(categories);
}

} // namespace guide
