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

/// What a reader looked for in vain, for whoever has to find out what a broadcaster changed. Most of it is no
/// fault: a search that comes to the end of a page's shows is one of them.
class MarkerTrace {
  public:
    void miss(std::string_view marker);
    /// The marker that was missed last; empty when everything was found.
    const std::string& lastMissed() const { return m_lastMissed; }
    /// The first of the missed markers that none of the pages has anywhere, since that is the one that a
    /// reader could not do without; where each is somewhere, the one that was missed last.
    const std::string& changed(const std::vector<QByteArray>& pages) const;

  private:
    /// A reader has few markers; those that name a day or a channel are not to pile up.
    static constexpr std::size_t kMostMarkers = 64;

    std::string m_lastMissed;
    /// Each once, in the order of the first misses.
    std::vector<std::string> m_missed;
};

/// A walk over the text of a page from one literal marker to the next. Markers are compared byte by byte, in
/// UTF-8; a search that fails leaves the walk where it is. The text outlives the walk and what is taken of
/// it.
///
/// Positions are byte offsets into the text, also those of a walk over a part of it.
class MarkerWalk {
  public:
    static constexpr std::size_t npos = std::string_view::npos;

    /// Walks over all of the text. `trace` is told of every marker that is missed.
    MarkerWalk(std::string_view text, MarkerTrace& trace)
        : m_text(text)
        , m_limit(text.size())
        , m_trace(&trace) {}

    std::size_t position() const { return m_position; }
    /// Where searches and what they find have to end.
    std::size_t limit() const { return m_limit; }
    bool atEnd() const { return m_position >= m_limit; }
    /// The same text from `from`, up to `limit` or the walk's own limit.
    MarkerWalk part(std::size_t from, std::size_t limit = npos) const;
    void moveTo(std::size_t position) { m_position = std::min(position, m_limit); }

    /// Where the next such marker starts; nothing when there is none before the limit. Does not move.
    std::optional<std::size_t> find(std::string_view marker) const;
    /// Where the last such marker between the walk's position and its limit starts. Does not move.
    std::optional<std::size_t> findLast(std::string_view marker) const;
    /// As find, and the limit when there is none, which is no miss.
    std::size_t findOrLimit(std::string_view marker) const;
    bool contains(std::string_view marker) const;

    /// Moves to the start of the next such marker.
    bool moveTo(std::string_view marker);
    /// Moves behind the next such marker.
    bool pass(std::string_view marker);

    /// What stands before the next such marker; moves to the marker's start.
    std::optional<std::string_view> takeUpTo(std::string_view marker);
    /// What stands between the next `from` and the `upTo` behind it; moves to the start of `upTo`, or not at
    /// all.
    std::optional<std::string_view> take(std::string_view from, std::string_view upTo);
    /// The next so many characters of the text; fewer where it ends. Does not move.
    std::string_view characters(std::size_t count) const;
    /// All from the position to the limit.
    std::string_view rest() const { return m_text.substr(m_position, m_limit - m_position); }

  private:
    std::string_view m_text;
    std::size_t m_position = 0;
    std::size_t m_limit;
    MarkerTrace* m_trace;
};

/// The places of one marker in a text, for fields that are looked for from many places: the text is searched
/// once, however many fields are missing.
class MarkerPlaces {
  public:
    MarkerPlaces(std::string_view text, std::string_view marker);

    /// Where the first marker at or behind `from` starts.
    std::optional<std::size_t> next(std::size_t from) const;
    const std::vector<std::size_t>& all() const { return m_places; }

  private:
    std::vector<std::size_t> m_places;
};

/// What stands between two markers, wherever in a text it does: for fields that are looked for from many
/// places, as MarkerPlaces, where also the closing marker may be missing. The markers outlive the fields.
class MarkedFields {
  public:
    struct Field {
        std::string_view text;
        /// Where the closing marker starts.
        std::size_t end;
    };

    /// `trace` is told of every field that is missed; without one the format can do without the field.
    MarkedFields(std::string_view text, std::string_view from, std::string_view upTo,
                 MarkerTrace* trace = nullptr);

    /// The field of the first opening marker at or behind `from`; nothing when there is none, or when the
    /// field does not close before the limit.
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
