#include "core/ChannelFilter.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace guide {

std::vector<CatalogueRow> filteredChannels(std::vector<CatalogueRow> rows, const SupportedChannelTypes& types,
                                           const HasIcon& hasIcon, RowTally* tally) {
    const auto leaveOut = [tally](RowProblem problem) {
        if (tally) {
            tally->leaveOut(problem);
        }
    };
    if (types.pairs().empty()) {
        std::ranges::for_each(rows, [&](const CatalogueRow&) { leaveOut(RowProblem::Language); });
        return {};
    }
    const SupportedChannelTypesPair& home = types.pairs().front();
    std::vector<CatalogueRow*> kept; // null where a better version replaced it
    kept.reserve(rows.size());
    std::unordered_map<ObjectId, std::size_t> seen; // index into `kept`
    seen.reserve(rows.size());

    for (CatalogueRow& row : rows) {
        const CatalogueChannel& channel = row.channel;
        const SupportedChannelTypesPair pair{channel.language, channel.region};
        if (std::ranges::find(types.pairs(), pair) == types.pairs().end()) {
            leaveOut(RowProblem::Language);
            continue;
        }
        const auto earlier = seen.find(channel.id);
        if (earlier != seen.end()) {
            const int score = int(channel.language == home.language) + int(channel.region == home.region);
            const CatalogueChannel& other = kept[earlier->second]->channel;
            const int otherScore =
                int(other.language == home.language) + int(other.region.startsWith(home.region));
            if (otherScore >= score) {
                continue;
            }
        }
        // Tested last because it loads an image.
        if (!hasIcon(channel.icon)) {
            leaveOut(RowProblem::Icon);
            continue;
        }
        if (earlier != seen.end()) {
            kept[earlier->second] = nullptr;
            earlier->second = kept.size();
        } else {
            seen.emplace(channel.id, kept.size());
        }
        kept.push_back(&row);
    }

    std::vector<CatalogueRow> result;
    result.reserve(seen.size());
    for (CatalogueRow* row : kept) {
        if (row) {
            result.push_back(std::move(*row));
        }
    }
    return result;
}

} // namespace guide
