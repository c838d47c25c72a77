#include "text/categories/genres/PhraseIndex.h"

#include <algorithm>
#include <array>
#include <bit>

namespace guide::genres {

namespace {

constexpr std::array kLanguages{u"bg", u"bs", u"cs", u"da", u"de", u"el", u"en", u"es", u"et", u"fi", u"fr",
                                u"hr", u"hu", u"id", u"it", u"lt", u"lv", u"me", u"mk", u"nb", u"nl", u"no",
                                u"pl", u"pt", u"ro", u"ru", u"sk", u"sl", u"sr", u"sv", u"tr", u"uk"};

} // namespace

std::uint32_t languagesOf(QStringView languages) {
    constexpr qsizetype kCodeSize = 2;
    if (languages.isEmpty()) {
        return 0xFFFFFFFF;
    }
    std::uint32_t bits = 0;
    for (qsizetype at = 0; at + kCodeSize <= languages.size(); at += kCodeSize + 1) {
        for (std::size_t i = 0; i < kLanguages.size(); ++i) {
            if (kLanguages[i][0] == languages[at].unicode() &&
                kLanguages[i][1] == languages[at + 1].unicode()) {
                bits |= 1U << i;
            }
        }
    }
    return bits;
}

void PhraseIndex::add(Hash first, Phrase phrase) {
    m_added.emplace_back(first, std::move(phrase));
}

void PhraseIndex::finish() {
    std::ranges::stable_sort(m_added, {}, &std::pair<Hash, Phrase>::first);
    m_slots.resize(std::bit_ceil(2 * m_added.size() + 1));
    for (std::size_t from = 0; from < m_added.size();) {
        const Hash first = m_added[from].first;
        std::size_t behind = from;
        for (; behind < m_added.size() && m_added[behind].first == first; ++behind) {
            m_phrases.push_back(std::move(m_added[behind].second));
        }
        std::size_t place = first & (m_slots.size() - 1);
        while (m_slots[place].behind != 0) {
            place = (place + 1) & (m_slots.size() - 1);
        }
        m_slots[place] = {first, static_cast<std::uint32_t>(from), static_cast<std::uint32_t>(behind)};
        m_filter.set(first >> 32 & (m_filter.size() - 1));
        from = behind;
    }
    m_added = {};
}

std::span<const Phrase> PhraseIndex::find(Hash first) const {
    if (!m_filter.test(first >> 32 & (m_filter.size() - 1))) [[likely]] {
        return {};
    }
    std::size_t place = first & (m_slots.size() - 1);
    for (; m_slots[place].behind != 0; place = (place + 1) & (m_slots.size() - 1)) {
        const Slot& slot = m_slots[place];
        if (slot.first == first) {
            return {m_phrases.data() + slot.from, slot.behind - slot.from};
        }
    }
    return {};
}

} // namespace guide::genres
