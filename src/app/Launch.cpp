// The steps of the launch.

#include "app/KnownChannels.h"
#include "app/QuellinGuideAppDelegate.h"
#include "app/SelectionCleanup.h"
#include "core/CatalogueFiles.h"
#include "core/SupportedChannelTypes.h"
#include "parsers/details/PageSource.h"
#include "screens/Localized.h"
#include "screens/ShowRows.h"
#include "screens/SwipeActions.h"
#include "screens/alarms/AlarmTexts.h"
#include "screens/channels/SelectionEditor.h"
#include "screens/shell/GuideTabs.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <unordered_set>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kRecordedShowsTimeout{20};

} // namespace

bool QuellinGuideAppDelegate::didFinishLaunching(const std::function<void(TabBarController&)>& showWindow) {
    // Does not interrupt other audio during the launch.
    m_environment.audioSession.setCategory(AudioSessionCategory::Ambient, true);
    m_environment.promotion.startMeasurementAndAds();
    detectAlphabet();
    readSettings();
    makeSources();
    // Before the catalogue, whose filter tests every icon.
    m_icons = std::make_unique<TVStationIcons>(m_environment.iconFolder, m_environment.device.screenScale(),
                                               m_environment.folders.caches + u'/' + kOwnIconFolder);
    makeCatalogue();
    if (m_environment.needsCatalogue && m_suppliedChannels.empty()) {
        return false;
    }
    makeSelection();
    // Runs after the launch, when the store exists.
    onMainQueue(&QuellinGuideAppDelegate::cleanUpSelection);
    makeCounters();
    makeFavorites();
    // Starts reading the listing files.
    makeListings();
    makeAlarms();
    makeCloud();
    makeUpdateCycle();
    makeOwnSources();
    makeRetries();
    makePictures();
    makeScreens();
    showWindow(*m_tabBarController);
    m_environment.audioSession.setCategory(AudioSessionCategory::Playback, false);
    m_environment.audioSession.setActive(true);
    setup();
    if (!m_environment.folders.writable) {
        m_tabBarController->presentNotice(
            {.text = Localized::tr("This profile cannot be written. Changes will not be saved.")});
    }
    updateBadge();
    m_environment.promotion.configureConsent();
    return true;
}

void QuellinGuideAppDelegate::makeSources() {
    DispatchQueues& queues = m_environment.queues;
    m_remoteHostAlert = std::make_unique<RemoteHostAlert>(m_environment.clock, queues.mainQueue(),
                                                          static_cast<AlertPresenter&>(*this));
    m_networkActivity = std::make_unique<NetworkActivity>(
        queues,
        m_environment.networkActivityIndicator ? m_environment.networkActivityIndicator : [](bool) {});
    m_loadQueue = queues.makeQueue("vorel.tv.loadQueue", QueueKind::Serial, QueuePriority::Background);
    m_checkAndUpdateAllChannelsQueue =
        queues.makeQueue("vorel.tv.checkAndUpdateAllChannels", QueueKind::Serial, QueuePriority::Background);
    m_userAgent = std::make_unique<HTTPUserAgent>(m_environment.random);
    m_planner = std::make_unique<URLPlanner>(m_environment.hosts, m_environment.random);
    m_fetcher = std::make_unique<PageFetcher>(PageFetcherEnvironment{
        .client = m_environment.httpClient,
        .networkActivity = *m_networkActivity,
        .physicalMemory = m_environment.device.physicalMemory(),
        .wait =
            [this](std::chrono::milliseconds time) {
                return m_pauses.wait(std::min(time, m_environment.longestPause));
            },
        .noRemoteHostAlert =
            [this](const TransferError& error) { m_remoteHostAlert->noRemoteHostAlert(error); },
    });
}

