#include "screens/sources/PlaylistFeeds.h"

#include "screens/sources/SourceTexts.h"

#include <QHash>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Lists with more of them name the feeds of the whole world.
constexpr std::size_t kFewFeeds = 3;

/// The country of most entries; empty when none has one.
QString commonCountry(const Playlist& playlist) {
    QHash<QString, int> counts;
    QString common;
    for (const PlaylistEntry& entry : playlist.entries) {
        if (entry.country.size() == 2 && ++counts[entry.country] > counts.value(common)) {
            common = entry.country;
        }
    }
    return common;
}

/// Whether the file of the address is named after the country, as in "guide_SK1.xml.gz".
bool isOfCountry(const QString& address, const QString& country) {
    const QRegularExpression name(
        u"(^|[^a-z])%1[0-9]*([^a-z0-9]|$)"_s.arg(QRegularExpression::escape(country)),
        QRegularExpression::CaseInsensitiveOption);
    return !country.isEmpty() && name.match(QUrl(address).fileName()).hasMatch();
}

} // namespace

PlaylistFeeds::PlaylistFeeds(SourceActions& actions, const Playlist& playlist)
    : m_actions(actions) {
    const SharedOwnSources sources = actions.sources();
    for (const QString& address : playlist.feeds) {
        const bool known = std::ranges::find(*sources, address, &OwnSource::address) != sources->end();
        m_feeds.push_back({.address = address, .ticked = known, .loaded = known, .problem = {}});
    }
    // Most lists name one feed, which is what the user wants; it is loaded when the user goes on.
    if (m_feeds.size() > kFewFeeds) {
        const QString country = commonCountry(playlist);
        const auto others = std::ranges::stable_partition(
            m_feeds, [&country](const Feed& feed) { return isOfCountry(feed.address, country); });
        if (others.begin() != m_feeds.begin()) {
            m_feeds.front().ticked = true;
        }
    } else if (!m_feeds.empty()) {
        m_feeds.front().ticked = true;
    }
}

PlaylistFeeds::~PlaylistFeeds() {
    for (const OwnSourceId& feed : m_added) {
        m_actions.remove(feed);
    }
}

void PlaylistFeeds::setTicked(std::size_t feed, bool ticked) {
    if (feed < m_feeds.size() && !m_feeds[feed].loaded) {
        m_feeds[feed].ticked = ticked;
        m_feeds[feed].problem.clear();
    }
}

bool PlaylistFeeds::anyToLoad() const {
    return std::ranges::any_of(m_feeds, [](const Feed& feed) { return feed.ticked && !feed.loaded; });
}

void PlaylistFeeds::load(std::function<void()> progressed, std::function<void(const QString&)> ended) {
    m_progressed = std::move(progressed);
    m_ended = std::move(ended);
    m_problem.clear();
    loadNext();
}

void PlaylistFeeds::cancel() {
    m_token.reset();
    m_ended = nullptr;
}

void PlaylistFeeds::loadNext() {
    const auto next =
        std::ranges::find_if(m_feeds, [](const Feed& feed) { return feed.ticked && !feed.loaded; });
    m_channels = 0;
    m_bytes = 0;
    m_token.reset();
    if (next == m_feeds.end()) {
        if (const auto ended = std::exchange(m_ended, nullptr)) {
            ended(m_problem);
        }
        return;
    }
    const auto feed = static_cast<std::size_t>(next - m_feeds.begin());
    m_token = m_actions.propose(
        next->address,
        [weak = weak_from_this()](int channels, std::int64_t bytes) {
            if (const auto self = weak.lock()) {
                self->m_channels = channels;
                self->m_bytes = bytes;
                self->m_progressed();
            }
        },
        [weak = weak_from_this(), feed](const SourceProposal& proposal) {
            if (const auto self = weak.lock()) {
                self->take(feed, proposal);
            }
        });
    m_progressed();
}

void PlaylistFeeds::take(std::size_t feed, const SourceProposal& proposal) {
    const SourceResult result = proposal.preview.result;
    const bool usable = result == SourceResult::Read || result == SourceResult::Incomplete;
    if (usable && proposal.preview.kind == SourceKind::Feed) {
        OwnSource settings;
        settings.kind = proposal.kind;
        settings.name = proposal.name;
        m_added.push_back(m_actions.add(proposal, settings, {}, {}));
        m_feeds[feed].loaded = true;
    } else {
        m_feeds[feed].problem = sourceResultText(usable ? SourceResult::Unknown : result, proposal.detail);
        m_feeds[feed].ticked = false;
        m_problem = m_feeds[feed].problem;
    }
    loadNext();
}

} // namespace guide
