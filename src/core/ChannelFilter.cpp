#include "core/ChannelFilter.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace guide {

using namespace Qt::StringLiterals;

std::vector<ChannelDictionary> filteredChannels(const std::vector<ChannelDictionary>& channels,
                                                const SupportedChannelTypes& types, const HasIcon& hasIcon) {
    if (types.pairs().empty()) {
        return {};
    }
    const QString locationKey = u"Location"_s;
    const QString titleKey = u"Title"_s;
    const QString languageKey = u"Language"_s;
    const QString iconKey = u"Icon"_s;
    const SupportedChannelTypesPair& first = types.pairs().front();

    std::vector<const ChannelDictionary*> kept; // null where a better version has taken over
    kept.reserve(channels.size());
    std::unordered_map<ObjectId, std::size_t> seen; // to the place in `kept`
    seen.reserve(channels.size());

    for (const ChannelDictionary& channel : channels) {
        const std::optional<QString> location = channelValue(channel, locationKey);
        const QString icon = channel.value(iconKey);
        const qsizetype slash = icon.indexOf(u'/');
        if (!location || slash <= 0 || slash == icon.size() - 1 || channel.value(titleKey).isEmpty()) {
            continue;
        }
        const SupportedChannelTypesPair pair{channel.value(languageKey), icon.left(slash)};
        if (std::ranges::find(types.pairs(), pair) == types.pairs().end()) {
            continue;
        }
        const ObjectId id = ObjectId::fromHex(*location);
        const auto earlier = seen.find(id);
        if (earlier != seen.end()) {
            const int score = int(pair.language == first.language) + int(pair.region == first.region);
            const ChannelDictionary& other = *kept[earlier->second];
            const int otherScore = int(other.value(languageKey) == first.language) +
                                   int(other.value(iconKey).startsWith(first.region));
            if (otherScore >= score) {
                continue;
            }
        }
        // The last test, because it loads an image.
        if (!hasIcon(iconNameOf(icon))) {
            continue;
        }
        if (earlier != seen.end()) {
            kept[earlier->second] = nullptr;
            earlier->second = kept.size();
        } else {
            seen.emplace(id, kept.size());
        }
        kept.push_back(&channel);
    }

    std::vector<ChannelDictionary> result;
    result.reserve(seen.size());
    for (const ChannelDictionary* channel : kept) {
        if (channel) {
            result.push_back(*channel);
        }
    }
    return result;
}

} // namespace guide