void QuellinGuideAppDelegate::makeCatalogue() {
    const auto types =
        SupportedChannelTypes::fromFile(m_environment.folders.bundle + "/supported-channel-types.json"_L1);
    const LoadedCatalogue loaded =
        loadedCatalogue(m_environment.cataloguePath, m_environment.catalogueArchivePath, types,
                        [this](const QString& name) { return !m_icons->iconNamed(name).isNull(); });
    m_catalogueProblem = loaded.problem;
    m_suppliedChannels = loaded.channels;
    m_ownSources = std::make_unique<OwnSources>(m_environment.folders, m_environment.keyValueStore,
                                                m_environment.queues);
    // Another device may have stored some while this one was not running.
    if (const auto shared = m_environment.keyValueStore.valueForKey(kOwnSourcesKey)) {
        m_ownSources->takeFrom(*shared);
    }
    m_ownSources->setObserver([this] { joinCatalogue(); });
    joinCatalogue();
}

void QuellinGuideAppDelegate::makeSelection() {
    m_channels = std::make_unique<TVChannels>(m_environment.folders, m_environment.keyValueStore,
                                              m_environment.queues, m_catalogue);
    if (!m_environment.firstSelection) {
        return;
    }
    m_firstSelectionIgnored = !m_channels->selected().empty();
    if (!m_firstSelectionIgnored) {
        m_channels->setSelected(*m_environment.firstSelection);
    }
}

void QuellinGuideAppDelegate::makeFavorites() {
    m_shows =
        std::make_unique<TVShows>(m_environment.folders, m_environment.keyValueStore, m_environment.queues);
    // Before the store and the screens, which look only at rules that have been read.
    m_shows->favorites();
    m_favoriteOperations = std::make_unique<FavoriteOperations>(FavoriteOperationsEnvironment{
        .clock = m_environment.clock,
        .mainQueue = m_environment.queues.mainQueue(),
        .shows = *m_shows,
        .alarmActions = m_alarms,
        .alarms = m_alarms,
        .counters = *m_showCounters,
        .favoritesUpdated =
            [this, alive = std::weak_ptr(m_alive)] {
                if (!alive.expired() && m_screens) {
                    m_screens->favoritesUpdated();
                }
            },
    });
}

void QuellinGuideAppDelegate::makeListings() {
    m_listings = std::make_unique<TVListings>(TVListingsEnvironment{
        .clock = m_environment.clock,
        .device = m_environment.device,
        .folders = m_environment.folders,
        .queues = m_environment.queues,
        .backgroundTasks = m_environment.backgroundTasks,
        .applicationState = m_environment.applicationState,
        .channels = *m_channels,
        .alphabet = m_alphabet,
        .favorites = *m_shows,
        .popularShows = *m_popularShows,
        .observer = m_alarmUpdater,
        .scheme = m_environment.scheme,
        .showCount = [this] { return m_showCount.load(); },
    });
    onMainQueue(&QuellinGuideAppDelegate::syncAlarms);
}

void QuellinGuideAppDelegate::makeAlarms() {
    if (!m_environment.eventStore) {
        return;
    }
    const auto whileScreensExist = [this](void (QuellinGuideAppDelegate::*step)()) {
        return [this, step, alive = std::weak_ptr(m_alive)] {
            if (!alive.expired() && m_screens) {
                (this->*step)();
            }
        };
    };
    m_alarms.start(
        {
            .clock = m_environment.clock,
            .device = m_environment.device,
            .folders = m_environment.folders,
            .queues = m_environment.queues,
            .backgroundTasks = m_environment.backgroundTasks,
            .applicationState = m_environment.applicationState,
            .userDefaults = m_environment.userDefaults,
            .keyValueStore = m_environment.keyValueStore,
            .eventStore = *m_environment.eventStore,
            .catalogue = m_catalogue,
            .channels = *m_channels,
            .shows = *m_shows,
            .listings = *m_listings,
            .counters = *m_showCounters,
            .scheme = m_environment.scheme,
            .automaticUpdateInterval = [this] { return m_settings.automaticUpdateInterval(); },
            .notificationsSynched = whileScreensExist(&QuellinGuideAppDelegate::notificationsSynched),
            .updateBadge = whileScreensExist(&QuellinGuideAppDelegate::updateBadge),
            .runEnded = {},
        },
        [this, alive = std::weak_ptr(m_alive)](std::size_t count) {
            if (!alive.expired()) {
                askAboutHeldBack(count);
            }
        });
}

