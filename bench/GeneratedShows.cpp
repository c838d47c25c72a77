#include "GeneratedShows.h"

namespace guide::bench {

using namespace Qt::StringLiterals;

const Alphabet& alphabet() {
    static const Alphabet alphabet;
    return alphabet;
}

ObjectId channelNumbered(int number) {
    return ObjectId::fromHex(QStringLiteral("%1").arg(number, 24, 16, QLatin1Char('0')));
}

std::vector<ExtendedTVEntry> generatedShows(int channel, Words& words) {
    std::vector<ExtendedTVEntry> shows;
    shows.reserve(kShowsPerList);
    Moment start = kNow - std::chrono::minutes(channel % 20);
    for (int i = 0; i < kShowsPerList; ++i) {
        auto entry = std::make_shared<TVEntry>(alphabet());
        const auto length = std::chrono::minutes(20 + words.below(40));
        entry->setChannel(channelNumbered(channel));
        entry->setDateTime(start);
        entry->setEndDateTime(start + length);
        entry->setSourceId(u"Channel%1.cz"_s.arg(channel));
        entry->setLanguage(u"cs"_s);
        entry->setIdentificator(words.text(1 + static_cast<int>(words.below(4))));
        if (words.below(2) == 0) {
            entry->setSubtitle1(words.text(3));
        }
        if (words.below(3) != 0) {
            entry->setInstantDetails1(words.text(3));
        }
        auto details = std::make_shared<TVEntrySupplementalData>();
        details->description = words.text(10 + static_cast<int>(words.below(20)));
        if (words.below(4) == 0) {
            details->directedBy = words.text(2);
            details->roles = words.text(8);
        }
        shows.push_back({std::move(entry), 1u << words.below(10), std::move(details), {}});
        start += length;
    }
    return shows;
}

ShowItems itemsOf(std::vector<ExtendedTVEntry> shows) {
    ShowItems items;
    items.reserve(shows.size());
    for (ExtendedTVEntry& show : shows) {
        items.emplace_back(std::move(show));
    }
    return items;
}

std::shared_ptr<const ChannelList> generatedList(int channel, Words& words) {
    return std::make_shared<const ChannelList>(
        std::make_shared<const ShowItems>(itemsOf(generatedShows(channel, words))));
}

} // namespace guide::bench
