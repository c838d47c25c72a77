#include "parsers/own/PreviewFeed.h"

#include "parsers/xmltv/FeedFilter.h"
#include "parsers/xmltv/XMLTVDate.h"
#include "text/language/LanguageGuess.h"

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Enough of a channel's texts to tell their language.
constexpr std::size_t kSample = 1'500;
/// A show without an end lasts until the next one, at most this long.
constexpr std::chrono::hours kLongestOpenShow{6};
constexpr std::chrono::hours kSoon{24};
constexpr std::size_t kLongestName = 500;
constexpr qsizetype kMostNames = 20;
/// Of all channels.
constexpr std::size_t kMostNameBytes = std::size_t{64} << 20;
constexpr std::size_t kMostNews = 200'000;
constexpr int kLongestAddress = 2'000;

constexpr std::chrono::minutes kLongestNews{90};
/// A channel of which news are a larger part shows them at all times of day.
constexpr int kNewsPart = 5;
constexpr std::chrono::hours kPrimeTime{20};
constexpr std::chrono::hours kLongestBeforePrime{3};

QString textOf(std::string_view content) {
    return QString::fromStdString(elementText(content.substr(0, kLongestName))).simplified();
}

/// An address that a feed may give; nothing for a path or another scheme.
bool isAddress(const QString& text) {
    return text.size() <= kLongestAddress &&
           (text.startsWith("http://"_L1, Qt::CaseInsensitive) ||
            text.startsWith("https://"_L1, Qt::CaseInsensitive) || text.startsWith("//"_L1));
}

/// Today first, then the days to come, then those past.
int rankOfDay(qint64 daysFromToday) {
    constexpr qint64 kFar = 1'000;
    return static_cast<int>(std::min(daysFromToday >= 0 ? daysFromToday : kFar - daysFromToday, 2 * kFar));
}

} // namespace

struct PreviewFeed::Title {
    /// As written in the feed.
    std::string_view raw;

    PreviewShow show(Moment start, std::optional<Moment> stop) const { return {textOf(raw), start, stop}; }
};

PreviewFeed::PreviewFeed(const PreviewRequest& request, const QTimeZone& withoutOffset)
    : m_request(request)
    , m_zone(request.zone.isValid() ? request.zone : QTimeZone::utc())
    , m_withoutOffset(withoutOffset)
    , m_local(m_zone)
    , m_today(m_local.dateAt(request.now)) {}

PreviewFeed::Channel* PreviewFeed::named(std::string id) {
    if (id.empty() || id.size() > kLongestChannelId) {
        return nullptr;
    }
    const auto known = m_places.find(id);
    if (known != m_places.end()) {
        return &m_channels[known->second];
    }
    if (m_channels.size() >= kMostFeedChannels) {
        return nullptr;
    }
    Channel& channel = m_channels.emplace_back();
    channel.found.id = QString::fromStdString(id);
    m_places.emplace(std::move(id), m_channels.size() - 1);
    return &channel;
}

void PreviewFeed::channel(const OpeningTag& tag, std::string_view content) {
    const auto raw = tag.value("id");
    auto id = raw ? attributeValue(*raw) : std::nullopt;
    Channel* channel = id ? named(*std::move(id)) : nullptr;
    if (!channel) {
        return;
    }
    FeedElements elements(content);
    while (elements.next()) {
        PreviewChannel& found = channel->found;
        if (elements.name() == "display-name" && found.names.size() < kMostNames &&
            m_nameBytes < kMostNameBytes) {
            const QString name = textOf(elements.content());
            if (!name.isEmpty() && !found.names.contains(name)) {
                m_nameBytes += static_cast<std::size_t>(name.size());
                found.names << name;
            }
        } else if (elements.name() == "icon" && found.icon.isEmpty()) {
            const auto source = elements.tag().value("src");
            const QString icon = source ? QString::fromStdString(elementText(*source)).trimmed() : QString();
            found.icon = isAddress(icon) ? icon : QString();
        }
    }
    m_isMalformed = m_isMalformed || elements.isMalformed();
}

