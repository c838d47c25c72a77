#include "MemoryWatch.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <sanitizer/allocator_interface.h>

namespace guide::fuzz {

namespace {

std::atomic<std::int64_t> current = 0;
std::atomic<std::int64_t> peakBytes = 0;

void allocated(const volatile void*, std::size_t size) {
    const std::int64_t now = current += static_cast<std::int64_t>(size);
    if (now > peakBytes) {
        peakBytes = now;
    }
}

void freed(const volatile void* block) {
    if (block) {
        current -= static_cast<std::int64_t>(
            __sanitizer_get_allocated_size(const_cast<const void*>(block))); // NOLINT: the hook's own type
    }
}

} // namespace

MemoryWatch::MemoryWatch() {
    [[maybe_unused]] static const int hooks = __sanitizer_install_malloc_and_free_hooks(allocated, freed);
    current = 0;
    peakBytes = 0;
}

std::size_t MemoryWatch::peak() const {
    return static_cast<std::size_t>(std::max<std::int64_t>(0, peakBytes));
}

} // namespace guide::fuzz
