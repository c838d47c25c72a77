#pragma once

#include "core/CatalogueChannel.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <span>
#include <unordered_map>
#include <vector>

namespace guide {

/// The channels that the guide knows at one moment. Immutable.
class CatalogueSnapshot {
  public:
    CatalogueSnapshot() = default;
    /// Of two channels with the same identity the later one is kept.
    explicit CatalogueSnapshot(const std::vector<CatalogueChannel>& channels);

    /// Null when the catalogue does not list the channel. Valid as long as the snapshot.
    const CatalogueChannel* find(const ObjectId& channel) const;
    bool contains(const ObjectId& channel) const { return m_places.contains(channel); }
    bool empty() const { return m_channels.empty(); }
    std::span<const CatalogueChannel> channels() const { return m_channels; }

  private:
    std::vector<CatalogueChannel> m_channels;
    std::unordered_map<ObjectId, std::size_t> m_places;
};

using SharedCatalogueSnapshot = std::shared_ptr<const CatalogueSnapshot>;

/// Called on the thread that replaces the catalogue, after the new snapshot has become visible. Must not add
/// or remove observers.
class CatalogueObserver {
  public:
    virtual ~CatalogueObserver() = default;
    virtual void catalogueReplaced() = 0;
};

/// The current catalogue. Any thread. An operation takes one snapshot and uses it throughout.
class Catalogue {
  public:
    /// Never null; empty before the first replace.
    SharedCatalogueSnapshot snapshot() const;

    void replace(CatalogueSnapshot channels);

    /// The observer must be removed before it is destroyed; removing waits for a call that is in progress.
    void addObserver(CatalogueObserver& observer) const;
    void removeObserver(CatalogueObserver& observer) const;

  private:
    mutable std::mutex m_guard;
    SharedCatalogueSnapshot m_current = std::make_shared<const CatalogueSnapshot>();
    mutable std::mutex m_observersGuard;
    mutable std::vector<CatalogueObserver*> m_observers;
};

} // namespace guide
