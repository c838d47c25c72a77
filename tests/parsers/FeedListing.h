#pragma once

#include "parsers/ShowJSON.h"
#include "parsers/XMLTVToEntries.h"

#include <QJsonDocument>

#include <map>
#include <string>
#include <vector>

namespace guide::test {

/// Every show of a feed as one line of text, by the feed's channel.
using FeedListing = std::map<std::string, std::vector<std::string>>;

inline FeedListing listing(const QByteArray& feed, const std::vector<QString>& channels,
                           const XMLTVOptions& options) {
    FeedListing lists;
    XMLTVToEntries reader(feed, channels, options);
    for (FeedChannelEntries& channel : reader.entries()) {
        std::vector<std::string>& list = lists[channel.sourceId.toStdString()];
        for (ExtendedTVEntry& entry : channel.entries) {
            const QJsonObject show = showJSON(ShowItem(std::move(entry)));
            list.push_back(QJsonDocument(show).toJson(QJsonDocument::Compact).toStdString());
        }
    }
    return lists;
}

} // namespace guide::test