void QuellinGuideAppDelegate::notificationsSynched() {
    updateBadge();
    tellPlayableChannels();
    m_screens->notificationsSynched();
}

void QuellinGuideAppDelegate::tellPlayableChannels() {
    if (!m_environment.alarmRinging) {
        return;
    }
    const SharedCatalogueSnapshot catalogue = m_catalogue.snapshot();
    QStringList titles;
    for (const ObjectId& id : m_channels->selected()) {
        if (streamURLOf(*catalogue, id)) {
            titles << catalogue->find(id)->title;
        }
    }
    if (titles != m_playableChannels) {
        m_playableChannels = titles;
        m_environment.alarmRinging->setPlayableChannels(titles);
    }
}

void QuellinGuideAppDelegate::askAboutHeldBack(std::size_t count) {
    if (m_unattended) {
        m_unattended->hasHeldBack = true;
        return;
    }
    const auto answer = [this](void (GuideAlarms::*act)()) {
        return [this, act, alive = std::weak_ptr(m_alive)] {
            if (!alive.expired()) {
                (m_alarms.*act)();
            }
        };
    };
    presentAlert(
        heldBackAlert(count, answer(&GuideAlarms::removeHeldBack), answer(&GuideAlarms::keepHeldBack)));
}

void QuellinGuideAppDelegate::makeUpdateCycle() {
    m_listDriver = std::make_unique<ListDriver>(ListDriverEnvironment{
        .clock = m_environment.clock,
        .alphabet = m_alphabet,
        .hosts = m_environment.hosts,
        .merge =
            [this](const std::vector<LoadItem>& items, ParsedLists parsed, Moment now, ListingsType type,
                   const ReadOutcome& read) {
                return m_listings->merge(items, std::move(parsed), now, type, read);
            },
        .locale = m_environment.device.locale(),
        .timeZone = [this] { return m_environment.device.timeZone(); },
        .physicalMemory = m_environment.device.physicalMemory(),
        .stopped = [this] { return m_isShuttingDown.load(); },
    });
    m_sourceHealth = std::make_unique<SourceHealthRecords>(
        m_environment.folders.caches + u"/source-health.json"_s, m_environment.folders.writable);
    m_updateCycle = std::make_unique<UpdateCycle>(UpdateCycleEnvironment{
        .clock = m_environment.clock,
        .device = m_environment.device,
        .queues = m_environment.queues,
        .checkQueue = m_checkAndUpdateAllChannelsQueue,
        .loadQueue = m_loadQueue,
        .backgroundTasks = m_environment.backgroundTasks,
        .applicationState = m_environment.applicationState,
        .channels = *m_channels,
        .catalogue = m_catalogue,
        .settings = m_settings,
        .planner = *m_planner,
        .fetcher = *m_fetcher,
        .userAgent = *m_userAgent,
        .listings = *m_listings,
        .sourceHealth = *m_sourceHealth,
        .listDriver = *m_listDriver,
        .showCount = [this] { return m_showCount.load(); },
        .offerTop = [this](const TopLists& top) { offerTop(top); },
        .loadsEnded = [this](const LoadResults& results) { loadsEnded(results); },
    });
}

void QuellinGuideAppDelegate::offerTop(const TopLists& top) {
    if (m_screens) {
        m_screens->offerTopShows(TopShows(top.begin(), top.end()));
    }
    if (m_playback) {
        m_playback->reloadShows();
    }
}

void QuellinGuideAppDelegate::loadsEnded(const LoadResults& results) {
    if (m_unattended) {
        m_unattended->stored.insert(results.stored.begin(), results.stored.end());
        m_unattended->failed.insert(results.failed.begin(), results.failed.end());
    }
    if (!results.stored.empty()) {
        // Lists are replaced while their channels are still marked as loading. A run that was as quick as
        // that has removed nothing.
        m_alarmUpdater.listingsReplaced();
    }
    if (m_retries) {
        m_retries->loadsEnded(results);
    }
    if (m_screens) {
        m_screens->loadsEnded(results.failureChanged);
    }
}

