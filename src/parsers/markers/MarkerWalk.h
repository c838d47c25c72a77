#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace guide {

/// Records markers that were not found, to find out what a broadcaster has changed. Most misses are not
/// faults: every loop over the shows of a page ends with one.
class MarkerTrace {
  public:
    void miss(std::string_view marker);
    /// The last missing marker; empty when all were found.
    const std::string& lastMissed() const { return m_lastMissed; }
    /// The first missing marker that occurs nowhere in the pages, which is the one that the broadcaster most
    /// likely changed; when each occurs somewhere, the last missing one.
    const std::string& changed(const std::vector<QByteArray>& pages) const;

  private:
    /// A reader has few markers; the limit is for those that contain a day or a channel.
    static constexpr std::size_t kMostMarkers = 64;

    std::string m_lastMissed;
    /// Each once, in the order of their first miss.
    std::vector<std::string> m_missed;
};

/// Walks over the text of a page from one literal marker to the next. Markers are compared byte by byte, in
/// UTF-8; a search that fails does not move the walk. The text must outlive the walk and everything taken
/// from it.
///
/// Positions are byte offsets into the whole text, even for a walk over a part of it.
class MarkerWalk {
  public:
    static constexpr std::size_t npos = std::string_view::npos;

    /// Walks over the whole text. `trace` records every marker that is not found.
    MarkerWalk(std::string_view text, MarkerTrace& trace)
        : m_text(text)
        , m_limit(text.size())
        , m_trace(&trace) {}

    std::size_t position() const { return m_position; }
    /// Matches must end at or before it.
    std::size_t limit() const { return m_limit; }
    bool atEnd() const { return m_position >= m_limit; }
    /// The same text from `from`, up to `limit` or the walk's own limit.
    MarkerWalk part(std::size_t from, std::size_t limit = npos) const;
    void moveTo(std::size_t position) { m_position = std::min(position, m_limit); }

    /// The start of the next such marker, or nothing. Does not move.
    std::optional<std::size_t> find(std::string_view marker) const;
    /// The start of the last such marker between position and limit. Does not move.
    std::optional<std::size_t> findLast(std::string_view marker) const;
    /// Like find, but returns the limit when there is no such marker; does not record it as missing.
    std::size_t findOrLimit(std::string_view marker) const;
    bool contains(std::string_view marker) const;

    /// Moves to the start of the next such marker.
    bool moveTo(std::string_view marker);
    /// Moves past the next such marker.
    bool pass(std::string_view marker);

    /// The text up to the next such marker; moves to the marker.
    std::optional<std::string_view> takeUpTo(std::string_view marker);
    /// The text between the next `from` and the `upTo` after it. Moves to `upTo`; does not move when either
    /// is missing.
    std::optional<std::string_view> take(std::string_view from, std::string_view upTo);
    /// The next `count` characters, or fewer at the end of the text. Does not move.
    std::string_view characters(std::size_t count) const;
    /// The text from position to limit.
    std::string_view rest() const { return m_text.substr(m_position, m_limit - m_position); }

  private:
    std::string_view m_text;
    std::size_t m_position = 0;
    std::size_t m_limit;
    MarkerTrace* m_trace;
};

/// The positions of one marker in a text, for fields that are searched from many positions: the text is
/// scanned once, however many fields are missing.
class MarkerPlaces {
  public:
    MarkerPlaces(std::string_view text, std::string_view marker);

    /// The start of the first marker at or after `from`.
    std::optional<std::size_t> next(std::size_t from) const;
    const std::vector<std::size_t>& all() const { return m_places; }

  private:
    std::vector<std::size_t> m_places;
};

/// All texts between two markers, for fields that are searched from many positions and whose closing marker
/// may be missing. The markers must outlive this object.
class MarkedFields {
  public:
    struct Field {
        std::string_view text;
        /// The start of the closing marker.
        std::size_t end;
    };

    /// `trace` records every field that is not found; null for optional fields.
    MarkedFields(std::string_view text, std::string_view from, std::string_view upTo,
                 MarkerTrace* trace = nullptr);

    /// The field of the first opening marker at or after `from`; nothing when there is none or the field does
    /// not close before the limit.
    std::optional<Field> next(std::size_t from, std::size_t limit = MarkerWalk::npos) const;

  private:
    struct Place {
        std::size_t opening;
        std::size_t start;
        std::size_t end;
    };

    std::string_view m_text;
    std::string_view m_from;
    std::string_view m_upTo;
    MarkerTrace* m_trace;
    std::vector<Place> m_places;
};

inline QString pageString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace guide
