#include "screens/player/PlayerViewController.h"

#include "screens/Localized.h"
#include "screens/ShowRowText.h"
#include "screens/ShowRows.h"
#include "text/display/Transliteration.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kWatchInterval{5};
static_assert(PlayerViewController::kPatience % kWatchInterval == std::chrono::seconds(0));

QString unavailable() {
    return Localized::tr("Streaming of this video is currently unavailable or your Internet connection speed "
                         "is not adequate.");
}

QString noDecoder() {
    return Localized::tr("This device cannot decode the stream. Installing %1 may help.")
        .arg("gstreamer1.0-libav, gstreamer1.0-plugins-bad, gstreamer1.0-plugins-ugly"_L1);
}

} // namespace

PlayerViewController::PlayerViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                           MediaPlayers& players, const QUrl& url,
                                           const PlayerSettings& settings, Events events)
    : m_environment(std::move(environment))
    , m_url(url)
    , m_events(std::move(events))
    , m_player(players.makePlayer(url, [this] { statusChanged(); }))
    , m_minuteTick(m_environment->clock, m_environment->mainQueue, m_environment->applicationState) {
    m_player->setVolume(settings.volume);
    m_player->setMuted(settings.muted);
    setState({.volume = settings.volume, .muted = settings.muted, .fullScreen = settings.fullScreen});
    showChannel();
}

PlayerSettings PlayerViewController::settings() const {
    return {state().volume, state().muted, state().fullScreen};
}

void PlayerViewController::change(const std::function<void(PlayerState&)>& apply) {
    PlayerState changed = state();
    apply(changed);
    if (changed != state()) {
        setState(changed);
        m_events.stateChanged();
    }
}

// ---- the channel and its show

void PlayerViewController::showChannel() {
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    const CatalogueChannel* found = nullptr;
    for (const ObjectId& selected : m_environment->channels.selected()) {
        if (streamURLOf(*catalogue, selected) == m_url) {
            found = catalogue->find(selected);
            break;
        }
    }
    if (!found) {
        const auto all = catalogue->channels();
        const auto place = std::ranges::find_if(
            all, [&](const CatalogueChannel& each) { return streamURLOf(*catalogue, each.id) == m_url; });
        found = place == all.end() ? nullptr : &*place;
    }
    PlayerState shown = state();
    shown.channel = m_url.host();
    if (found) {
        m_channel = found->id;
        shown.channel = latin2Cyrillic(found->title, found->language, m_environment->alphabet);
        if (m_environment->icons.hasIconFile(found->icon)) {
            shown.icon = {PictureKey::Kind::ChannelIcon, found->icon};
        }
        const std::vector<QUrl> all = streams();
        shown.hasOtherChannels = std::ranges::any_of(all, [this](const QUrl& each) { return each != m_url; });
    }
    setState(shown);
    setTitle(shown.channel);
}

std::vector<QUrl> PlayerViewController::streams() const {
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    std::vector<QUrl> streams;
    for (const ObjectId& selected : m_environment->channels.selected()) {
        const std::optional<QUrl> stream = streamURLOf(*catalogue, selected);
        if (stream && std::ranges::find(streams, *stream) == streams.end()) {
            streams.push_back(*stream);
        }
    }
    return streams;
}

void PlayerViewController::viewDidLoad() {
    reloadShows();
}

void PlayerViewController::viewDidAppear() {
    m_minuteTick.start(weak_from_this(), [this] { showNow(); });
}

void PlayerViewController::viewDidDisappear() {
    m_minuteTick.stop();
}

void PlayerViewController::reloadShows() {
    m_minuteTick.resume();
    if (m_channel) {
        m_environment->listings.cachedListForChannel(
            *m_channel, m_list.expect(weak_from_this(), [this](const ShowSpan& shows) {
                m_shows = shows;
                m_ends = ShownEnds(m_shows);
                showNow();
            }));
    }
}

void PlayerViewController::showNow() {
    const Moment now = m_environment->clock.now();
    const auto running = std::ranges::find_if(m_shows, [&](const ShowItem& show) {
        return show.entry()->dateTime() <= now && m_ends.endOf(*show.entry()) > now;
    });
    change([&](PlayerState& shown) {
        shown.title.clear();
        shown.times.clear();
        shown.progress = -1;
        if (running == m_shows.end()) {
            return;
        }
        const TVEntry& entry = *running->entry();
        const std::optional<Moment> end = m_ends.endOf(entry);
        const ShowRowText text(m_environment->device.locale(), m_environment->device.timeZone());
        shown.title = entry.title().value_or(QString());
        shown.times = u"%1 – %2"_s.arg(text.shortTime(entry.dateTime()), text.shortTime(end));
        shown.progress = showProgress(entry.dateTime(), end, now).value_or(-1);
    });
}

