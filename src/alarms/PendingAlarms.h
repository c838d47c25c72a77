#pragma once

#include "store/ShowDigest.h"
#include "store/TVEntry.h"

#include <memory>
#include <optional>
#include <unordered_map>

namespace guide {

/// The pending alarms at one moment, by the digest of their show. Immutable; any thread.
class AlarmsSnapshot {
  public:
    /// Minutes between the alert and the show, on the scale of normalizedMinutes(); unset for an event whose
    /// alarm was removed in the calendar.
    using MinutesByShow = std::unordered_map<ShowDigest, std::optional<int>, ShowDigestHash>;

    AlarmsSnapshot() = default;
    explicit AlarmsSnapshot(MinutesByShow events)
        : m_events(std::move(events))
        , m_eventCount(m_events.size()) {}
    /// `eventCount` includes events whose URL is no show's.
    AlarmsSnapshot(MinutesByShow events, std::size_t eventCount)
        : m_events(std::move(events))
        , m_eventCount(eventCount) {}

    /// Minutes between the alert and the show; unset when the show has no alarm.
    std::optional<int> alarmedEntry(const TVEntry& entry) const {
        if (m_events.empty()) {
            return std::nullopt;
        }
        const std::optional<ShowDigest> digest = entry.digest();
        const auto event = digest ? m_events.find(*digest) : m_events.end();
        return event == m_events.end() ? std::nullopt : event->second;
    }
    /// Whether the show has an event, with or without an alarm.
    bool hasEvent(const TVEntry& entry) const {
        const std::optional<ShowDigest> digest = m_events.empty() ? std::nullopt : entry.digest();
        return digest && m_events.contains(*digest);
    }
    /// The number of events, including those without an alarm.
    std::size_t eventCount() const { return m_eventCount; }

  private:
    MinutesByShow m_events;
    std::size_t m_eventCount = 0;
};

/// Provides the current pending alarms from memory. Any thread.
class AlarmsSource {
  public:
    virtual ~AlarmsSource() = default;
    /// Never null. A screen takes it once per rebuild.
    virtual std::shared_ptr<const AlarmsSnapshot> snapshot() const = 0;
};

} // namespace guide
