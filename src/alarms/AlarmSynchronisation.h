#pragma once

namespace guide {

/// Keeps the calendar in step with the listings and the rules.
class AlarmSynchronisation {
  public:
    virtual ~AlarmSynchronisation() = default;
    /// Sets or clears the persistent mark that the calendar agrees with the listings and the rules. Any
    /// thread.
    virtual void setSynchronized(bool synchronized) = 0;
    /// Whether the mark is set. Any thread.
    virtual bool isSynchronized() const = 0;
    /// Starts a run, which does little when the mark is set. Main queue.
    virtual void syncAlarms() = 0;
    /// Whether a run is under way. Main queue.
    virtual bool isRunning() const = 0;
    /// Starts writing the calendar's unsaved changes.
    virtual void commit() = 0;
    /// Whether the user lets the guide read and write the calendar.
    virtual bool hasCalendarAccess() const = 0;

    /// Starts a full run. Main queue.
    void resynchronize() {
        setSynchronized(false);
        syncAlarms();
    }
};

} // namespace guide
