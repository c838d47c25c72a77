#include "text/search/WordAutomaton.h"

#include <algorithm>

namespace guide {

namespace {

/// A trie of the words with the links of the automaton.
struct Node {
    std::vector<std::uint32_t> next;
    std::uint32_t fallback = 0;
    /// Words that end here, longest first.
    std::vector<int> words;
};

} // namespace

WordAutomaton::WordAutomaton(const std::vector<QString>& words, FoldMode mode)
    : m_table(&FoldTable::of(mode))
    , m_isPlain(mode == FoldMode::None)
    , m_classes(std::make_unique<std::array<std::uint8_t, 0x10000>>()) {
    std::vector<QString> foldedWords;
    foldedWords.reserve(words.size());
    for (const QString& word : words) {
        foldedWords.push_back(m_table->folded(word));
        m_lengths.push_back(foldedWords.back().size());
        m_longest = std::max(m_longest, m_lengths.back());
        for (const QChar unit : foldedWords.back()) {
            m_alphabet.push_back(unit.unicode());
        }
    }
    std::ranges::sort(m_alphabet);
    m_alphabet.erase(std::unique(m_alphabet.begin(), m_alphabet.end()), m_alphabet.end());
    Q_ASSERT(m_alphabet.size() < kDropped);
    m_classCount = static_cast<std::uint32_t>(m_alphabet.size()) + 1;
    for (std::uint32_t unit = 0; unit < 0x10000; ++unit) {
        const char16_t foldedUnit = (*m_table)[static_cast<char16_t>(unit)];
        if (m_isPlain) {
            (*m_classes)[unit] = foldedClass(static_cast<char16_t>(unit));
            continue;
        }
        (*m_classes)[unit] = foldedUnit == FoldTable::kDropped   ? kDropped
                             : foldedUnit == FoldTable::kSeveral ? kSeveral
                                                                 : foldedClass(foldedUnit);
    }

    std::vector<Node> nodes(1);
    nodes[0].next.assign(m_classCount, 0);
    for (std::size_t word = 0; word < foldedWords.size(); ++word) {
        if (foldedWords[word].isEmpty()) {
            continue;
        }
        std::uint32_t node = 0;
        for (const QChar unit : foldedWords[word]) {
            const std::uint8_t unitClass = foldedClass(unit.unicode());
            if (nodes[node].next[unitClass] == 0) {
                nodes[node].next[unitClass] = static_cast<std::uint32_t>(nodes.size());
                nodes.emplace_back().next.assign(m_classCount, 0);
            }
            node = nodes[node].next[unitClass];
        }
        nodes[node].words.push_back(static_cast<int>(word));
    }

    // Breadth first: the fallback of a node must be complete before the node.
    std::vector<std::uint32_t> order{0};
    for (std::size_t at = 0; at < order.size(); ++at) {
        const std::uint32_t node = order[at];
        for (std::uint32_t unitClass = 0; unitClass < m_classCount; ++unitClass) {
            const std::uint32_t child = nodes[node].next[unitClass];
            const std::uint32_t beside = node == 0 ? 0 : nodes[nodes[node].fallback].next[unitClass];
            if (child == 0) {
                nodes[node].next[unitClass] = beside;
                continue;
            }
            nodes[child].fallback = beside;
            const auto& inherited = nodes[beside].words;
            nodes[child].words.insert(nodes[child].words.end(), inherited.begin(), inherited.end());
            order.push_back(child);
        }
    }
    std::stable_partition(order.begin(), order.end(),
                          [&](std::uint32_t node) { return nodes[node].words.empty(); });
    std::vector<std::uint32_t> rows(nodes.size());
    for (std::size_t at = 0; at < order.size(); ++at) {
        rows[order[at]] = static_cast<std::uint32_t>(at) * m_classCount;
    }
    m_next.reserve(nodes.size() * m_classCount);
    m_firstAccepting = static_cast<std::uint32_t>(nodes.size()) * m_classCount;
    for (const std::uint32_t place : order) {
        const Node& node = nodes[place];
        for (const std::uint32_t next : node.next) {
            m_next.push_back(rows[next]);
        }
        if (!node.words.empty()) {
            m_firstAccepting = std::min(m_firstAccepting, rows[place]);
            m_acceptedFrom.push_back(static_cast<std::uint32_t>(m_accepted.size()));
            m_accepted.insert(m_accepted.end(), node.words.begin(), node.words.end());
        }
    }
    m_acceptedFrom.push_back(static_cast<std::uint32_t>(m_accepted.size()));
}

std::uint8_t WordAutomaton::foldedClass(char16_t unit) const {
    const auto found = std::ranges::lower_bound(m_alphabet, unit);
    return found != m_alphabet.end() && *found == unit
               ? static_cast<std::uint8_t>(found - m_alphabet.begin() + 1)
               : std::uint8_t(0);
}

qsizetype WordAutomaton::beginAmongMarks(QStringView text, const Occurrence& occurrence) const {
    qsizetype position = occurrence.end;
    for (qsizetype left = m_lengths[static_cast<std::size_t>(occurrence.word)]; left > 0;) {
        const QChar unit = text[--position];
        const char16_t foldedUnit = (*m_table)[unit.unicode()];
        if (foldedUnit == FoldTable::kDropped) {
            continue;
        }
        if (foldedUnit != FoldTable::kSeveral) {
            --left;
            continue;
        }
        if (unit.isLowSurrogate() && position > 0 && text[position - 1].isHighSurrogate()) {
            --position;
        }
        qsizetype behind = position;
        left -= m_table->fold(takeCodePoint(text, behind)).size();
    }
    return position;
}

} // namespace guide
