#include "parsers/ReadControl.h"

#include <algorithm>
#include <limits>

namespace guide {

namespace {

/// What a show takes besides its texts: the entry, its place in the list and the allocator's overhead.
constexpr std::uint64_t kShowBytes = 1024;
/// The texts are kept in UTF-16.
constexpr std::uint64_t kBytesPerTextByte = 2;

} // namespace

ReadControl::ReadControl(const std::vector<QByteArray>& pages, std::uint64_t physicalMemory,
                         std::function<bool()> stopped)
    : m_stopped(std::move(stopped)) {
    if (physicalMemory == 0) {
        m_memoryLeft = std::numeric_limits<std::uint64_t>::max();
        return;
    }
    std::uint64_t pageBytes = 0;
    for (const QByteArray& page : pages) {
        pageBytes += static_cast<std::uint64_t>(page.size());
    }
    // Pages that fill the whole quarter still leave room for some shows.
    const std::uint64_t quarter = physicalMemory / 4;
    m_memoryLeft = std::max(quarter - std::min(quarter, pageBytes), quarter / 16);
}

bool ReadControl::countShow(std::size_t textBytes) {
    const std::uint64_t bytes = kShowBytes + kBytesPerTextByte * textBytes;
    if (bytes > m_memoryLeft) {
        return false;
    }
    m_memoryLeft -= bytes;
    return true;
}

} // namespace guide
