#pragma once

#include "screens/kit/RowId.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace guide {

/// Finds rows by their ids: a hash table of row numbers that reads the ids through a function that its owner
/// passes.
class RowIndex {
  public:
    bool empty() const { return m_slots.empty(); }
    void clear() { m_slots.clear(); }

    /// Makes room for places below `count`.
    void reserve(std::size_t count);
    /// Returns the place that already has the id, if there is one; otherwise adds `place`.
    template <class IdAt>
    std::optional<int> insert(int place, const IdAt& idAt) {
        const RowId& id = idAt(place);
        const std::size_t hash = std::hash<RowId>()(id);
        for (std::size_t slot = hash & m_mask;; slot = (slot + 1) & m_mask) {
            if (m_slots[slot].place < 0) {
                m_slots[slot] = {hash, place};
                return std::nullopt;
            }
            if (m_slots[slot].hash == hash && idAt(m_slots[slot].place) == id) {
                return m_slots[slot].place;
            }
        }
    }
    template <class IdAt>
    std::optional<int> find(const RowId& id, const IdAt& idAt) const {
        const std::size_t hash = std::hash<RowId>()(id);
        for (std::size_t slot = hash & m_mask; !m_slots.empty() && m_slots[slot].place >= 0;
             slot = (slot + 1) & m_mask) {
            if (m_slots[slot].hash == hash && idAt(m_slots[slot].place) == id) {
                return m_slots[slot].place;
            }
        }
        return std::nullopt;
    }

  private:
    struct Slot {
        std::size_t hash = 0;
        int place = -1;
    };

    /// Their number is a power of two, and at most half of them are used.
    std::vector<Slot> m_slots;
    std::size_t m_mask = 0;
};

} // namespace guide