std::optional<bool> PreviewFeed::programme(const OpeningTag& tag, std::string_view content) {
    const auto raw = tag.value("channel");
    if (!raw) {
        return false;
    }
    if (m_lastChannel != *raw) {
        m_lastChannel = *raw;
        auto id = attributeValue(*raw);
        Channel* channel = id ? named(*std::move(id)) : nullptr;
        m_last =
            channel ? std::optional(static_cast<std::size_t>(channel - m_channels.data())) : std::nullopt;
    }
    if (!m_last) {
        return false;
    }
    Channel& channel = m_channels[*m_last];
    const auto moment = [this, &tag](std::string_view name) {
        constexpr std::size_t kDigits = 14;
        const auto text = tag.value(name);
        m_hasLocalTimes = m_hasLocalTimes || (text && text->size() == kDigits);
        return text ? parseXMLTVDate(*text, &m_withoutOffset) : std::nullopt;
    };
    Title title;
    FeedElements elements(content);
    while (title.raw.empty() && elements.next()) {
        title.raw = elements.name() == "title" ? elements.content() : std::string_view();
    }
    m_isMalformed = m_isMalformed || elements.isMalformed();
    if (!channel.isLanguageTold) {
        addSample(channel, content);
    }
    if (const auto start = moment("start")) {
        const auto stop = moment("stop");
        ++channel.found.shows;
        addTimes(channel, title, *start, stop && *stop > *start ? stop : std::nullopt);
        addNews(channel, title, *start, stop);
    }
    return false;
}

void PreviewFeed::addSample(Channel& channel, std::string_view content) {
    FeedElements elements(content);
    while (channel.text.size() < kSample && elements.next()) {
        if (elements.name() == "title" || elements.name() == "desc") {
            channel.text += elementText(elements.content().substr(0, kSample));
            channel.text += ". ";
        }
    }
    if (channel.text.size() >= kSample) {
        tellLanguage(channel);
    }
}

void PreviewFeed::tellLanguage(Channel& channel) {
    channel.found.language = guessedLanguage(QString::fromStdString(channel.text), m_request.language);
    channel.isLanguageTold = true;
    channel.text = {};
}

void PreviewFeed::addTimes(Channel& channel, const Title& title, Moment start, std::optional<Moment> stop) {
    const Moment now = m_request.now;
    channel.first = channel.first ? std::min(*channel.first, start) : start;
    channel.last = channel.last ? std::max(*channel.last, start) : start;
    if (start > now) {
        channel.found.live = channel.found.live || start < now + kSoon;
        return;
    }
    const bool isLatest = !channel.lastStarted || start > *channel.lastStarted;
    channel.lastStarted = isLatest ? start : *channel.lastStarted;
    if (isLatest) {
        channel.open.reset();
    }
    if (stop && now < *stop && (!channel.found.running || channel.found.running->start < start)) {
        channel.found.running = title.show(start, stop);
    } else if (!stop && isLatest && now < start + kLongestOpenShow) {
        channel.open = title.show(start, stop);
    }
}

void PreviewFeed::addNews(Channel& channel, const Title& title, Moment start, std::optional<Moment> stop) {
    const auto keep = [&](std::optional<Candidate>& best, std::pair<int, int> rank) {
        if (!best || rank < best->rank) {
            best = Candidate{rank, title.show(start, stop)};
        }
    };
    const bool news = isNews(title.raw);
    const auto local = std::chrono::floor<std::chrono::minutes>(start + m_local.offsetAt(start));
    const auto time = local - std::chrono::floor<std::chrono::days>(local);
    const auto beforePrime = static_cast<int>((kPrimeTime - time).count());
    const bool isPrime = beforePrime >= 0 && std::chrono::minutes(beforePrime) < kLongestBeforePrime;
    if (!news && !isPrime) {
        return;
    }
    const int day = rankOfDay(m_today.daysTo(m_local.dateAt(start)));
    if (isPrime) {
        keep(channel.prime, {day, beforePrime});
    }
    if (!news) {
        return;
    }
    ++channel.newsShows;
    const auto minutes = stop && *stop > start ? std::chrono::floor<std::chrono::minutes>(*stop - start)
                                               : std::chrono::minutes{0};
    if (time >= kEveningBegins && time < kEveningEnds) {
        keep(channel.news, {day, -static_cast<int>(std::min(minutes, kLongestNews).count())});
    }
    if (m_news.size() < kMostNews && minutes.count() > 0) {
        m_news.push_back({*m_last, start, minutes});
    }
}

