#pragma once

#include "store/ListMerge.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace guide {

/// Limits the reading of the pages of one load, and records how complete it was.
class ReadControl {
  public:
    /// A quarter of the memory is the most that the pages and their shows may take; 0 means no limit.
    /// `stopped` tells whether the program is shutting down; may be empty.
    ReadControl(const std::vector<QByteArray>& pages, std::uint64_t physicalMemory,
                std::function<bool()> stopped = {});

    bool isStopped() const { return m_stopped && m_stopped(); }

    /// What may still be allocated, in bytes.
    std::uint64_t memoryLeft() const { return m_memoryLeft; }
    /// Counts a show with this many bytes of text. False when it would exceed the limit.
    bool countShow(std::size_t textBytes);

    void setIncomplete() { m_outcome.incomplete = true; }
    void setNotASchedule() { m_outcome.isSchedule = false; }
    const ReadOutcome& outcome() const { return m_outcome; }

  private:
    const std::function<bool()> m_stopped;
    std::uint64_t m_memoryLeft = 0;
    ReadOutcome m_outcome;
};

} // namespace guide
