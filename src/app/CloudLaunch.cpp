// What the guide shares with the user's other devices and with other users.

#include "app/QuellinGuideAppDelegate.h"
#include "screens/Localized.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSilentHoursPrefix = "noAlarmsSchedule"_L1;

/// A file for the user to take away.
QString folderOfExports() {
    for (const auto location : {QStandardPaths::DownloadLocation, QStandardPaths::DocumentsLocation}) {
        const QFileInfo folder(QStandardPaths::writableLocation(location));
        if (folder.isDir() && folder.isWritable()) {
            return folder.filePath();
        }
    }
    return QDir::tempPath();
}

} // namespace

void QuellinGuideAppDelegate::makeCounters() {
    RecordStore& records =
        m_environment.records ? *m_environment.records : static_cast<RecordStore&>(m_noRecords);
    m_showCounters = std::make_unique<RecordCounters>(records, m_environment.queues);
    m_popularShows = std::make_unique<RecordPopularShows>(RecordPopularShows::Environment{
        .records = m_environment.records,
        .queues = m_environment.queues,
        .store =
            [this, alive = std::weak_ptr(m_alive)](ShowList list) {
                if (!alive.expired() && m_screens) {
                    m_listings->storePopularShows(std::move(list));
                    m_screens->recolor();
                    m_screens->reloadData();
                }
            },
    });
}

void QuellinGuideAppDelegate::makeCloud() {
    const auto whileScreensExist = [this](auto step) {
        return [this, step, alive = std::weak_ptr(m_alive)] {
            if (!alive.expired() && m_screens) {
                step();
            }
        };
    };
    m_replacedLists = std::make_unique<ReplacedLists>(m_environment.folders, m_environment.clock);
    m_cloudSync = std::make_unique<CloudSync>(CloudSyncEnvironment{
        .mainQueue = m_environment.queues.mainQueue(),
        .keyValueStore = m_environment.keyValueStore,
        .userDefaults = m_environment.userDefaults,
        .channels = *m_channels,
        .shows = *m_shows,
        .listings = *m_listings,
        .alarms = m_alarms,
        .alarmSynchronisation = m_alarms,
        .replacedLists = *m_replacedLists,
        .checkAndUpdateAllChannels = whileScreensExist([this] { checkAndUpdateAllChannels(); }),
        .selectionReplaced = whileScreensExist([this] { selectionReplaced(); }),
        .favoritesUpdated = whileScreensExist([this] { m_screens->favoritesUpdated(); }),
        .favoritesEmptied =
            [this](const std::vector<Favorite>& before) {
                if (m_screens) {
                    tellFavoritesEmptied(before);
                }
            },
    });
    m_userData = std::make_unique<UserData>(UserDataEnvironment{
        .clock = m_environment.clock,
        .queues = m_environment.queues,
        .catalogue = m_catalogue,
        .channels = *m_channels,
        .shows = *m_shows,
        .listings = *m_listings,
        .keyValueStore = m_environment.keyValueStore,
        .userDefaults = m_environment.userDefaults,
        .alarmSynchronisation = m_alarms,
        .alarmActions = m_alarms,
        .favoriteActions = *m_favoriteOperations,
        .replacedLists = *m_replacedLists,
        .cloudSync = *m_cloudSync,
        .exportFolder = folderOfExports(),
        .knownEvents = [this] { return m_alarms.knownEvents(); },
        .afterCalendarChanges = [this](Block block) { m_alarms.afterChanges(std::move(block)); },
        .selectionErased = whileScreensExist([this] { selectionReplaced(); }),
    });
    m_environment.keyValueStore.setObserver(this);
}

void QuellinGuideAppDelegate::valuesChangedExternally(const QStringList& keys) {
    if (!m_screens) {
        return;
    }
    if (keys.contains(kOwnSourcesKey)) {
        takeOwnSources();
    }
    m_cloudSync->cloudDidChangeExternally(CloudSync::Reason::Server);
    const bool silentHoursChanged =
        std::ranges::any_of(keys, [](const QString& key) { return key.startsWith(kSilentHoursPrefix); });
    if (silentHoursChanged) {
        m_alarms.resynchronize();
        m_screens->notificationsSynched();
    }
}

// Reading many channels takes a while.
void QuellinGuideAppDelegate::takeOwnSources() {
    m_environment.queues.globalQueue(QueuePriority::UserInitiated).async([this] {
        const auto shared = m_environment.keyValueStore.valueForKey(kOwnSourcesKey);
        if (shared && m_ownSources->takeFrom(*shared)) {
            // A source may have been removed, with channels that are selected here.
            onMainQueue(&QuellinGuideAppDelegate::cleanUpSelection);
        }
    });
}

void QuellinGuideAppDelegate::selectionReplaced() {
    if (m_channels->selected().empty()) {
        m_tabBarController->disableTabs();
    } else {
        m_tabBarController->enableTabs();
    }
    m_screens->setModifiedSelectedChannels();
    m_screens->reloadData();
}

void QuellinGuideAppDelegate::tellFavoritesEmptied(const std::vector<Favorite>& before) {
    presentNotice({.text = Localized::tr("Another device has removed all your favourites."),
                   .actionTitle = Localized::tr("Restore"),
                   .action = [this, before, alive = std::weak_ptr(m_alive)] {
                       if (!alive.expired() && m_screens) {
                           m_cloudSync->restoreFavorites(before);
                       }
                   }});
}

} // namespace guide
