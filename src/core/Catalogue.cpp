#include "core/Catalogue.h"

namespace guide {

CatalogueSnapshot::CatalogueSnapshot(const std::vector<CatalogueChannel>& channels) {
    m_channels.reserve(channels.size());
    m_places.reserve(channels.size());
    for (const CatalogueChannel& channel : channels) {
        const auto [place, isNew] = m_places.try_emplace(channel.id, m_channels.size());
        if (isNew) {
            m_channels.push_back(channel);
        } else {
            m_channels[place->second] = channel;
        }
    }
}

const CatalogueChannel* CatalogueSnapshot::find(const ObjectId& channel) const {
    const auto place = m_places.find(channel);
    return place == m_places.end() ? nullptr : &m_channels[place->second];
}

SharedCatalogueSnapshot Catalogue::snapshot() const {
    const std::lock_guard lock(m_guard);
    return m_current;
}

void Catalogue::replace(CatalogueSnapshot channels) {
    auto replacement = std::make_shared<const CatalogueSnapshot>(std::move(channels));
    const std::lock_guard observersLock(m_observersGuard);
    {
        const std::lock_guard lock(m_guard);
        m_current = std::move(replacement);
    }
    for (CatalogueObserver* observer : m_observers) {
        observer->catalogueReplaced();
    }
}

void Catalogue::addObserver(CatalogueObserver& observer) const {
    const std::lock_guard lock(m_observersGuard);
    m_observers.push_back(&observer);
}

void Catalogue::removeObserver(CatalogueObserver& observer) const {
    const std::lock_guard lock(m_observersGuard);
    std::erase(m_observers, &observer);
}

} // namespace guide
