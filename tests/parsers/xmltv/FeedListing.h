#pragma once

#include "parsers/ShowJSON.h"
#include "parsers/xmltv/FeedFilter.h"
#include "parsers/xmltv/PiecewiseText.h"
#include "parsers/xmltv/XMLTVToEntries.h"

#include <QJsonDocument>

#include <algorithm>
#include <libxml/parser.h>
#include <map>
#include <string>
#include <vector>

namespace guide::test {

/// Every show of a feed as one line of text, by channel id.
using FeedListing = std::map<std::string, std::vector<std::string>>;

inline FeedListing listing(XMLTVToEntries reader) {
    FeedListing lists;
    for (FeedChannelEntries& channel : reader.entries()) {
        std::vector<std::string>& list = lists[channel.sourceId.toStdString()];
        for (ExtendedTVEntry& entry : channel.entries) {
            const QJsonObject show = showJSON(ShowItem(std::move(entry)));
            list.push_back(QJsonDocument(show).toJson(QJsonDocument::Compact).toStdString());
        }
    }
    return lists;
}

inline FeedListing listing(const QByteArray& feed, const std::vector<QString>& channels,
                           const XMLTVOptions& options) {
    return listing(XMLTVToEntries(feed, channels, options));
}

/// Of a feed that is read in pieces.
inline FeedListing listingOfPieces(const QByteArray& feed, std::size_t piece,
                                   const std::vector<QString>& channels, const XMLTVOptions& options) {
    PiecewiseText text(feed, piece);
    return listing(XMLTVToEntries(text, channels, options));
}

/// The feed without the programmes of unwanted channels, read in pieces.
inline QByteArray filteredPieces(const QByteArray& feed, std::size_t piece, const WantedChannels& wanted) {
    PiecewiseText text(feed, piece);
    FeedFilter filter(text, wanted);
    QByteArray kept(feed.size() + 100, Qt::Uninitialized);
    kept.truncate(static_cast<qsizetype>(filter.read({kept.data(), static_cast<std::size_t>(kept.size())})));
    return kept;
}

/// Uses the parser of the guide: others accept more characters.
inline bool isWellFormed(const QByteArray& document) {
    xmlDocPtr read = xmlReadMemory(document.constData(), static_cast<int>(document.size()), nullptr, "UTF-8",
                                   XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET);
    xmlFreeDoc(read);
    return read != nullptr;
}

/// Whether each list of `whole` is a prefix of the same list in `ours`.
inline bool isPrefix(const FeedListing& whole, const FeedListing& ours) {
    return std::all_of(whole.begin(), whole.end(), [&ours](const auto& channel) {
        const auto& [id, list] = channel;
        const auto found = ours.find(id);
        return found != ours.end() && found->second.size() >= list.size() &&
               std::equal(list.begin(), list.end(), found->second.begin());
    });
}

} // namespace guide::test
