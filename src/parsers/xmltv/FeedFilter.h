#pragma once

#include "parsers/xmltv/FeedScan.h"
#include "parsers/xmltv/WantedChannels.h"
#include "parsers/xmltv/XMLTVDate.h"
#include "platform/Moment.h"
#include "platform/encoding/TextSource.h"

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace guide {

/// Channels beyond are neither counted nor previewed.
inline constexpr std::size_t kMostFeedChannels = 100'000;
/// Nor are those with longer ids.
inline constexpr std::size_t kLongestChannelId = 1'000;

/// What a whole feed has.
struct FeedCounts {
    /// Named by the feed, or only by its shows.
    int channels = 0;
    int channelsWithShows = 0;
    /// With a start that can be read.
    int shows = 0;
    /// The start of the last one.
    std::optional<Moment> newest;
};

/// A feed without the programmes of unwanted channels, which are counted on the way.
class FeedFilter final : public TextSource, private FeedScanEvents {
  public:
    /// Everything must outlive this object. `withoutOffset` is the time of dates without an offset; null to
    /// ignore them. `stopped`, if given, is asked at every window and ends the feed.
    FeedFilter(TextSource& feed, const WantedChannels& wanted, ZoneClock* withoutOffset = nullptr,
               std::function<bool()> stopped = {})
        : m_wanted(wanted)
        , m_withoutOffset(withoutOffset)
        , m_stopped(std::move(stopped))
        , m_scan(feed, *this) {}

    std::size_t read(std::span<char> room) override;
    /// Scans what was not read.
    void finish();

    /// As FeedScan tells them.
    bool isWhole() const { return m_scan.isWhole(); }
    bool hasEnd() const { return m_scan.hasEnd(); }
    /// Of what was scanned.
    const FeedCounts& counts() const { return m_counts; }
    /// The first names of the wanted channels, by their ids. Complete for a channel before its first
    /// programme is read, in feeds that name their channels first.
    const std::unordered_map<std::string, QString>& names() const { return m_names; }

  private:
    /// Whether the channel has shows, by its id.
    using Channels = std::unordered_map<std::string, bool>;

    void channel(const OpeningTag& tag, std::string_view content) override;
    std::optional<bool> programme(const OpeningTag& tag, std::string_view content) override;
    /// Null for a channel that is not counted.
    Channels::value_type* named(std::string id);
    bool scanWindow(std::string* kept) { return !(m_stopped && m_stopped()) && m_scan.next(kept); }

    const WantedChannels& m_wanted;
    ZoneClock* const m_withoutOffset;
    const std::function<bool()> m_stopped;
    FeedScan m_scan;
    std::string m_kept;
    /// The part of m_kept that was read.
    std::size_t m_read = 0;
    FeedCounts m_counts;
    Channels m_channels;
    std::unordered_map<std::string, QString> m_names;
    /// Most feeds are sorted by channel: of the programme before, its channel as written, and what is known
    /// about it.
    std::optional<std::string> m_lastChannel;
    Channels::value_type* m_last = nullptr;
    bool m_isLastWanted = false;
};

} // namespace guide
