#include "parsers/markers/MarkerWalk.h"

#include <cstring>

namespace guide {

namespace {

/// The position of the marker in [from, limit) of the text.
std::size_t search(std::string_view text, std::size_t from, std::size_t limit, std::string_view marker) {
    if (from >= limit || limit - from < marker.size()) {
        return MarkerWalk::npos;
    }
    const void* place = memmem(text.data() + from, limit - from, marker.data(), marker.size());
    return place ? static_cast<std::size_t>(static_cast<const char*>(place) - text.data()) : MarkerWalk::npos;
}

bool startsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

} // namespace

void MarkerTrace::miss(std::string_view marker) {
    m_lastMissed.assign(marker);
    if (m_missed.size() < kMostMarkers &&
        std::find(m_missed.begin(), m_missed.end(), marker) == m_missed.end()) {
        m_missed.emplace_back(marker);
    }
}

const std::string& MarkerTrace::changed(const std::vector<QByteArray>& pages) const {
    const auto isNowhere = [&pages](const std::string& marker) {
        return std::none_of(pages.begin(), pages.end(), [&marker](const QByteArray& page) {
            return page.contains(QByteArrayView(marker));
        });
    };
    const auto nowhere = std::find_if(m_missed.begin(), m_missed.end(), isNowhere);
    return nowhere == m_missed.end() ? m_lastMissed : *nowhere;
}

MarkerWalk MarkerWalk::part(std::size_t from, std::size_t limit) const {
    MarkerWalk walk = *this;
    walk.m_limit = std::min(limit, m_limit);
    walk.m_position = std::min(from, walk.m_limit);
    return walk;
}

std::optional<std::size_t> MarkerWalk::find(std::string_view marker) const {
    const std::size_t place = search(m_text, m_position, m_limit, marker);
    if (place == npos) {
        m_trace->miss(marker);
        return std::nullopt;
    }
    return place;
}

std::optional<std::size_t> MarkerWalk::findLast(std::string_view marker) const {
    const std::size_t place = rest().rfind(marker);
    if (place == npos) {
        m_trace->miss(marker);
        return std::nullopt;
    }
    return m_position + place;
}

std::size_t MarkerWalk::findOrLimit(std::string_view marker) const {
    const std::size_t place = search(m_text, m_position, m_limit, marker);
    return place == npos ? m_limit : place;
}

bool MarkerWalk::contains(std::string_view marker) const {
    return search(m_text, m_position, m_limit, marker) != npos;
}

bool MarkerWalk::moveTo(std::string_view marker) {
    const auto place = find(marker);
    if (place) {
        m_position = *place;
    }
    return place.has_value();
}

bool MarkerWalk::pass(std::string_view marker) {
    const auto place = find(marker);
    if (place) {
        m_position = *place + marker.size();
    }
    return place.has_value();
}

std::optional<std::string_view> MarkerWalk::takeUpTo(std::string_view marker) {
    const auto place = find(marker);
    if (!place) {
        return std::nullopt;
    }
    const std::string_view taken = m_text.substr(m_position, *place - m_position);
    m_position = *place;
    return taken;
}

std::optional<std::string_view> MarkerWalk::take(std::string_view from, std::string_view upTo) {
    const std::size_t start = m_position;
    if (!pass(from)) {
        return std::nullopt;
    }
    auto taken = takeUpTo(upTo);
    if (!taken) {
        m_position = start;
    }
    return taken;
}

std::string_view MarkerWalk::characters(std::size_t count) const {
    std::size_t end = m_position;
    for (; count > 0 && end < m_limit; --count) {
        do {
            ++end;
        } while (end < m_limit && !startsCharacter(m_text[end]));
    }
    return m_text.substr(m_position, end - m_position);
}

MarkerPlaces::MarkerPlaces(std::string_view text, std::string_view marker) {
    for (std::size_t place = search(text, 0, text.size(), marker); place != MarkerWalk::npos;
         place = search(text, place + marker.size(), text.size(), marker)) {
        m_places.push_back(place);
    }
}

std::optional<std::size_t> MarkerPlaces::next(std::size_t from) const {
    const auto place = std::lower_bound(m_places.begin(), m_places.end(), from);
    return place == m_places.end() ? std::nullopt : std::optional(*place);
}

MarkedFields::MarkedFields(std::string_view text, std::string_view from, std::string_view upTo,
                           MarkerTrace* trace)
    : m_text(text)
    , m_from(from)
    , m_upTo(upTo)
    , m_trace(trace) {
    std::size_t end = 0;
    const MarkerPlaces openings(text, from);
    for (const std::size_t opening : openings.all()) {
        const std::size_t start = opening + from.size();
        if (end < start) {
            end = search(text, start, text.size(), upTo);
        }
        m_places.push_back({opening, start, end});
    }
}

std::optional<MarkedFields::Field> MarkedFields::next(std::size_t from, std::size_t limit) const {
    const auto place = std::lower_bound(
        m_places.begin(), m_places.end(), from,
        [](const Place& candidate, std::size_t position) { return candidate.opening < position; });
    const std::size_t last = std::min(limit, m_text.size());
    if (place == m_places.end() || last < m_upTo.size() || place->end > last - m_upTo.size()) {
        if (m_trace) {
            m_trace->miss(place == m_places.end() || place->start > last ? m_from : m_upTo);
        }
        return std::nullopt;
    }
    return Field{m_text.substr(place->start, place->end - place->start), place->end};
}

} // namespace guide
