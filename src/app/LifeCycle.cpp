// Handling of the device's events.

#include "app/QuellinGuideAppDelegate.h"

namespace guide {

namespace {

/// Gives the device time to have put the program into the background.
constexpr std::chrono::milliseconds kBeforePlayingOn{100};

} // namespace

void QuellinGuideAppDelegate::applicationDidBecomeActive() {
    m_remoteHostAlert->restartSilence();
    detectAlphabet();
    readSettings();
    m_environment.promotion.prepareInterstitialWhenDue();
    const bool wereAlarmsRunning = m_alarms.isRunning();
    if (m_environment.sharedPlace) {
        m_environment.sharedPlace->retryNow();
    }
    m_cloudSync->cloudDidChangeExternally({});
    const bool didCloudRunAlarms = !wereAlarmsRunning && m_alarms.isRunning();
    m_screens->applicationDidBecomeActive();
    if (m_playback) {
        m_playback->reloadShows();
    }
    if (!didCloudRunAlarms) {
        m_alarms.syncAlarms();
    }
    checkAndUpdateAllChannels();
    m_retries->setActive(true);
    if (m_ownSourceUpdates) {
        m_ownSourceUpdates->setActive(true);
        fetchOwnIcons();
        watchOwnFiles();
    }
}

void QuellinGuideAppDelegate::applicationSignificantTimeChange() {
    applicationDidBecomeActive();
}

void QuellinGuideAppDelegate::applicationDidEnterBackground() {
    m_environment.queues.mainQueue().asyncAfter(kBeforePlayingOn, [this, alive = std::weak_ptr(m_alive)] {
        if (!alive.expired() && m_playback) {
            m_playback->play();
        }
    });
    m_retries->setActive(false);
    if (m_ownSourceUpdates) {
        m_ownSourceUpdates->setActive(false);
    }
    m_alarms.commit();
    m_environment.userDefaults.synchronize();
    m_channels->retryWriting();
    m_shows->retryWriting();
    m_listings->commitFiles();
    m_screens->applicationDidEnterBackground();
}

void QuellinGuideAppDelegate::applicationWillTerminate() {
    m_alarms.commit();
    m_environment.userDefaults.synchronize();
    // Otherwise a load that ended after the transition to the background would be lost.
    m_listings->commitFiles();
}

void QuellinGuideAppDelegate::applicationDidReceiveMemoryWarning() {
    m_alarms.commit();
    if (m_environment.applicationState.applicationState() == ApplicationState::Background) {
        m_environment.userDefaults.synchronize();
    }
    m_listings->commitFiles();
    m_icons->dropIcons();
    m_pictureCache.clear();
    m_pictureFetcher->dropFiles();
    m_environment.responseCache.setMemoryCapacity(0);
    m_environment.responseCache.setMemoryCapacity(m_environment.responseCacheCapacity);
}

} // namespace guide
