#pragma once

namespace guide {

/// Keeps the calendar in step with the listings and the rules.
class AlarmSynchronisation {
  public:
    virtual ~AlarmSynchronisation() = default;
    /// Sets the mark that the calendar agrees with the listings and the rules; it survives the process. Any
    /// thread.
    virtual void setSynchronized(bool synchronized) = 0;
    /// Starts a run, which does little when the mark is set. Main queue.
    virtual void syncAlarms() = 0;
    /// Starts to write what the calendar has not written yet.
    virtual void commit() = 0;

    /// Starts a full run. Main queue.
    void resynchronize() {
        setSynchronized(false);
        syncAlarms();
    }
};

} // namespace guide
