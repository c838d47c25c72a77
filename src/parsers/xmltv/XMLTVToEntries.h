#pragma once

#include "parsers/ReadControl.h"
#include "parsers/xmltv/FeedShow.h"
#include "parsers/xmltv/WantedChannels.h"
#include "parsers/xmltv/XMLTVDate.h"
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

/// The context of reading a feed.
struct XMLTVOptions {
    FeedShowOptions shows;
    /// Shows that ended before it are dropped.
    Moment now;
    /// Whether `image` elements are read as pictures.
    bool useImage = false;
    /// Limits the shows; may be null.
    ReadControl* control = nullptr;
    /// The time of dates without an offset; null to ignore them.
    ZoneClock* withoutOffset = nullptr;
    /// The languages of the wanted channels, by their ids in the feed.
    std::unordered_map<std::string, QString> languages = {};
    /// Their names, which may arrive while the feed is read; null if they are unknown.
    const std::unordered_map<std::string, QString>* names = nullptr;
};

/// The shows of one channel of a feed, in document order.
struct FeedChannelEntries {
    /// The channel id of the feed; empty for programmes without a channel.
    QString sourceId;
    std::vector<ExtendedTVEntry> entries;
    /// The starts of programmes that made no entry because they are placeholders.
    std::vector<Moment> gaps = {};
    /// The latest start of those that are over and made no entry.
    std::optional<Moment> lastOver = {};
};

/// Reads a feed on construction: cleans, classifies and groups its shows. Keeps what precedes the first
/// error; with FeedReading::startsEntriesFresh, a feed that is read piece by piece loses only the programmes
/// that are malformed.
class XMLTVToEntries : private XMLTVEvents {
  public:
    /// `data` is UTF-8 and must own its bytes. No channels means all; with exactly one, all shows that pass
    /// the filter are assigned to it.
    XMLTVToEntries(const QByteArray& data, const std::vector<QString>& channels, XMLTVOptions options);
    /// The same of a feed that is read piece by piece.
    XMLTVToEntries(TextSource& data, const std::vector<QString>& channels, XMLTVOptions options);

    /// In the order in which the channels appear. The caller may move the entries out.
    std::vector<FeedChannelEntries>& entries() { return m_entries; }

    /// Where the feed broke off.
    const std::optional<XMLBreak>& brokeOff() const { return m_break; }
    bool hasProgrammes() const { return m_hasProgrammes; }

  private:
    XMLTVToEntries(const std::vector<QString>& channels, XMLTVOptions options);

    bool isStopped() const;
    void started(XMLTVElement element, const XMLTVAttributes& attributes) override;
    void text(std::string_view piece) override;
    void ended(XMLTVElement element) override;
    bool wantsText() const override;
    void skippedProgramme() override;

    const FeedReading& reading() const { return m_options.shows.reading; }
    void startProgramme(const XMLTVAttributes& attributes);
    FeedChannelEntries& channelEntries(const std::string& sourceId);
    /// False when the show is a placeholder, whose end tag is then ignored.
    bool finishShow();
    /// False when the show exceeds the limits.
    bool hasRoomForShow();

    const XMLTVOptions m_options;
    FeedShowMaker m_maker;
    const WantedChannels m_wanted;
    /// The only wanted channel.
    const std::optional<std::string> m_single;

    std::optional<XMLTVElement> m_inside;
    /// A second title is ignored.
    bool m_ignoreTitle = false;
    /// The current show; its buffers are reused.
    FeedShow m_show;
    bool m_hasShow = false;
    /// The text of all category elements of the programme.
    FeedText m_category;

    std::optional<XMLBreak> m_break;
    bool m_hasProgrammes = false;
    bool m_isFull = false;
    bool m_isCut = false;

    std::vector<FeedChannelEntries> m_entries;
    std::unordered_map<std::string, std::size_t> m_channelIndices;
};

} // namespace guide
