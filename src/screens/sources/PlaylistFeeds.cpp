#include "screens/sources/PlaylistFeeds.h"

#include "screens/sources/SourceTexts.h"

#include <algorithm>
#include <utility>

namespace guide {

PlaylistFeeds::PlaylistFeeds(SourceActions& actions, const QStringList& addresses)
    : m_actions(actions) {
    const SharedOwnSources sources = actions.sources();
    for (const QString& address : addresses) {
        const bool known = std::ranges::find(*sources, address, &OwnSource::address) != sources->end();
        m_feeds.push_back({.address = address, .ticked = known, .loaded = known, .problem = {}});
    }
    // Most lists name one feed, which is what the user wants; it is loaded when the user goes on.
    if (!m_feeds.empty()) {
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
