#pragma once

#include "parsers/xmltv/FeedMarkup.h"
#include "platform/encoding/TextSource.h"

#include <QByteArray>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace guide {

/// Receives the channels and programmes of a feed in its order. All views are valid during the call.
class FeedScanEvents {
  public:
    virtual ~FeedScanEvents() = default;
    /// `content` is what is between the tags.
    virtual void channel(const OpeningTag& tag, std::string_view content) = 0;
    /// Returns whether the programme is kept; nothing when that is uncertain.
    virtual std::optional<bool> programme(const OpeningTag& tag, std::string_view content) = 0;
};

/// Reads a feed in windows, without a parser, and replaces every run of programmes that are not kept by an
/// empty one, as withoutUnwantedProgrammes() does for a feed in memory. The result does not depend on the
/// windows.
///
/// From the first place on where it is uncertain where a programme ends or whether it is kept, everything is
/// kept, and elements that can be told apart are still reported: a parser that reads what is kept gives the
/// same lists as for the whole feed if that is well-formed, and otherwise at least those.
class FeedScan {
  public:
    /// An element, comment or section that is longer has lost its end; what is in it is looked at instead.
    static constexpr std::size_t kLongestElement = std::size_t{4} << 20;
    /// More of them end the feed: each is read to that length.
    static constexpr int kMostEndless = 16;
    static constexpr std::size_t kWindow = std::size_t{256} << 10;

    /// Everything must outlive this object.
    FeedScan(TextSource& source, FeedScanEvents& events)
        : m_source(source)
        , m_events(events) {}

    /// Scans the next window and appends what is kept of it to `kept`, unless that is null. False after the
    /// last one.
    bool next(std::string* kept);

    /// Whether the feed was read to its end, and its element `tv`, if it has one, was closed. Valid at the
    /// end.
    bool isWhole() const { return hasEnd() && !m_isMalformed; }
    /// The same of a feed that may be malformed in between. Valid at the end.
    bool hasEnd() const { return m_isLast && !m_isCut && m_hasRoot == m_hasEnded; }

  private:
    void readWindow();
    void scan(std::string* kept);
    /// Moves m_at behind what begins at `mark`.
    Markup skip(const char* mark);
    Markup skipProgramme(const char* mark);
    Markup skipChannel(const char* mark);
    Markup skipRoot(const char* mark);
    /// Keeps everything up to `end`.
    void keep(const char* end);

    TextSource& m_source;
    FeedScanEvents& m_events;
    /// Of the current window; null when nothing is kept.
    std::string* m_kept = nullptr;
    QByteArray m_text;
    std::size_t m_size = 0;
    const char* m_at = nullptr;
    /// The start of what has been neither kept nor dropped.
    const char* m_from = nullptr;
    /// Only blanks separate m_from from a programme that was dropped.
    bool m_isRun = false;
    bool m_keepsAll = false;
    bool m_isMalformed = false;
    bool m_isCut = false;
    int m_endlessCount = 0;
    bool m_isLast = false;
    bool m_hasRoot = false;
    bool m_hasEnded = false;
};

} // namespace guide
