#include "text/categories/ShowClassifier.h"
#include "text/categories/ShowClassifierWords.h"
#include "text/search/FoldedText.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <bitset>
#include <memory>
#include <random>
#include <vector>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr int kShows = 80'000;

struct Show {
    std::optional<QString> sourceId;
    std::optional<QString> details;
    std::optional<QString> title;
    std::optional<QString> description;
};

/// Texts like those of schedule pages: mostly words that are in no list, with the letters that sources
/// use.
class ShowWriter {
  public:
    ShowWriter() {
        const QString letters = u"aeiouyáéíóúăîőabcdefghijklmnoprstuvzžščćđřďť"_s;
        for (int i = 0; i < 6000; ++i) {
            QString word;
            for (unsigned length = 2 + m_random() % 9; length > 0; --length) {
                word += letters[static_cast<qsizetype>(below(static_cast<unsigned>(letters.size())))];
            }
            m_plain += word;
        }
        for (const ClassifierGroup& group : classifierGroups()) {
            for (const char16_t* word : group.words) {
                m_known += QString::fromUtf16(word);
            }
        }
    }

    Show show() {
        Show made;
        if (below(2) == 0) {
            made.sourceId = QString::number(below(400));
        }
        if (below(4) != 0) {
            made.details = text(1 + below(5), 2) + u", "_s + QString::number(1950 + below(77));
        }
        made.title = text(1 + below(5), 8);
        if (below(2) == 0) {
            made.description = text(4 + below(14), 12);
        }
        return made;
    }

  private:
    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random() % bound); }

    /// One of this many words is known to the classifier.
    QString text(unsigned words, unsigned known) {
        QString made;
        for (unsigned i = 0; i < words; ++i) {
            const QStringList& list = below(known) == 0 ? m_known : m_plain;
            made += (i == 0          ? u""_s
                     : below(6) == 0 ? u", "_s
                                     : u" "_s) +
                    list[static_cast<qsizetype>(below(static_cast<unsigned>(list.size())))];
        }
        made[0] = made[0].toUpper();
        return made;
    }

    std::mt19937 m_random{1};
    QStringList m_plain;
    QStringList m_known;
};

const std::vector<Show>& shows() {
    static const auto kAll = [] {
        ShowWriter writer;
        std::vector<Show> all;
        all.reserve(kShows);
        for (int i = 0; i < kShows; ++i) {
            all.push_back(writer.show());
        }
        return all;
    }();
    return kAll;
}

/// A minimal automaton: a class per code unit, a table of states by class, and a set of words per final
/// state.
class DenseWalk {
  public:
    using Words = std::bitset<384>;

    DenseWalk() {
        for (const ClassifierGroup& group : classifierGroups()) {
            for (const char16_t* word : group.words) {
                add(word);
            }
            for (const char16_t* word : {group.substring, group.conditional, group.unless}) {
                if (word) {
                    add(word);
                }
            }
        }
        std::vector<std::uint16_t> order{0};
        std::vector<std::uint16_t> fallback(m_ends.size());
        for (std::size_t at = 0; at < order.size(); ++at) {
            const std::uint16_t state = order[at];
            m_ends[state] |= m_ends[fallback[state]];
            m_ending.resize(m_ends.size());
            m_ending[state] = m_ends[state].any();
            for (std::size_t unit = 0; unit < kClasses; ++unit) {
                const std::uint16_t beside = state == 0 ? 0 : m_next[fallback[state] * kClasses + unit];
                std::uint16_t& next = m_next[state * kClasses + unit];
                if (next == 0) {
                    next = beside;
                } else {
                    fallback[next] = beside;
                    order.push_back(next);
                }
            }
        }
    }

    const QStringList& words() const { return m_words; }

    Words walk(QStringView folded) const {
        Words found;
        std::size_t state = 0;
        for (const QChar unit : folded) {
            state = m_next[state * kClasses + m_classes[unit.unicode()]];
            if (m_ending[state]) {
                found |= m_ends[state];
            }
        }
        return found;
    }

  private:
    static constexpr std::size_t kClasses = 64;

    void add(const char16_t* word) {
        const QString folded = foldedText(QString::fromUtf16(word));
        if (m_words.contains(folded)) {
            return;
        }
        std::size_t state = 0;
        for (const QChar unit : folded) {
            std::uint8_t& unitClass = m_classes[unit.unicode()];
            unitClass = unitClass == 0 ? ++m_lastClass : unitClass;
            std::uint16_t& next = m_next[state * kClasses + unitClass];
            if (next == 0) {
                next = static_cast<std::uint16_t>(m_ends.size());
                state = next;
                m_ends.emplace_back();
                m_next.resize(m_ends.size() * kClasses);
            } else {
                state = next;
            }
        }
        m_ends[state].set(static_cast<std::size_t>(m_words.size()));
        m_words += folded;
    }

    QStringList m_words;
    std::uint8_t m_lastClass = 0;
    std::array<std::uint8_t, 0x10000> m_classes{};
    std::vector<std::uint16_t> m_next = std::vector<std::uint16_t>(kClasses);
    std::vector<Words> m_ends = std::vector<Words>(1);
    std::vector<std::uint8_t> m_ending;
};

void classifyGuide(benchmark::State& state) {
    const std::vector<Show>& all = shows();
    std::vector<TVListingsCategory> categories(all.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            categories[i] =
                classifyEntry(all[i].sourceId, {all[i].details, all[i].title, all[i].description});
        }
        benchmark::DoNotOptimize(categories.data());
        benchmark::ClobberMemory();
    }
    // At least a tenth of the shows must have categories.
    if (std::ranges::count(categories, TVListingsCategory(0)) > std::ptrdiff_t(all.size() * 9 / 10)) {
        state.SkipWithError("too few shows have categories");
    }
    state.counters["atMost"] = 2;
}

void classifyFloor(benchmark::State& state) {
    const auto owner = std::make_unique<const DenseWalk>();
    const DenseWalk& automaton = *owner;
    std::vector<std::array<QString, 3>> folded;
    for (const Show& show : shows()) {
        folded.push_back({foldedText(show.details.value_or(QString())), foldedText(*show.title),
                          foldedText(show.description.value_or(QString()))});
    }
    std::vector<DenseWalk::Words> found(folded.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < folded.size(); ++i) {
            found[i] = {};
            for (const QString& text : folded[i]) {
                found[i] |= automaton.walk(text);
            }
        }
        benchmark::DoNotOptimize(found.data());
        benchmark::ClobberMemory();
    }
    for (std::size_t i = 0; i < folded.size(); i += 97) {
        for (qsizetype word = 0; word < automaton.words().size(); ++word) {
            const bool occurs = std::ranges::any_of(
                folded[i], [&](const QString& text) { return text.contains(automaton.words()[word]); });
            if (occurs != found[i].test(static_cast<std::size_t>(word))) {
                state.SkipWithError("different words than the plain searches found");
            }
        }
    }
}

BENCHMARK(classifyGuide)
    ->Name("classifyEntry80000/guide")
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(classifyFloor)
    ->Name("classifyEntry80000/floor")
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace guide::bench
