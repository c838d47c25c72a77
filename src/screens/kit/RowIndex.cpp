#include "screens/kit/RowIndex.h"

#include <bit>

namespace guide {

void RowIndex::reserve(std::size_t count) {
    m_slots.assign(std::bit_ceil(2 * count + 1), {});
    m_mask = m_slots.size() - 1;
}

} // namespace guide
