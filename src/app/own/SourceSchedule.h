#pragma once

#include "core/own/SourceStatus.h"
#include "platform/Moment.h"
#include "sources/RandomIndex.h"

#include <chrono>
#include <optional>

namespace guide {

/// What an attempt to read a source says about the next one.
struct SourceAttempt {
    SourceResult result = SourceResult::None;
    Moment at;
    /// Before it the server does not want to be asked.
    std::optional<Moment> notBefore = {};
};

/// When a source is asked again by itself. After a success the interval has passed, at least 12 hours, plus
/// up to half an hour that no two devices share. A server that could not be reached is asked as soon as
/// anything asks for a check; other failures wait for hours, because a person has to mend them.
Moment nextTryAfter(const SourceAttempt& attempt, std::chrono::hours interval, const RandomIndex& random);

/// Whether the source is due. A time that is further away than any attempt sets shows that a clock was wrong.
bool isSourceDue(const SourceStatus& status, Moment now);

/// How much a feed has, whole or not.
struct FeedExtent {
    int channelsWithShows = 0;
    int shows = 0;
};

/// Whether a feed has so much less than the last one that was read in full that it says nothing about the
/// schedule. After a week anything is believed that has channels at all.
bool isFarPoorer(const FeedExtent& extent, const SourceStatus& before, Moment now);

} // namespace guide
