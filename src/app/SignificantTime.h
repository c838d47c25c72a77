#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QDate>

#include <chrono>

namespace guide {

/// Notices, from looks at the device's clocks, what counts as a significant change of time: midnight, another
/// zone, a clock that was set, and waking from sleep.
class SignificantTime {
  public:
    /// One look at the clocks.
    struct Look {
        Moment now;
        /// The date there, in the device's zone.
        QDate date;
        QByteArray zone;
        /// Since the machine started: with the time that it slept, and without.
        std::chrono::milliseconds sinceStart;
        std::chrono::milliseconds awake;
    };

    explicit SignificantTime(Look first)
        : m_last(std::move(first)) {}

    /// Whether anything significant lies between the last look and this one.
    bool changed(const Look& look);

  private:
    Look m_last;
};

} // namespace guide
