#pragma once

#include "store/TVEntry.h"
#include "store/TVEntrySupplementalData.h"
#include "text/TVListingsCategory.h"

#include <QSet>
#include <QUrl>

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace guide {

/// A show while it is being made by a reader: its entry may still change.
struct ExtendedTVEntry {
    std::shared_ptr<TVEntry> basic;
    /// Unset makes a show item of one element.
    std::optional<TVListingsCategory> categories;
    /// Null makes a show item of at most two elements.
    std::shared_ptr<TVEntrySupplementalData> extra;
    /// Empty makes a show item of at most three elements.
    QSet<QUrl> pictures;
};

/// What a reader hands to the merge: for each channel its shows in the order of reading.
using ParsedLists = std::unordered_map<ObjectId, std::vector<ExtendedTVEntry>>;

/// One show of a list: the entry, and up to three parts more. Immutable and cheap to copy.
struct ShowItem {
    std::shared_ptr<const TVEntry> entry;
    std::optional<TVListingsCategory> categories;
    std::shared_ptr<const TVEntrySupplementalData> details;
    /// Any member serves as the picture of a row.
    std::shared_ptr<const QSet<QUrl>> pictures;

    /// 1 to 4: how far the parts go.
    int elementCount() const { return pictures ? 4 : details ? 3 : categories ? 2 : 1; }
};

using ShowItems = std::vector<ShowItem>;

/// A list of shows in ascending start time. The vector never changes: a change replaces the list. Null is no list.
using ShowList = std::shared_ptr<const ShowItems>;

/// One channel that a set of pages is read for.
struct LoadItem {
    ObjectId channel;
    QString sourceId;
    QString language;
};

} // namespace guide
