#pragma once

#include "text/search/FoldTable.h"

#include <QString>
#include <QStringView>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace guide {

/// Finds all words of a list in a text in one pass (an Aho-Corasick automaton as a dense table). Folding
/// happens during the walk, so positions are those of the original text.
///
/// Immutable; may be used from any number of threads.
class WordAutomaton {
  public:
    /// Words are reported by their index. A word that folds to nothing is never found.
    WordAutomaton(const std::vector<QString>& words, FoldMode mode);

    /// An occurrence of a word. `end` is the position after its last unit, not counting marks that follow.
    struct Occurrence {
        int word;
        qsizetype end;
        /// From here to `end`, each unit of the text folds to one unit.
        qsizetype plainFrom;
    };

    /// Calls `found(occurrence)` for each occurrence, ordered by end, and for the same end the longest first.
    template <class Found>
    void walk(QStringView text, Found&& found) const {
        const std::uint32_t* const next = m_next.data();
        const std::uint8_t* const classes = m_classes->data();
        const std::uint32_t firstAccepting = m_firstAccepting;
        const char16_t* const units = text.utf16();
        const qsizetype size = text.size();
        std::uint32_t state = 0;
        qsizetype plainFrom = 0;
        for (qsizetype i = 0; i < size; ++i) {
            const std::uint8_t unitClass = classes[units[i]];
            if (unitClass >= kDropped) [[unlikely]] {
                if (unitClass == kSeveral) {
                    state = walkSeveral(text, i, state, found);
                }
                plainFrom = i + 1;
                continue;
            }
            state = next[state + unitClass];
            if (state >= firstAccepting) [[unlikely]] {
                report(state, i + 1, plainFrom, found);
            }
        }
    }

    /// Calls `found(word)` for each word that occurs, in no particular order and possibly several times. Each
    /// step of a walk depends on the previous one, so if nothing is folded a long text is walked in four
    /// parts at once.
    template <class Found>
    void findWords(QStringView text, Found&& found) const {
        constexpr qsizetype kPlaces = 4;
        const auto foundHere = [&](const Occurrence& occurrence) { found(occurrence.word); };
        if (!m_isPlain || text.size() < 2 * kPlaces * m_longest) {
            walk(text, foundHere);
            return;
        }
        const std::uint32_t* const next = m_next.data();
        const std::uint8_t* const classes = m_classes->data();
        const std::uint32_t firstAccepting = m_firstAccepting;
        // The parts overlap by one unit less than the longest word.
        const qsizetype overlap = m_longest - 1;
        const qsizetype length = (text.size() + (kPlaces - 1) * overlap + kPlaces - 1) / kPlaces;
        const char16_t* const first = text.utf16();
        const char16_t* const second = first + (length - overlap);
        const char16_t* const third = second + (length - overlap);
        const char16_t* const last = first + (text.size() - length);
        // Four variables: the compiler would keep an array in memory.
        std::uint32_t a = 0;
        std::uint32_t b = 0;
        std::uint32_t c = 0;
        std::uint32_t d = 0;
        for (qsizetype i = 0; i < length; ++i) {
            a = next[a + classes[first[i]]];
            b = next[b + classes[second[i]]];
            c = next[c + classes[third[i]]];
            d = next[d + classes[last[i]]];
            if (std::max(std::max(a, b), std::max(c, d)) >= firstAccepting) [[unlikely]] {
                for (const std::uint32_t state : {a, b, c, d}) {
                    if (state >= firstAccepting) {
                        report(state, i, i, foundHere);
                    }
                }
            }
        }
    }

    /// The first position of an occurrence that walk reported.
    qsizetype beginOf(QStringView text, const Occurrence& occurrence) const {
        const qsizetype begin = occurrence.end - m_lengths[static_cast<std::size_t>(occurrence.word)];
        return begin >= occurrence.plainFrom ? begin : beginAmongMarks(text, occurrence);
    }

  private:
    static constexpr std::uint8_t kDropped = 0xFE;
    static constexpr std::uint8_t kSeveral = 0xFF;

    template <class Found>
    void report(std::uint32_t state, qsizetype end, qsizetype plainFrom, Found&& found) const {
        const std::uint32_t accepting = (state - m_firstAccepting) / m_classCount;
        for (std::uint32_t i = m_acceptedFrom[accepting]; i < m_acceptedFrom[accepting + 1]; ++i) {
            found(Occurrence{m_accepted[i], end, plainFrom});
        }
    }

    /// Handles a character that folds to several units, or a surrogate pair. `position` moves to its last
    /// unit.
    template <class Found>
    std::uint32_t walkSeveral(QStringView text, qsizetype& position, std::uint32_t state,
                              Found&& found) const {
        qsizetype behind = position;
        const FoldedCharacter folded = m_table->fold(takeCodePoint(text, behind));
        for (const char16_t unit : folded) {
            state = m_next[state + foldedClass(unit)];
            if (state >= m_firstAccepting) {
                report(state, behind, behind, found);
            }
        }
        position = behind - 1;
        return state;
    }

    qsizetype beginAmongMarks(QStringView text, const Occurrence& occurrence) const;
    std::uint8_t foldedClass(char16_t unit) const;

    const FoldTable* m_table;
    /// Whether nothing is folded.
    bool m_isPlain;
    /// The class of each unit of a text, folding included; 0 for units that no word contains.
    std::unique_ptr<std::array<std::uint8_t, 0x10000>> m_classes;
    /// The units that occur in words, in ascending order: class c is that of m_alphabet[c - 1].
    std::u16string m_alphabet;
    std::uint32_t m_classCount = 1;
    /// Next state by state and class; a state is the index of its row. Accepting states come last.
    std::vector<std::uint32_t> m_next;
    std::uint32_t m_firstAccepting = 0;
    std::vector<std::uint32_t> m_acceptedFrom;
    std::vector<int> m_accepted;
    /// In folded units.
    std::vector<qsizetype> m_lengths;
    qsizetype m_longest = 1;
};

} // namespace guide
