#include "screens/DaySections.h"

#include "store/LocalTime.h"

#include <QHash>

#include <iterator>
#include <unordered_map>

namespace guide {

std::vector<DaySection> daySections(std::span<const ShowItem> shows, const QLocale& locale,
                                    const QTimeZone& zone) {
    std::vector<DaySection> sections;
    LocalTime localTime(zone);
    QHash<QDate, std::size_t> sectionOfDay;
    for (const ShowItem& show : shows) {
        if (!show.entry()->dateTime()) {
            continue;
        }
        const QDate day = localTime.dateAt(*show.entry()->dateTime());
        const auto known = sectionOfDay.constFind(day);
        if (known != sectionOfDay.cend()) {
            sections[*known].shows.push_back(show);
            continue;
        }
        sectionOfDay.insert(day, sections.size());
        sections.push_back({day, locale.toString(day, QLocale::LongFormat), {show}});
    }
    return sections;
}

ShowItems showsWithChannelIcon(std::span<const ShowItem> shows, const CatalogueSnapshot& channels,
                               TVStationIcons& icons) {
    const auto hasIcon = [&](const ObjectId& channel) {
        const CatalogueChannel* listed = channels.find(channel);
        return listed && !icons.iconNamed(listed->icon).isNull();
    };
    std::unordered_map<ObjectId, bool> known;
    ShowItems result;
    std::ranges::copy_if(shows, std::back_inserter(result), [&](const ShowItem& show) {
        const auto [channel, isNew] = known.try_emplace(show.entry()->channel(), false);
        if (isNew) {
            channel->second = hasIcon(channel->first);
        }
        return channel->second;
    });
    return result;
}

} // namespace guide
