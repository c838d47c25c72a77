#include "parsers/own/FeedPreview.h"

#include "parsers/xmltv/XMLSaxParser.h"
#include "parsers/xmltv/XMLTVDate.h"
#include "text/language/LanguageGuess.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace guide {

namespace {

enum Element : std::size_t { Channel, Programme, Title, Desc };
constexpr std::array kElements{"channel", "programme", "title", "desc"};

/// Enough of a channel's texts to tell their language.
constexpr std::size_t kSample = 1'500;
/// A show without an end lasts until the next one, at most this long.
constexpr std::chrono::hours kLongestOpenShow{6};

struct Show {
    Moment start;
    std::optional<Moment> stop;
};

struct ChannelSample {
    std::vector<Show> shows;
    std::string text;
};

class Reader final : public XMLEvents {
  public:
    std::unordered_map<std::string, ChannelSample>& channels() { return m_channels; }

  private:
    void started(std::size_t element, const XMLAttributes& attributes) override {
        const auto attribute = [&attributes](const char* name) {
            return std::string(attributes.value(name).value_or(std::string_view()));
        };
        if (element == Channel) {
            if (const std::string id = attribute("id"); !id.empty()) {
                m_channels.try_emplace(id);
            }
        } else if (element == Programme) {
            const std::string id = attribute("channel");
            m_channel = id.empty() ? nullptr : &m_channels[id];
            const auto start = parseXMLTVDate(attribute("start"));
            if (m_channel && start) {
                m_channel->shows.push_back({*start, parseXMLTVDate(attribute("stop"))});
            }
        } else {
            m_reading =
                (element == Title || element == Desc) && m_channel && m_channel->text.size() < kSample;
        }
    }
    void text(std::string_view piece) override {
        if (m_reading) {
            m_channel->text += piece.substr(0, kSample);
        }
    }
    void ended(std::size_t element) override {
        if (m_reading) {
            m_channel->text += ". ";
        }
        m_reading = false;
        if (element == Programme) {
            m_channel = nullptr;
        }
    }

    std::unordered_map<std::string, ChannelSample> m_channels;
    /// Of the current programme. The map never moves its values.
    ChannelSample* m_channel = nullptr;
    bool m_reading = false;
};

bool isRunning(const std::vector<Show>& shows, std::size_t place, Moment now) {
    const Show& show = shows[place];
    if (show.start > now) {
        return false;
    }
    const Moment longest = show.start + kLongestOpenShow;
    const Moment open = place + 1 < shows.size() ? std::min(shows[place + 1].start, longest) : longest;
    return now < show.stop.value_or(open);
}

void add(FeedPreview& preview, ChannelSample& channel, Moment now, const QString& expected) {
    ++preview.channels;
    std::vector<Show>& shows = channel.shows;
    if (shows.empty()) {
        return;
    }
    std::ranges::stable_sort(shows, {}, &Show::start);
    ++preview.channelsWithShows;
    preview.shows += static_cast<int>(shows.size());
    bool onAir = false;
    bool live = false;
    for (std::size_t place = 0; place < shows.size(); ++place) {
        const bool running = isRunning(shows, place, now);
        onAir = onAir || running;
        live = live || running ||
               (shows[place].start >= now && shows[place].start < now + std::chrono::hours(24));
    }
    preview.channelsOnAir += onAir ? 1 : 0;
    preview.channelsLive += live ? 1 : 0;
    preview.first = preview.first ? std::min(*preview.first, shows.front().start) : shows.front().start;
    preview.last = preview.last ? std::max(*preview.last, shows.back().start) : shows.back().start;
    ++preview.languages[guessedLanguage(QString::fromStdString(channel.text), expected)];
}

} // namespace

FeedPreview feedPreview(const QByteArray& document, Moment now, const QString& expected) {
    Reader reader;
    FeedPreview preview;
    preview.incomplete = parseXML(document, kElements, reader).has_value();
    for (auto& [id, channel] : reader.channels()) {
        add(preview, channel, now, expected);
    }
    return preview;
}

} // namespace guide
