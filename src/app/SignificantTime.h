#pragma once

#include "platform/Moment.h"

#include <QByteArray>
#include <QDate>

#include <chrono>

namespace guide {

/// Detects, from repeated readings of the device's clocks, significant changes of time: midnight, another
/// zone, a clock that was set, and waking from sleep.
class SignificantTime {
  public:
    /// One reading of the clocks.
    struct Reading {
        Moment now;
        /// The date in the device's zone.
        QDate date;
        QByteArray zone;
        /// Since the machine started, with and without the time that it slept.
        std::chrono::milliseconds sinceStart;
        std::chrono::milliseconds awake;
    };

    explicit SignificantTime(Reading first)
        : m_last(std::move(first)) {}

    /// Whether anything significant happened since the last reading.
    bool changed(const Reading& reading);

  private:
    Reading m_last;
};

} // namespace guide
