#include "app/UpdatePlan.h"

#include <QHash>

#include <algorithm>
#include <tuple>
#include <unordered_set>

namespace guide {

ChannelDecision decideChannel(const ChannelCondition& condition, unsigned wantedShows) {
    ChannelDecision decision;
    decision.requireReload = condition.showCount.value_or(0) < wantedShows;
    const bool due = !condition.loading && (decision.requireReload || condition.reloadNeeded);
    decision.plan = due || !condition.showCount;
    return decision;
}

std::vector<PlannedSource> planSources(const CatalogueChannel& channel, const PlanSource& planSource) {
    std::vector<PlannedSource> sources;
    unsigned number = 0;
    for (const QString& sourceId : channel.sourceIds) {
        SourcePlan plan = planSource(sourceId);
        sources.push_back({++number, sourceId, plan.type, std::move(plan.urls).value_or(QList<QUrl>())});
    }
    return sources;
}

std::vector<UpdateStep>
planSteps(const std::vector<std::pair<ObjectId, std::vector<PlannedSource>>>& channels) {
    struct Placed {
        unsigned number;
        std::size_t found;
        UpdateStep step;
    };
    std::vector<Placed> placed;
    QHash<QList<QUrl>, std::size_t> places;
    std::size_t found = 0;
    for (const auto& [channel, sources] : channels) {
        for (const PlannedSource& source : sources) {
            if (source.urls.isEmpty()) {
                continue;
            }
            ++found;
            const auto known = places.constFind(source.urls);
            if (known == places.cend()) {
                places.insert(source.urls, placed.size());
                placed.push_back(
                    {source.number, found, {source.urls, {{channel, source.sourceId, source.type}}}});
                continue;
            }
            Placed& place = placed[*known];
            if (source.number < place.number) {
                place.number = source.number;
                place.found = found;
            }
            // Only pairs of this channel can equal this one, and they are the last ones.
            const UpdateStep::Served pair{channel, source.sourceId, source.type};
            auto& served = place.step.served;
            const auto foreign = std::find_if(served.rbegin(), served.rend(), [&pair](const auto& other) {
                return other == pair || other.channel != pair.channel;
            });
            if (foreign == served.rend() || *foreign != pair) {
                served.push_back(pair);
            }
        }
    }
    std::sort(placed.begin(), placed.end(), [](const Placed& left, const Placed& right) {
        return std::tie(left.number, left.found) < std::tie(right.number, right.found);
    });
    std::vector<UpdateStep> steps;
    steps.reserve(placed.size());
    for (Placed& place : placed) {
        steps.push_back(std::move(place.step));
    }
    return steps;
}

DueItems dueItems(const UpdateStep& step,
                  const std::function<std::optional<QString>(const ObjectId&)>& languageOfDueChannel) {
    DueItems due;
    for (const UpdateStep::Served& served : step.served) {
        if (auto language = languageOfDueChannel(served.channel)) {
            if (due.items.empty()) {
                due.type = served.type;
            }
            due.items.push_back({served.channel, served.sourceId, std::move(*language)});
        }
    }
    return due;
}

TopLists topLists(const std::vector<LoadItem>& items, const MergeResult& result, unsigned showCount) {
    TopLists top;
    std::unordered_set<ObjectId> taken;
    for (const LoadItem& item : items) {
        const auto list = result.lists.find(item.channel);
        if (list != result.lists.end() && taken.insert(item.channel).second) {
            top.emplace_back(item.channel, ShowSpan(list->second).prefix(showCount));
        }
    }
    return top;
}

} // namespace guide
