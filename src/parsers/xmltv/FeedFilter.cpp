#include "parsers/xmltv/FeedFilter.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace guide {

std::size_t FeedFilter::read(std::span<char> room) {
    std::size_t filled = 0;
    while (filled < room.size()) {
        if (m_read == m_kept.size()) {
            m_kept.clear();
            m_read = 0;
            if (!scanWindow(&m_kept)) {
                break;
            }
        }
        const std::size_t count = std::min(room.size() - filled, m_kept.size() - m_read);
        std::memcpy(room.data() + filled, m_kept.data() + m_read, count);
        m_read += count;
        filled += count;
    }
    return filled;
}

void FeedFilter::finish() {
    while (scanWindow(nullptr)) {
    }
}

FeedFilter::Channels::value_type* FeedFilter::named(std::string id) {
    if (id.empty() || id.size() > kLongestChannelId) {
        return nullptr;
    }
    if (m_channels.size() >= kMostFeedChannels) {
        const auto known = m_channels.find(id);
        return known == m_channels.end() ? nullptr : &*known;
    }
    const auto [place, isNew] = m_channels.try_emplace(std::move(id), false);
    m_counts.channels += isNew ? 1 : 0;
    return &*place;
}

void FeedFilter::channel(const OpeningTag& tag, std::string_view content) {
    const auto raw = tag.value("id");
    auto id = raw ? attributeValue(*raw) : std::nullopt;
    if (!id) {
        return;
    }
    if (m_wanted.contains(*id) && m_names.size() < kMostFeedChannels) {
        FeedElements elements(content);
        while (elements.next()) {
            if (elements.name() == "display-name") {
                const std::string name = elementText(elements.content());
                m_names.try_emplace(*id,
                                    QString::fromStdString(name.substr(0, kLongestChannelId)).simplified());
                break;
            }
        }
    }
    named(*std::move(id));
}

std::optional<bool> FeedFilter::programme(const OpeningTag& tag, std::string_view) {
    const auto raw = tag.value("channel");
    if (!raw) {
        return m_wanted.all();
    }
    if (m_lastChannel != *raw) {
        auto id = attributeValue(*raw);
        if (!id) {
            return std::nullopt;
        }
        m_isLastWanted = m_wanted.contains(*id);
        m_last = named(*std::move(id));
        m_lastChannel = *raw;
    }
    const auto startText = m_last ? tag.value("start") : std::nullopt;
    if (const auto start = startText ? parseXMLTVDate(*startText, m_withoutOffset) : std::nullopt) {
        ++m_counts.shows;
        m_counts.channelsWithShows += std::exchange(m_last->second, true) ? 0 : 1;
        m_counts.newest = m_counts.newest ? std::max(*m_counts.newest, *start) : *start;
    }
    return m_isLastWanted;
}

} // namespace guide
