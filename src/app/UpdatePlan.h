#pragma once

#include "core/CatalogueChannel.h"
#include "core/ObjectId.h"
#include "parsers/URLPlanner.h"
#include "store/ListMerge.h"
#include "store/ShowItem.h"

#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

// The decisions of a check, as pure functions. Nothing here reads a clock, a disk or the network.

namespace guide {

/// What a check knows about a selected channel.
struct ChannelCondition {
    /// Shows in the store that are not over; unset when the store has not counted the channel.
    std::optional<unsigned> showCount;
    bool loading = false;
    /// Whether its list is too old.
    bool reloadNeeded = false;
};

struct ChannelDecision {
    /// The list has too few shows and must be loaded again, whatever its age.
    bool requireReload = false;
    /// URLs must be planned for the channel.
    bool plan = false;
};

ChannelDecision decideChannel(const ChannelCondition& condition, unsigned wantedShows);

/// A source of a channel.
struct PlannedSource {
    /// 1 for the first choice.
    unsigned number = 0;
    QString sourceId;
    /// How its pages are read.
    ListingsType type = ListingsType::XMLTV;
    /// In fetch order; empty when the source cannot be asked.
    QList<QUrl> urls;
};

using PlanSource = std::function<SourcePlan(const QString& sourceId)>;

std::vector<PlannedSource> planSources(const CatalogueChannel& channel, const PlanSource& planSource);

/// One list of URLs, whose pages are fetched once, with the channels that it serves.
struct UpdateStep {
    struct Served {
        ObjectId channel;
        QString sourceId;
        ListingsType type = ListingsType::XMLTV;

        friend bool operator==(const Served&, const Served&) = default;
    };
    QList<QUrl> urls;
    /// In the order of the channels.
    std::vector<Served> served;
};

/// All first sources before any second one, and within one number in the order of the channels. Sources that
/// cannot be asked are skipped. A list that serves several channels, or one channel under several numbers,
/// appears once, at its earliest position.
std::vector<UpdateStep>
planSteps(const std::vector<std::pair<ObjectId, std::vector<PlannedSource>>>& channels);

/// The items of a step that are still due when the step begins.
struct DueItems {
    std::vector<LoadItem> items;
    /// Of the first item's source.
    ListingsType type = ListingsType::XMLTV;
};

/// `languageOfDueChannel` returns nothing for a channel that is no longer due, because an earlier step has
/// loaded it.
DueItems dueItems(const UpdateStep& step,
                  const std::function<std::optional<QString>(const ObjectId&)>& languageOfDueChannel);

/// The first shows of each loaded channel.
using TopLists = std::vector<std::pair<ObjectId, ShowSpan>>;

/// In the order of the load items, at most `showCount` shows per channel.
TopLists topLists(const std::vector<LoadItem>& items, const MergeResult& result, unsigned showCount);

} // namespace guide
