#pragma once

#include "core/own/SourcePreview.h"
#include "screens/sources/SourceActions.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <cstddef>
#include <memory>
#include <vector>

namespace guide {

/// A feed that may give a playlist's channels their schedules.
struct FeedToMatch {
    OwnSourceId source;
    std::shared_ptr<const SourcePreview> preview;
};

/// The entries of the playlist with their channels of the feeds; the user's corrections come first.
std::vector<MatchedEntry> matchedEntries(const Playlist& playlist,
                                         const std::vector<GuideCorrection>& corrections,
                                         const std::vector<FeedToMatch>& feeds);

/// Where the channels are that clearly belong to the entries with these keys, by key.
QHash<QString, std::size_t> clearMatches(const Playlist& playlist, const QSet<QString>& keys,
                                         const std::vector<PreviewChannel>& channels);

} // namespace guide
