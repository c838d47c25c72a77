#include "alarms/Favorites.h"

namespace guide {

FavoritesSnapshot::FavoritesSnapshot(std::vector<Favorite> rules)
    : m_rules(std::move(rules)) {
    for (std::size_t i = m_rules.size(); i-- > 0;) {
        m_byTitle.insert(m_rules[i].identificator.toLower(), i);
    }
}

const Favorite* FavoritesSnapshot::ruleNamed(const QString& title) const {
    if (m_rules.empty()) {
        return nullptr;
    }
    const auto found = m_byTitle.constFind(title.toLower());
    return found == m_byTitle.cend() ? nullptr : &m_rules[*found];
}

} // namespace guide
