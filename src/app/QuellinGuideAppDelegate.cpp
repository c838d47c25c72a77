#include "app/QuellinGuideAppDelegate.h"

#include "screens/Localized.h"
#include "screens/shell/GuideTabs.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace guide {

QuellinGuideAppDelegate::QuellinGuideAppDelegate(ApplicationEnvironment environment)
    : m_environment(std::move(environment))
    , m_settings(m_environment.userDefaults)
    , m_alarms(m_environment.queues.mainQueue(), m_environment.keyValueStore)
    , m_alarmUpdater(m_alarms, m_environment.queues.mainQueue(), m_environment.applicationState,
                     m_environment.userDefaults) {}

QuellinGuideAppDelegate::~QuellinGuideAppDelegate() = default;

void QuellinGuideAppDelegate::checkAndUpdateAllChannels() {
    m_updateCycle->checkAndUpdateAllChannels();
    if (m_ownSourceUpdates) {
        m_ownSourceUpdates->check();
    }
}

void QuellinGuideAppDelegate::updateByHand(const std::vector<ObjectId>& channels) {
    if (m_ownSourceUpdates) {
        m_ownSourceUpdates->askNowFor(channels);
    }
    m_updateCycle->checkAndUpdateAllChannels();
}

void QuellinGuideAppDelegate::updateBadge() {
    const int count = static_cast<int>(m_alarms.snapshot()->eventCount());
    if (m_environment.applicationIconBadgeNumber) {
        m_environment.applicationIconBadgeNumber(count);
    }
    m_tabBarController->setBadgeValue(scheduleTabIndex(m_environment.device.userInterfaceIdiom()),
                                      count == 0 ? QString() : QString::number(count));
}

void QuellinGuideAppDelegate::moviePlayerPlaybackDidFinish() {
    if (m_playback) {
        m_playback->moviePlayerPlaybackDidFinish();
    }
}

void QuellinGuideAppDelegate::presentAlert(Alert alert) {
    if (m_tabBarController) {
        m_tabBarController->presentAlert(std::move(alert));
    }
}

void QuellinGuideAppDelegate::presentNotice(Notice notice) {
    if (m_tabBarController) {
        m_tabBarController->presentNotice(std::move(notice));
    }
}

void QuellinGuideAppDelegate::presentFileChooser(FileChooser chooser) {
    if (m_tabBarController) {
        m_tabBarController->presentFileChooser(std::move(chooser));
    }
}

void QuellinGuideAppDelegate::selectTab(Symbol tab) {
    const auto& tabs = m_tabBarController->tabs();
    const auto found =
        std::ranges::find(tabs, tab, [](const TabBarController::Tab& each) { return each.item.symbol; });
    if (found != tabs.end()) {
        m_tabBarController->setSelectedIndex(static_cast<int>(found - tabs.begin()));
    }
}

void QuellinGuideAppDelegate::presentAlert(const QString& title, const QString& message, Block okPressed) {
    presentAlert(
        {title, message, {{Localized::tr("OK"), AlertAction::Style::Default, std::move(okPressed)}}});
}

void QuellinGuideAppDelegate::detectAlphabet() {
    const Device& device = m_environment.device;
    const auto now = QDateTime::fromMSecsSinceEpoch(m_environment.clock.now().time_since_epoch().count(),
                                                    device.timeZone());
    m_alphabet.detectAlphabet(device.locale().toString(now.date(), QLocale::LongFormat));
}

void QuellinGuideAppDelegate::readSettings() {
    m_imagesEnabled = m_settings.imagesEnabled();
    m_showBgImages = m_settings.showBgImages();
    m_showCount = m_settings.showCount();
}

void QuellinGuideAppDelegate::onMainQueue(void (QuellinGuideAppDelegate::*step)()) {
    m_environment.queues.mainQueue().async([this, step, alive = std::weak_ptr(m_alive)] {
        if (!alive.expired() && m_screens) {
            (this->*step)();
        }
    });
}

bool QuellinGuideAppDelegate::shutDown(std::chrono::milliseconds atMost) {
    const auto end = std::chrono::steady_clock::now() + atMost;
    const auto left = [&] {
        return std::max(std::chrono::milliseconds(0), std::chrono::duration_cast<std::chrono::milliseconds>(
                                                          end - std::chrono::steady_clock::now()));
    };
    if (m_environment.networkWatch) {
        m_environment.networkWatch->watch(nullptr);
    }
    m_environment.keyValueStore.setObserver(nullptr);
    m_retries.reset();
    m_playback.reset();
    m_selectionEditor.reset();
    m_watchedFiles.clear();
    m_screens.reset();
    m_tabBarController.reset();
    m_isShuttingDown = true;
    m_alarms.stopWatching();
    m_environment.httpClient.cancelAll();
    m_pauses.interrupt();
    m_channelIcons.reset();
    const bool screensServed = !m_ownSourceService || m_ownSourceService->finish(left());
    const bool sourcesEnded = !m_ownSourceUpdates || m_ownSourceUpdates->finish(left());
    const bool cycleEnded = !m_updateCycle || m_updateCycle->finish(left());
    const bool checkEnded = screensServed && sourcesEnded && cycleEnded;
    const bool written = !m_listings || m_listings->finishWriting(left());
    if (m_channels) {
        m_channels->finishWriting();
    }
    if (m_shows) {
        m_shows->finishWriting();
    }
    if (m_ownSources) {
        m_ownSources->finishWriting();
    }
    if (m_sourceRecords) {
        m_sourceRecords->finishWriting();
    }
    return m_environment.userDefaults.synchronize() && checkEnded && written;
}

} // namespace guide
