#include "alarms/Favorites.h"

namespace guide {

namespace {

/// The hash of the lowercased text, without making that; nothing where a character may not become exactly
/// one.
std::optional<std::size_t> lowercasedHash(QStringView text) {
    constexpr char16_t kDottedCapitalI = 0x0130;
    std::size_t hash = 5381;
    for (const QChar character : text) {
        if (character.isSurrogate() || character.unicode() == kDottedCapitalI) {
            return std::nullopt;
        }
        hash = hash * 33 + character.toLower().unicode();
    }
    return hash;
}

} // namespace

FavoritesSnapshot::FavoritesSnapshot(std::vector<Favorite> rules)
    : m_rules(std::move(rules)) {
    for (std::size_t i = m_rules.size(); i-- > 0;) {
        const QString lowercased = m_rules[i].identificator.toLower();
        if (const auto hash = lowercasedHash(lowercased)) {
            m_hashes.insert(*hash);
        }
        m_byTitle.insert(lowercased, i);
    }
}

const Favorite* FavoritesSnapshot::ruleNamed(const QString& title) const {
    if (m_rules.empty()) {
        return nullptr;
    }
    // Most titles are no favourites.
    if (const auto hash = lowercasedHash(title); hash && !m_hashes.contains(*hash)) {
        return nullptr;
    }
    const auto found = m_byTitle.constFind(title.toLower());
    return found == m_byTitle.cend() ? nullptr : &m_rules[*found];
}

} // namespace guide