bool PreviewFeed::isNews(std::string_view rawTitle) {
    if (rawTitle.empty() || rawTitle.size() > kLongestName) {
        return false;
    }
    if (const bool* known = m_newsTitles.find(rawTitle)) {
        return *known;
    }
    return m_newsTitles.add(rawTitle, isNewsTitle(textOf(rawTitle).toLower()));
}

void PreviewFeed::finish(SourcePreview& preview) {
    for (Channel& channel : m_channels) {
        PreviewChannel& found = channel.found;
        if (found.shows == 0) {
            continue;
        }
        if (!channel.isLanguageTold) {
            tellLanguage(channel);
        }
        if (channel.open && !found.running) {
            found.running = std::move(channel.open);
        }
        found.live = found.live || found.running;
        ++preview.channelsWithShows;
        preview.channelsOnAir += found.running ? 1 : 0;
        preview.channelsLive += found.live ? 1 : 0;
        preview.shows += found.shows;
        preview.first = preview.first ? std::min(*preview.first, *channel.first) : *channel.first;
        preview.last = preview.last ? std::max(*preview.last, *channel.last) : *channel.last;
        ++preview.languages[found.language];
    }
    chooseNews(preview);
    addWarnings(preview);
    preview.channels.reserve(m_channels.size());
    for (Channel& channel : m_channels) {
        preview.channels.push_back(std::move(channel.found));
    }
}

void PreviewFeed::chooseNews(SourcePreview& preview) {
    QString language;
    for (const auto& [each, channels] : preview.languages.asKeyValueRange()) {
        language = channels > preview.languages.value(language) ? each : language;
    }
    // The news of a channel that shows little else, or in another language, are known to fewer people.
    const auto reason = [&language](const Channel& channel) {
        return (channel.newsShows * kNewsPart > channel.found.shows ? 2 : 0) +
               (channel.found.language == language ? 0 : 1);
    };
    for (const auto candidate : {&Channel::news, &Channel::prime}) {
        const Channel* best = nullptr;
        for (const Channel& channel : m_channels) {
            const auto rank = [&reason](const Channel& each) {
                return std::pair(reason(each), -each.found.shows);
            };
            if (channel.*candidate && (!best || rank(channel) < rank(*best))) {
                best = &channel;
            }
        }
        if (best) {
            preview.news = PreviewNews{best->found.title(), (best->*candidate)->show};
            return;
        }
    }
}

void PreviewFeed::addWarnings(SourcePreview& preview) {
    if (preview.last && *preview.last < m_request.now && preview.channelsOnAir == 0) {
        preview.warnings.push_back(SourceWarning::Over);
    } else if (preview.channelsLive * 4 < channelCount()) {
        preview.warnings.push_back(SourceWarning::Poor);
    }
    std::erase_if(m_news, [this](const NewsShow& show) {
        const Channel& channel = m_channels[show.channel];
        return !hasEuropeanEvening(channel.found.language) ||
               channel.newsShows * kNewsPart > channel.found.shows;
    });
    // Elsewhere the evening of these channels is at another time of day.
    constexpr std::chrono::hours kWest{-1};
    constexpr std::chrono::hours kEast{4};
    const auto offset = m_local.offsetAt(m_request.now);
    if (offset >= kWest && offset <= kEast && lookShifted(m_news, m_zone)) {
        preview.warnings.push_back(SourceWarning::Shifted);
    }
}

} // namespace guide
