#pragma once

#include "platform/Moment.h"
#include "sources/PageFetcher.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// Why a load went on to the channel's next source.
enum class PassedOverReason {
    /// No URL can be planned: the id is malformed or its host is not in the table.
    NoPlan,
    /// Its first page could not be fetched.
    NoPage,
    /// Its pages contain no show of the channel.
    NoShows,
    /// All shows of its pages are over.
    OnlyPastShows,
    /// Its pages cannot be read as a schedule at all.
    NotASchedule,
};

struct PassedOverSource {
    QString sourceId;
    PassedOverReason reason = PassedOverReason::NoPlan;
    /// For a page that could not be fetched: the status of the last answer, or 0, and the reason.
    int status = 0;
    PageReason pageReason = PageReason::None;

    friend bool operator==(const PassedOverSource&, const PassedOverSource&) = default;
};

/// The source of a channel's current shows.
struct UsedSource {
    QString sourceId;
    /// When its list was read.
    Moment at;
    /// Pages fetched; fewer than planned when a later one failed.
    int pages = 0;
    /// Shows that were stored.
    int shows = 0;
    /// The end of the last show, or its start when it has no end.
    std::optional<Moment> coveredUntil;
    /// A page broke off, or had more shows than are kept.
    bool incomplete = false;
    /// The host of its pages; empty in records of earlier versions.
    QString host = {};

    friend bool operator==(const UsedSource&, const UsedSource&) = default;
};

/// What a channel's last load did.
struct SourceHealth {
    /// When it finished.
    Moment at;
    /// From this load, or from an earlier one when this one stored nothing; unset when no load stored any.
    std::optional<UsedSource> used;
    /// The sources that this load passed over, in order; all of them when it stored nothing.
    std::vector<PassedOverSource> passedOver;

    bool hasLoaded() const { return used && used->at == at; }

    friend bool operator==(const SourceHealth&, const SourceHealth&) = default;
};

} // namespace guide
