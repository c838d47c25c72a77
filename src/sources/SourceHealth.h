#pragma once

#include "platform/Moment.h"
#include "sources/PageFetcher.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// Why a load went on to the channel's next source.
enum class PassedOverReason {
    /// The source's id leads to no page: nobody knows it, or its host is not in the table.
    NoPlan,
    /// Its first page did not come.
    NoPage,
    /// Its pages hold no show of the channel.
    NoShows,
    /// All shows of its pages are over.
    OnlyPastShows,
};

struct PassedOverSource {
    QString sourceId;
    PassedOverReason reason = PassedOverReason::NoPlan;
    /// Of the page that did not come: the status of the last answer, 0 when there was none, and why.
    int status = 0;
    PageReason pageReason = PageReason::None;

    friend bool operator==(const PassedOverSource&, const PassedOverSource&) = default;
};

/// The source that a channel's shows are from.
struct UsedSource {
    QString sourceId;
    /// When its list was read.
    Moment at;
    /// Pages that came; fewer than planned when a later one did not.
    int pages = 0;
    /// Shows that were stored.
    int shows = 0;
    /// The end of the last one, or its start where it has no end.
    std::optional<Moment> reachesUntil;

    friend bool operator==(const UsedSource&, const UsedSource&) = default;
};

/// What a channel's last load did.
struct SourceHealth {
    /// When it was over.
    Moment at;
    /// Of this load, or of an earlier one when this one has brought nothing; nothing when none ever has.
    std::optional<UsedSource> used;
    /// The sources that this load asked before, in their order: all of them when it has brought nothing.
    std::vector<PassedOverSource> passedOver;

    bool hasLoaded() const { return used && used->at == at; }

    friend bool operator==(const SourceHealth&, const SourceHealth&) = default;
};

} // namespace guide
