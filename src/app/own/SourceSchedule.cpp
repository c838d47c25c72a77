#include "app/own/SourceSchedule.h"

#include <algorithm>

namespace guide {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::hours kShortestInterval{12};
constexpr std::chrono::minutes kMostDelay{30};
constexpr std::chrono::hours kLongestInterval{24 * 31};
constexpr int kFarPoorer = 4;
constexpr std::chrono::hours kBelieved{24 * 7};

/// The wait after a failure.
std::chrono::milliseconds waitAfter(SourceResult result) {
    switch (result) {
    case SourceResult::None:
    case SourceResult::Cancelled:
        return 0min;
    case SourceResult::NoAnswer:
        return 1min;
    case SourceResult::NoRoom:
    case SourceResult::NoFile:
    case SourceResult::Incomplete:
    case SourceResult::Busy:
    case SourceResult::GrabberFailed:
    case SourceResult::GrabberSilent:
        return 1h;
    case SourceResult::Poor:
    case SourceResult::Empty:
    case SourceResult::Status:
        return 6h;
    default:
        return kShortestInterval;
    }
}

} // namespace

Moment nextTryAfter(const SourceAttempt& attempt, std::chrono::hours interval, const RandomIndex& random) {
    Moment next = attempt.at;
    if (attempt.result == SourceResult::Read || attempt.result == SourceResult::Unchanged) {
        constexpr auto kSeconds = std::chrono::duration_cast<std::chrono::seconds>(kMostDelay).count();
        next += std::clamp(interval, kShortestInterval, kLongestInterval) +
                std::chrono::seconds(random(static_cast<unsigned>(kSeconds)));
    } else {
        next += waitAfter(attempt.result);
    }
    if (attempt.notBefore) {
        next = std::max(next, std::min(*attempt.notBefore, attempt.at + kLongestInterval));
    }
    return next;
}

bool isSourceDue(const SourceStatus& status, Moment now) {
    return !status.nextTry || *status.nextTry <= now ||
           *status.nextTry > now + kLongestInterval + kMostDelay || (status.lastTry && *status.lastTry > now);
}

bool isFarPoorer(const FeedExtent& extent, const SourceStatus& before, Moment now) {
    if (extent.channelsWithShows == 0) {
        return before.channelsWithShows > 0;
    }
    if (!before.lastSuccess || *before.lastSuccess + kBelieved < now) {
        return false;
    }
    return extent.channelsWithShows * kFarPoorer < before.channelsWithShows ||
           extent.shows * static_cast<std::int64_t>(kFarPoorer) < before.shows;
}

} // namespace guide