void QuellinGuideAppDelegate::makeRetries() {
    m_retries = std::make_unique<LoadRetries>(m_environment.clock, m_environment.queues.mainQueue(),
                                              *m_channels, [this] { checkAndUpdateAllChannels(); });
    if (m_environment.networkWatch) {
        m_environment.networkWatch->watch([this] {
            if (m_environment.sharedPlace) {
                m_environment.sharedPlace->retryNow();
            }
            m_retries->networkAppeared();
            // Calendars on servers keep changes that could not be sent.
            if (m_environment.eventStore) {
                m_environment.eventStore->refreshSources();
            }
        });
    }
}

void QuellinGuideAppDelegate::makePictures() {
    m_pictureFetcher = std::make_unique<PictureFetcher>(PictureFetcherEnvironment{
        .clock = m_environment.clock,
        .client = m_environment.httpClient,
        .networkActivity = *m_networkActivity,
        .userAgent = *m_userAgent,
        .noRemoteHostAlert =
            [this](const TransferError& error) { m_remoteHostAlert->noRemoteHostAlert(error); },
    });
    m_showLookup = std::make_unique<WebShowLookup>(
        DetailScraperEnvironment{
            .pages = networkPageSource(*m_fetcher, *m_userAgent, std::chrono::seconds(30)),
            .hosts = m_environment.hosts,
            .update =
                [this](std::shared_ptr<const TVEntry> entry,
                       std::shared_ptr<const TVEntrySupplementalData> details, const PictureURLs& pictures) {
                    m_listings->updateDetails(std::move(entry), std::move(details), pictures);
                },
            .locale = m_environment.device.locale(),
        },
        IMDbLookupEnvironment{m_environment.httpClient, *m_userAgent, m_environment.hosts,
                              m_environment.queues});
    m_pictures = std::make_unique<ShowPictureLoader>(ShowPictureLoaderEnvironment{
        .queues = m_environment.queues,
        .device = m_environment.device,
        .fetcher = *m_pictureFetcher,
        .lookup = *m_showLookup,
        .listings = *m_listings,
        .loadsSchedules =
            [this] {
                return m_updateCycle->isRunning() || (m_ownSourceUpdates && m_ownSourceUpdates->isRunning());
            },
        .stopped = [this] { return m_isShuttingDown.load(); },
    });
}

