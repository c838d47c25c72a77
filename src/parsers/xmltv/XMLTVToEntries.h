#pragma once

#include "parsers/xmltv/FeedShow.h"
#include "parsers/xmltv/WantedChannels.h"
#include "parsers/xmltv/XMLTVSaxParser.h"
#include "platform/Moment.h"
#include "store/ShowItem.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace guide {

/// What the reader of a feed needs beside the feed.
struct XMLTVOptions {
    FeedShowOptions shows;
    /// Shows that have ended before it are dropped.
    Moment now;
    /// Whether an `image` element names the picture of a show.
    bool useImage = false;
};

/// The shows of one channel of a feed, in document order.
struct FeedChannelEntries {
    /// The feed's own id; empty for programmes that name no channel.
    QString sourceId;
    std::vector<ExtendedTVEntry> entries;
};

/// Reads a feed when it is made: cleans, classifies and groups its shows. What a document holds before its
/// first fault is kept.
class XMLTVToEntries : private XMLTVEvents {
  public:
    /// `data` is UTF-8 and owns its bytes. Of the channels none means all; where there is exactly one, all
    /// shows that the filter lets through are filed under it.
    XMLTVToEntries(const QByteArray& data, const std::vector<QString>& channels, XMLTVOptions options);

    /// In the order in which the channels appear. A caller may take the entries out.
    std::vector<FeedChannelEntries>& entries() { return m_entries; }

  private:
    void started(XMLTVElement element, const XMLTVAttributes& attributes) override;
    void text(std::string_view piece) override;
    void ended(XMLTVElement element) override;

    void startProgramme(const XMLTVAttributes& attributes);
    /// False when the show is a placeholder, and the element's end is to pass as if it had not come.
    bool finishShow();

    const XMLTVOptions m_options;
    FeedShowMaker m_maker;
    const WantedChannels m_wanted;
    /// The only wanted channel.
    const std::optional<std::string> m_single;

    std::optional<XMLTVElement> m_inside;
    /// A second title of a programme adds nothing.
    bool m_ignoreTitle = false;
    /// The show under construction; its buffers serve one show after the other.
    FeedShow m_show;
    bool m_hasShow = false;
    /// All text of the categories of the programme.
    FeedText m_category;

    std::vector<FeedChannelEntries> m_entries;
    std::unordered_map<std::string, std::size_t> m_channelIndices;
};

} // namespace guide
