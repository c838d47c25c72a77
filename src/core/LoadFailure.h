#pragma once

#include <QString>

namespace guide {

enum class LoadFailureReason {
    /// The channel has no source that can be asked.
    NoSource,
    /// The server could not be reached or broke off its answer.
    NoAnswer,
    /// The server answered with another status than success.
    Status,
    /// The server answered with something that cannot be read as a schedule.
    NotASchedule,
    /// The schedule has no show of the channel.
    NoShows,
    /// All shows of the channel in the schedule are over.
    OnlyPastShows,
    /// A source that the user added could not be read; its own page says why. `host` is its name.
    OwnSource,
};

/// Why the last load of a channel stored nothing. Of several sources it describes the first one that can be
/// asked.
struct LoadFailure {
    LoadFailureReason reason = LoadFailureReason::NoSource;
    /// The host that was asked; empty when none was.
    QString host;
    /// The status of the answer; 0 when there was none.
    int status = 0;

    friend bool operator==(const LoadFailure&, const LoadFailure&) = default;
};

} // namespace guide
