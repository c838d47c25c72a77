#include "parsers/own/OwnFeedReader.h"

#include "parsers/ReadControl.h"
#include "parsers/own/SourceText.h"
#include "parsers/xmltv/FeedFilter.h"
#include "parsers/xmltv/FeedListEnds.h"
#include "parsers/xmltv/XMLTVToEntries.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <utility>

namespace guide {

namespace {

using ItemsByChannel = std::unordered_map<QString, std::vector<const OwnFeedItem*>>;

ExtendedTVEntry copyOf(const ExtendedTVEntry& entry) {
    ExtendedTVEntry copy = entry;
    copy.basic = std::make_shared<TVEntry>(*entry.basic);
    return copy;
}

/// Gives the shows of a feed's channel to an item. `last` is false while other items need them.
void give(FeedChannelEntries& channel, const OwnFeedItem& item, bool last, Moment now,
          std::vector<ExtendedTVEntry>& list) {
    for (ExtendedTVEntry& read : channel.entries) {
        const auto moved = [&item](const std::optional<Moment>& moment) {
            return moment ? std::optional<Moment>(*moment + item.shift) : moment;
        };
        const auto end = moved(read.basic->endDateTime());
        if (!end || *end <= now) {
            continue;
        }
        ExtendedTVEntry entry = last ? std::move(read) : copyOf(read);
        entry.basic->setDateTime(moved(entry.basic->dateTime()));
        entry.basic->setEndDateTime(end);
        entry.basic->setChannel(item.channel);
        entry.basic->setSourceId(item.feedChannel);
        list.push_back(std::move(entry));
    }
}

/// Of several items for a channel, the first one with a language decides.
std::unordered_map<std::string, QString> languagesOf(const std::vector<OwnFeedItem>& items) {
    std::unordered_map<std::string, QString> languages;
    for (const OwnFeedItem& item : items) {
        QString& language = languages[item.feedChannel.toStdString()];
        language = language.isEmpty() ? item.language.left(2) : language;
    }
    return languages;
}

} // namespace

OwnFeed readOwnFeed(const QString& path, const QString& charset, const std::vector<OwnFeedItem>& items,
                    const OwnFeedEnvironment& environment) {
    OwnFeed feed;
    SourceText text(path, charset, environment.physicalMemory);
    const auto finish = [&feed, &text, &environment](bool isWhole) {
        const bool isStopped = environment.stopped && environment.stopped();
        feed.result = isStopped ? SourceResult::Cancelled : text.result();
        feed.unpackedBytes = text.unpackedBytes();
        if (feed.result == SourceResult::Read && !isWhole) {
            feed.result = SourceResult::Incomplete;
        }
        if (feed.result != SourceResult::Read && feed.result != SourceResult::Incomplete) {
            feed.lists.clear();
        }
    };
    if (text.kind() != SourceKind::Feed) {
        finish(true);
        // A playlist has no shows.
        feed.result = feed.result == SourceResult::Read ? SourceResult::Unknown : feed.result;
        return feed;
    }

    ItemsByChannel byChannel;
    std::vector<QString> wantedIds;
    std::chrono::minutes longestShift{0};
    for (const OwnFeedItem& item : items) {
        std::vector<const OwnFeedItem*>& sharing = byChannel[item.feedChannel];
        if (sharing.empty()) {
            wantedIds.push_back(item.feedChannel);
        }
        sharing.push_back(&item);
        longestShift = std::max(longestShift, item.shift);
    }
    const WantedChannels wanted(wantedIds);
    ZoneClock clock(environment.zone.isValid() ? environment.zone : QTimeZone::utc());
    FeedFilter filter(text, wanted, &clock, environment.stopped);
    ReadControl control({}, environment.physicalMemory, environment.stopped);
    bool isRead = true;
    if (!items.empty()) {
        const Moment now = environment.clock.now();
        XMLTVToEntries reader(filter, wantedIds,
                              {.shows = {.alphabet = environment.alphabet,
                                         .locale = environment.locale,
                                         .reading = ownReading()},
                               .now = now - longestShift,
                               .control = &control,
                               .withoutOffset = &clock,
                               .languages = languagesOf(items),
                               .names = &filter.names()});
        isRead = !reader.brokeOff() && !control.outcome().incomplete;
        for (FeedChannelEntries& channel : reader.entries()) {
            const auto sharing = byChannel.find(channel.sourceId);
            if (sharing == byChannel.end()) {
                continue;
            }
            repairEnds(channel);
            for (const OwnFeedItem* item : sharing->second) {
                give(channel, *item, item == sharing->second.back(), now, feed.lists[item->channel]);
            }
        }
    }
    filter.finish();
    const FeedCounts& counts = filter.counts();
    feed.channels = counts.channels;
    feed.channelsWithShows = counts.channelsWithShows;
    feed.shows = counts.shows;
    feed.newest = counts.newest;
    // Malformed programmes were skipped.
    finish(isRead && filter.hasEnd());
    return feed;
}

} // namespace guide