void QuellinGuideAppDelegate::makeScreens() {
    m_guidePictures = std::make_unique<GuidePictures>(*m_icons, m_pictureCache);
    m_recordedShows = std::make_unique<RecordedShowsLookup>(
        m_environment.queues, m_environment.hosts,
        networkPageSource(*m_fetcher, *m_userAgent, kRecordedShowsTimeout));
    m_screenEnvironment = std::make_shared<const ScreenEnvironment>(ScreenEnvironment{
        .clock = m_environment.clock,
        .device = m_environment.device,
        .mainQueue = m_environment.queues.mainQueue(),
        .queues = m_environment.queues,
        .loadQueue = *m_loadQueue,
        .applicationState = m_environment.applicationState,
        .listings = *m_listings,
        .channels = *m_channels,
        .icons = *m_icons,
        .catalogue = m_catalogue,
        .alphabet = m_alphabet,
        .favorites = *m_shows,
        .alarms = m_alarms,
        .alarmSynchronisation = m_alarms,
        .alertsSchedule = m_alarms,
        .alarmActions = m_alarms,
        .favoriteActions = *m_favoriteOperations,
        .recordedShows = *m_recordedShows,
        .popularShows = *m_popularShows,
        .pictures = *m_pictures,
        .pictureCache = m_pictureCache,
        .settings = *this,
        .updates = *this,
        .navigation = *this,
        .showLookup = *m_showLookup,
        .clipboard = m_environment.clipboard,
        .scheme = m_environment.scheme,
        .userDefaults = m_environment.userDefaults,
        .keyValueStore = m_environment.keyValueStore,
        .swipeActions =
            [this](const std::shared_ptr<const TVEntry>& entry, const auto&) {
                return swipeActions({m_environment.clock, *m_shows, m_alarms, m_alarms, *m_favoriteOperations,
                                     [this](Alert alert) { presentAlert(std::move(alert)); }},
                                    entry);
            },
        .sourceOfSchedule =
            [this](const ObjectId& channel) {
                const auto health = m_sourceHealth->healthFor(channel);
                return health && health->used ? health->used->host : QString();
            },
        .sourceActions = m_ownSourceService.get(),
        .knownFeeds = &m_knownFeeds,
        .calendarActions = m_alarms.calendarActions(),
        .alarmExplanations = m_alarms.explanations(),
        .alarmRinging = m_environment.alarmRinging,
        .backgroundUpdates = m_environment.backgroundUpdates,
        .userData = m_userData.get(),
        .sharedPlace = m_environment.sharedPlace,
    });
    m_tabBarController = makeGuideTabs(m_screenEnvironment);
    m_selectionEditor = std::make_shared<SelectionEditor>(m_screenEnvironment, *m_tabBarController);
    m_screens = std::make_unique<ScreenBroadcast>(*m_tabBarController, m_environment.applicationState);
    if (m_environment.mediaPlayers) {
        m_playback = std::make_unique<Playback>(Playback::Surroundings{
            .screens = m_screenEnvironment,
            .tabs = *m_tabBarController,
            .players = *m_environment.mediaPlayers,
            .session = m_environment.mediaSession,
            .idleInhibition = m_environment.idleInhibition,
            .userDefaults = m_environment.userDefaults,
            .alertAnswered = [this] { m_remoteHostAlert->restartSilence(); },
            .raise = m_environment.raiseWindow,
        });
    }
    m_catalogueUpdater = std::make_unique<CatalogueUpdater>(
        m_catalogue, [this] { onMainQueue(&QuellinGuideAppDelegate::refreshChannels); });
}

void QuellinGuideAppDelegate::setup() {
    m_colorizedShows = m_settings.colorizedShows();
    const UserInterfaceIdiom idiom = m_environment.device.userInterfaceIdiom();
    if (idiom == UserInterfaceIdiom::Tablet) {
        m_tabBarController->setTabEnabled(0, true);
    }
    if (m_channels->selected().empty()) {
        m_tabBarController->disableTabs();
    } else if (!std::exchange(m_startTabChosen, true)) {
        m_tabBarController->setSelectedIndex(currentlyTabIndex(idiom));
    }
}

void QuellinGuideAppDelegate::cleanUpSelection() {
    const CatalogueSnapshot supplied(m_suppliedChannels);
    const std::vector<ObjectId> selected = m_channels->selected();
    std::optional<std::unordered_set<ObjectId>> before;
    const auto hasLeft = [&](const ObjectId& channel) {
        if (channel.isOwn()) {
            return m_ownSources->isRemoved(channel);
        }
        // A catalogue that could not be read proves nothing about the channels.
        if (supplied.empty() || supplied.contains(channel)) {
            return false;
        }
        if (!before) {
            const std::vector<ObjectId> known = knownChannels(m_environment.folders).value_or(selected);
            before.emplace(known.begin(), known.end());
        }
        return before->contains(channel);
    };
    removeSelected(planSelectionCleanup(selected, std::not_fn(hasLeft)));
    m_environment.queues.globalQueue(QueuePriority::Background).async([this] {
        // The next start must find the selection without what has left the catalogue.
        if (!m_suppliedChannels.empty() && m_channels->finishWriting()) {
            keepKnownChannels(m_environment.folders, m_suppliedChannels);
        }
    });
}

void QuellinGuideAppDelegate::removeSelected(const SelectionCleanup& plan) {
    if (plan.removed.empty()) {
        return;
    }
    m_alarms.setSynchronized(false);
    m_channels->setSelected(plan.kept);
    for (const ObjectId& channel : plan.removed) {
        m_listings->removeListingsForChannel(channel);
    }
    if (plan.kept.empty()) {
        m_tabBarController->disableTabs();
    }
    onMainQueue(&QuellinGuideAppDelegate::refreshChannels);
    m_alarms.syncAlarms();
}

} // namespace guide
