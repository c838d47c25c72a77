#pragma once

#include "core/own/SourcePreview.h"
#include "parsers/markers/ZoneClock.h"
#include "parsers/own/EveningNews.h"
#include "parsers/own/SourcePreviewReader.h"
#include "parsers/xmltv/FeedMemo.h"
#include "parsers/xmltv/FeedScan.h"
#include "store/LocalTime.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace guide {

/// Gathers what a preview says about a feed while it is scanned.
class PreviewFeed final : public FeedScanEvents {
  public:
    /// Dates without an offset are those of `withoutOffset`.
    PreviewFeed(const PreviewRequest& request, const QTimeZone& withoutOffset);

    int channelCount() const { return static_cast<int>(m_channels.size()); }
    /// Whether texts that were looked at were malformed.
    bool isMalformed() const { return m_isMalformed; }
    /// Whether dates had no offset.
    bool hasLocalTimes() const { return m_hasLocalTimes; }
    /// Fills in everything about the channels and shows, and their warnings.
    void finish(SourcePreview& preview);

    void channel(const OpeningTag& tag, std::string_view content) override;
    std::optional<bool> programme(const OpeningTag& tag, std::string_view content) override;

  private:
    /// A show and how well it fits; the smallest rank is the best.
    struct Candidate {
        std::pair<int, int> rank;
        PreviewShow show;
    };
    struct Channel {
        PreviewChannel found;
        /// Of titles and descriptions, until the language is told.
        std::string text;
        bool isLanguageTold = false;
        std::optional<Moment> first;
        std::optional<Moment> last;
        /// The latest start that is not in the future.
        std::optional<Moment> lastStarted;
        /// Began last, and its end is not given.
        std::optional<PreviewShow> open;
        int newsShows = 0;
        /// In the evening.
        std::optional<Candidate> news;
        std::optional<Candidate> prime;
    };
    struct Title;

    Channel* named(std::string id);
    void addSample(Channel& channel, std::string_view content);
    void tellLanguage(Channel& channel);
    void addTimes(Channel& channel, const Title& title, Moment start, std::optional<Moment> stop);
    void addNews(Channel& channel, const Title& title, Moment start, std::optional<Moment> stop);
    bool isNews(std::string_view rawTitle);
    void addWarnings(SourcePreview& preview);
    void chooseNews(SourcePreview& preview);

    const PreviewRequest& m_request;
    const QTimeZone m_zone;
    ZoneClock m_withoutOffset;
    bool m_hasLocalTimes = false;
    LocalTime m_local;
    QDate m_today;
    std::vector<Channel> m_channels;
    std::unordered_map<std::string, std::size_t> m_places;
    FeedMemo<bool> m_newsTitles;
    std::vector<NewsShow> m_news;
    std::size_t m_nameBytes = 0;
    /// Of the programme before, its channel as written; most feeds are sorted by channel.
    std::optional<std::string> m_lastChannel;
    std::optional<std::size_t> m_last;
    bool m_isMalformed = false;
};

} // namespace guide
