#pragma once

#include "platform/files/Folders.h"

#include <QString>

#include <cstdint>
#include <mutex>

namespace guide {

/// The mark that the calendar agrees with the listings and the rules: an empty file in the caches folder, so
/// losing it only costs a full run. In a profile that cannot be written it lives in memory. Any thread.
class SynchronizedMark {
  public:
    explicit SynchronizedMark(const Folders& folders);

    bool isSet() const;
    void set(bool synchronized);

    /// How often the mark was cleared.
    std::uint64_t clearings() const;
    /// Sets the mark unless it was cleared since then.
    void setUnlessClearedSince(std::uint64_t clearings);

  private:
    void write(bool synchronized);

    const QString m_path;
    const bool m_writable;
    mutable std::mutex m_guard;
    bool m_isSet;                  // guarded
    std::uint64_t m_clearings = 0; // guarded
};

} // namespace guide
