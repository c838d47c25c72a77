#include "alarms/Favorites.h"

#include "store/TitleHash.h"

namespace guide {

FavoritesSnapshot::FavoritesSnapshot(std::vector<Favorite> rules)
    : m_rules(std::move(rules)) {
    for (std::size_t i = m_rules.size(); i-- > 0;) {
        const QString lowercased = m_rules[i].identificator.toLower();
        m_hashes.insert(titleHash(lowercased));
        m_byTitle.insert(lowercased, i);
    }
}

const Favorite* FavoritesSnapshot::ruleNamed(const QString& title) const {
    if (m_rules.empty()) {
        return nullptr;
    }
    // Most titles are no favourites.
    if (const std::uint32_t hash = titleHash(title); hash != kNoTitleHash && !m_hashes.contains(hash)) {
        return nullptr;
    }
    const auto found = m_byTitle.constFind(title.toLower());
    return found == m_byTitle.cend() ? nullptr : &m_rules[*found];
}

} // namespace guide