// ---- the stream

void PlayerViewController::play() {
    if (m_ended) {
        return;
    }
    change([](PlayerState& shown) { shown.paused = false; });
    m_still = {};
    m_progress = m_player->state().progress;
    open();
    setWatch();
}

void PlayerViewController::pause() {
    ++m_watch;
    m_player->pause();
    change([](PlayerState& shown) {
        shown.paused = true;
        shown.waiting = false;
    });
}

void PlayerViewController::open() {
    m_open = {};
    m_player->play();
}

void PlayerViewController::setWatch() {
    m_environment->mainQueue.asyncAfter(kWatchInterval,
                                        [weak = weakFromThis<PlayerViewController>(), watch = ++m_watch] {
                                            const auto self = weak.lock();
                                            if (self && watch == self->m_watch) {
                                                self->watch();
                                            }
                                        });
}

// A live stream that stops growing reports nothing, so that only what was played shows that it is alive.
void PlayerViewController::watch() {
    const MediaState media = m_player->state();
    const bool grown = std::exchange(m_progress, media.progress) != media.progress;
    m_still = grown ? std::chrono::seconds(0) : m_still + kWatchInterval;
    m_open += kWatchInterval;
    if (m_still >= kPatience) {
        end(unavailable());
        return;
    }
    change([grown](PlayerState& shown) { shown.waiting = !grown; });
    if (media.status == MediaStatus::Ended || media.status == MediaStatus::Failed) {
        open();
    }
    setWatch();
}

void PlayerViewController::statusChanged() {
    const std::shared_ptr<ViewController> alive = shared_from_this();
    const MediaState media = m_player->state();
    if (m_ended) {
        return;
    }
    switch (media.status) {
    case MediaStatus::Opening:
        break;
    case MediaStatus::Ready:
        m_wasReady = true;
        change([](PlayerState& shown) { shown.waiting = false; });
        break;
    case MediaStatus::Ended:
        if (!m_channel) {
            end({});
        } else if (m_open > std::chrono::seconds(0) && !state().paused) {
            // Servers of live streams close connections now and then.
            open();
        }
        break;
    case MediaStatus::Failed:
        if (media.failure == MediaFailure::NoDecoder) {
            end(noDecoder());
        } else if (!m_wasReady) {
            end(unavailable());
        } else if (!state().paused) {
            // The watch opens it again.
            change([](PlayerState& shown) { shown.waiting = true; });
        }
        break;
    }
}

void PlayerViewController::end(const QString& message) {
    m_ended = true;
    ++m_watch;
    m_player->pause();
    m_events.ended(message);
}

// ---- the user's events

void PlayerViewController::togglePaused() {
    if (state().paused) {
        play();
    } else {
        pause();
    }
}

void PlayerViewController::setVolume(double volume) {
    const double bounded = std::clamp(volume, 0.0, 1.0);
    m_player->setVolume(bounded);
    m_player->setMuted(false);
    change([bounded](PlayerState& shown) {
        shown.volume = bounded;
        shown.muted = false;
    });
}

void PlayerViewController::toggleMuted() {
    m_player->setMuted(!state().muted);
    change([](PlayerState& shown) { shown.muted = !shown.muted; });
}

void PlayerViewController::setFullScreen(bool fullScreen) {
    change([fullScreen](PlayerState& shown) { shown.fullScreen = fullScreen; });
}

void PlayerViewController::changeChannel(int by) {
    const std::vector<QUrl> all = streams();
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    if (count == 0) {
        return;
    }
    // From a stream outside the list, the first place counts as the next one and the last as the previous.
    const auto place = std::ranges::find(all, m_url) - all.begin();
    const std::ptrdiff_t from = place < count ? place : by > 0 ? -1 : 0;
    const std::ptrdiff_t chosen = ((from + by) % count + count) % count;
    if (all[static_cast<std::size_t>(chosen)] != m_url) {
        m_events.channelChosen(all[static_cast<std::size_t>(chosen)]);
    }
}

} // namespace guide
