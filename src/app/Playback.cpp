#include "app/Playback.h"

#include "screens/Localized.h"
#include "screens/ShowRows.h"
#include "sources/WebURL.h"

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const QString kVolume = u"player_volume"_s;
constexpr qsizetype kLongestAddress = 4096;

/// Others would let a catalogue open the device's files and cameras.
constexpr std::array kSchemes{"http"_L1, "https"_L1, "rtsp"_L1, "rtsps"_L1, "rtmp"_L1, "rtmps"_L1,
                              "rtp"_L1,  "udp"_L1,   "mms"_L1,  "mmsh"_L1,  "srt"_L1};

} // namespace

Playback::Playback(Surroundings surroundings)
    : m_surroundings(std::move(surroundings)) {
    if (m_surroundings.session) {
        m_surroundings.session->setCommands(commands());
    }
}

Playback::~Playback() {
    moviePlayerPlaybackDidFinish();
    if (m_surroundings.session) {
        m_surroundings.session->setCommands({});
    }
}

PlayerSettings Playback::settings() const {
    return {.volume = std::clamp(m_surroundings.userDefaults.doubleForKey(kVolume).value_or(1), 0.0, 1.0)};
}

/// What the user's catalogue names may have any scheme of a stream; a page may name only what is on the web.
bool Playback::isPlayable(const QUrl& url) const {
    if (url.toString().size() > kLongestAddress || url.host().isEmpty() || !url.isValid() ||
        std::ranges::find(kSchemes, url.scheme()) == kSchemes.end()) {
        return false;
    }
    const SharedCatalogueSnapshot catalogue = m_surroundings.screens->catalogue.snapshot();
    return isWebURL(url) || std::ranges::any_of(catalogue->channels(), [&](const CatalogueChannel& channel) {
               return streamURLOf(*catalogue, channel.id) == url;
           });
}

void Playback::playURL(const QUrl& url) {
    if (!isPlayable(url)) {
        m_surroundings.tabs.presentNotice({.text = Localized::tr("This is not the address of a stream.")});
        return;
    }
    // The next player takes the place of this one, so that the window stays in full screen.
    const PlayerSettings kept = m_player ? m_player->settings() : settings();
    if (m_player) {
        keepSettings();
        m_player->pause();
    }
    present(url, kept);
    play();
}

void Playback::present(const QUrl& url, const PlayerSettings& settings) {
    m_player = std::make_shared<PlayerViewController>(
        m_surroundings.screens, m_surroundings.players, url, settings,
        PlayerViewController::Events{
            .ended = [this](const QString& message) { ended(message); },
            .left = [this] { moviePlayerPlaybackDidFinish(); },
            .channelChosen = [this](const QUrl& stream) { playURL(stream); },
            .stateChanged = [this] { stateChanged(); },
        });
    m_surroundings.tabs.presentCover(m_player);
    stateChanged();
}

void Playback::play() {
    if (m_player && !m_player->state().paused) {
        m_player->play();
    }
}

void Playback::reloadShows() {
    if (m_player) {
        m_player->reloadShows();
    }
}

void Playback::moviePlayerPlaybackDidFinish() {
    if (!m_player) {
        return;
    }
    keepSettings();
    // Kept until the call that leads here has returned.
    const std::shared_ptr<PlayerViewController> gone = std::exchange(m_player, nullptr);
    gone->pause();
    if (m_surroundings.tabs.cover() == gone) {
        m_surroundings.tabs.dismissCover();
    }
    stateChanged();
}

void Playback::keepSettings() {
    const double volume = m_player->settings().volume;
    if (volume != settings().volume) {
        m_surroundings.userDefaults.setDouble(kVolume, volume);
    }
}

void Playback::ended(const QString& message) {
    moviePlayerPlaybackDidFinish();
    if (!message.isEmpty()) {
        m_surroundings.tabs.presentAlert(
            {Localized::tr("Alert"), message, {{Localized::tr("OK"), AlertAction::Style::Default, [this] {
                                                    m_surroundings.alertAnswered();
                                                    moviePlayerPlaybackDidFinish();
                                                }}}});
    }
}

// ---- the desktop

void Playback::stateChanged() {
    if (m_surroundings.idleInhibition) {
        m_surroundings.idleInhibition->setInhibited(m_player && !m_player->state().paused);
    }
    if (!m_surroundings.session) {
        return;
    }
    if (!m_player) {
        m_surroundings.session->setState(std::nullopt);
        return;
    }
    const PlayerState& state = m_player->state();
    m_surroundings.session->setState(MediaSessionState{.channel = state.channel,
                                                       .title = state.title,
                                                       .paused = state.paused,
                                                       .canChangeChannel = state.hasOtherChannels,
                                                       .volume = state.muted ? 0 : state.volume,
                                                       .fullScreen = state.fullScreen});
}

MediaCommands Playback::commands() {
    const auto withPlayer = [this](auto call) {
        return [this, call](auto... arguments) {
            if (const std::shared_ptr<PlayerViewController> player = m_player) {
                call(*player, arguments...);
            }
        };
    };
    using Player = PlayerViewController;
    return {
        .setPaused = withPlayer([](Player& player, bool paused) { paused ? player.pause() : player.play(); }),
        .togglePaused = withPlayer([](Player& player) { player.togglePaused(); }),
        .stop = withPlayer([](Player& player) { player.leave(); }),
        .changeChannel = withPlayer([](Player& player, int by) { player.changeChannel(by); }),
        .setVolume = withPlayer([](Player& player, double volume) { player.setVolume(volume); }),
        .setFullScreen =
            withPlayer([](Player& player, bool fullScreen) { player.setFullScreen(fullScreen); }),
        .raise = m_surroundings.raise,
    };
}

} // namespace guide
