#pragma once

#include "alarms/FavoriteOperations.h"
#include "alarms/RecordCounters.h"
#include "alarms/TVShows.h"
#include "app/AlarmUpdater.h"
#include "app/ApplicationEnvironment.h"
#include "app/CatalogueUpdater.h"
#include "app/GuideAlarms.h"
#include "app/InterruptibleWait.h"
#include "app/LoadRetries.h"
#include "app/NullServices.h"
#include "app/Playback.h"
#include "app/RecordedShowsLookup.h"
#include "app/ShowPictureLoader.h"
#include "app/UpdateCycle.h"
#include "app/WebShowLookup.h"
#include "app/own/OwnSourceService.h"
#include "cloud/UserData.h"
#include "core/Catalogue.h"
#include "core/RemoteHostAlert.h"
#include "core/Settings.h"
#include "core/TVChannels.h"
#include "core/TVStationIcons.h"
#include "core/own/KnownFeeds.h"
#include "parsers/ListDriver.h"
#include "parsers/URLPlanner.h"
#include "screens/GuidePictures.h"
#include "screens/kit/TabBarController.h"
#include "screens/shell/ScreenBroadcast.h"
#include "screens/shell/ScreenEnvironment.h"
#include "sources/HTTPUserAgent.h"
#include "sources/NetworkActivity.h"
#include "sources/PageFetcher.h"
#include "sources/PictureFetcher.h"
#include "sources/SourceHealthRecords.h"
#include "sources/own/ChannelIconFetcher.h"
#include "store/RecordPopularShows.h"
#include "store/TVListings.h"
#include "text/display/Alphabet.h"

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

namespace guide {

class SelectionEditor;
struct SelectionCleanup;

/// The root of ownership: creates the catalogue, the store, the update cycle and the screens, connects them
/// and forwards the device's events. Main queue.
class QuellinGuideAppDelegate final : public LifeCycleObserver,
                                      private KeyValueStoreObserver,
                                      private ScreenSettings,
                                      private ListingsUpdates,
                                      private AppNavigation,
                                      private AlertPresenter {
  public:
    explicit QuellinGuideAppDelegate(ApplicationEnvironment environment);
    QuellinGuideAppDelegate(const QuellinGuideAppDelegate&) = delete;
    QuellinGuideAppDelegate& operator=(const QuellinGuideAppDelegate&) = delete;
    ~QuellinGuideAppDelegate() override;

    /// Runs the steps between the start of the process and the first frame. Calls `showWindow` when the
    /// screens can be shown. False, before anything is written, when there is no channel to show.
    bool didFinishLaunching(const std::function<void(TabBarController&)>& showWindow);

    /// One line on what of the catalogue cannot be used; empty when all of it can.
    const QString& catalogueProblem() const { return m_catalogueProblem; }

    /// Whether the profile had a selection, so that the first selection was not used.
    bool firstSelectionIgnored() const { return m_firstSelectionIgnored; }

    TabBarController& tabBarController() { return *m_tabBarController; }
    /// Any thread.
    PictureProvider& pictures() { return *m_guidePictures; }
    TVListings& listings() { return *m_listings; }
    /// Null on a device without sources of the user's own.
    SourceActions* sourceActions() { return m_ownSourceService.get(); }
    TVChannels& channels() { return *m_channels; }
    /// The result of the last load of each selected channel.
    const SourceHealthRecords& sourceHealth() const { return *m_sourceHealth; }

    void applicationDidBecomeActive() override;
    void applicationDidEnterBackground() override;
    void applicationWillTerminate() override;
    void applicationDidReceiveMemoryWarning() override;
    void applicationSignificantTimeChange() override;

    /// What an update without a window has loaded.
    struct UnattendedUpdate {
        /// Channels that got a list, and those whose loads stored nothing.
        std::unordered_set<ObjectId> stored;
        std::unordered_set<ObjectId> failed;
        /// Only the user can decide about removals of alarms.
        bool hasHeldBack = false;
    };
    /// Checks the schedules once, and then the alarms. `ended` is called on the main queue. Once, after the
    /// launch; a question that comes up is left to the next window.
    void updateUnattended(std::function<void(const UnattendedUpdate&)> ended);

    /// Starts what updateUnattended() does in a guide with a window.
    void updateNow();

    /// Opens the show with this address of the application's scheme, or plays its channel when the address
    /// ends in
    /// "/play"; says so when there is no such show.
    void openURL(const QString& address);

    /// Offers to add what an address, file or program gives.
    void addSource(const QString& input);

    void checkAndUpdateAllChannels() override;
    void updateByHand(const std::vector<ObjectId>& channels) override;
    /// Shows the number of pending alarms on the application's icon and on the schedule tab.
    void updateBadge();

    /// Ends, in this order, the screens, transfers and pauses, the check, and the writing of files. The
    /// queues must still be running; the caller shuts them down next. Returns false when the check did not
    /// end or the files were not written in time.
    bool shutDown(std::chrono::milliseconds atMost);

  private:
    // ScreenSettings
    bool imagesEnabled() const override { return m_imagesEnabled; }
    void setImagesEnabled(bool enabled) override;
    bool showBgImages() const override { return m_showBgImages; }
    void setShowBgImages(bool show) override;
    bool alwaysMaintainsAspectRatio() const override { return m_settings.alwaysMaintainsAspectRatio(); }
    void setAlwaysMaintainsAspectRatio(bool maintains) override;
    bool colorizedShows() const override { return m_colorizedShows; }
    void setColorizedShows(bool colorized) override;
    int showCount() const override { return m_showCount; }
    void setShowCount(int count) override;
    std::chrono::seconds automaticUpdateInterval() const override {
        return m_settings.automaticUpdateInterval();
    }
    void setAutomaticUpdateInterval(std::chrono::seconds interval) override;

    // AppNavigation
    void playURL(const QUrl& url) override;
    void openWebPage(const QUrl& url, const QString& title) override;
    void presentAlert(Alert alert) override;
    void presentNotice(Notice notice) override;
    void openFolder(const QString& path) override;
    void presentFileChooser(FileChooser chooser) override;
    void selectTab(Symbol tab) override;
    void showPictures(const std::vector<QUrl>& urls) override;

    void openShow(const ShowItem& show, bool plays);
    void sayShowIsGone();

    // AlertPresenter
    void presentAlert(const QString& title, const QString& message, Block okPressed) override;
    void moviePlayerPlaybackDidFinish() override;

    // KeyValueStoreObserver
    void valuesChangedExternally(const QStringList& keys) override;
    void takeOwnSources();
    /// Another device or the user has replaced the selection as a whole.
    void selectionReplaced();
    void tellFavoritesEmptied(const std::vector<Favorite>& before);

    // The steps of the launch.
    void makeSources();
    void makeCatalogue();
    /// The channels of the catalogue and those of the user's sources. Any thread.
    void joinCatalogue();
    void makeSelection();
    void makeFavorites();
    void makeListings();
    void makeAlarms();
    void makeCounters();
    void makeCloud();
    void makeUpdateCycle();
    void makeOwnSources();
    /// Asks for the icons that the channels of the user's sources have now.
    void fetchOwnIcons();
    /// Watches the sources that are files or folders of this device. Main queue.
    void watchOwnFiles();
    void makeRetries();
    void makePictures();
    void makeScreens();
    void setup();
    /// Deselects what has left the catalogue.
    void cleanUpSelection();
    void removeSelected(const SelectionCleanup& plan);
    void syncAlarms() { m_alarms.syncAlarms(); }
    /// The catalogue was replaced, or has cost the selection channels.
    void refreshChannels() {
        fetchOwnIcons();
        watchOwnFiles();
        m_screens->selectionCleanedUp();
        m_screens->reloadData();
    }

    /// The alarms have changed.
    void notificationsSynched();
    void tellPlayableChannels();
    /// Asks what is to become of alarms that a run has not removed because there are so many.
    void askAboutHeldBack(std::size_t count);

    void offerTop(const TopLists& top);
    void loadsEnded(const LoadResults& results);
    void detectAlphabet();
    void readSettings();
    void onMainQueue(void (QuellinGuideAppDelegate::*step)());

    const ApplicationEnvironment m_environment;
    Settings m_settings;
    Alphabet m_alphabet;
    InterruptibleWait m_pauses;
    /// Blocks on the main queue hold it weakly, so that they do nothing after the destruction.
    const std::shared_ptr<const void> m_alive = std::make_shared<char>();

    bool m_imagesEnabled = true;
    bool m_showBgImages = true;
    bool m_colorizedShows = false;
    bool m_startTabChosen = false;
    bool m_firstSelectionIgnored = false;
    /// Read by checks and queries on their own queues.
    std::atomic<int> m_showCount{4};
    /// Ends a reader that is at work.
    std::atomic<bool> m_isShuttingDown = false;
    /// Set in a process without a window.
    std::optional<UnattendedUpdate> m_unattended;

    GuideAlarms m_alarms;
    /// As last told to what rings the alarms.
    std::optional<QStringList> m_playableChannels;
    AlarmUpdater m_alarmUpdater;
    ShowPictureCache m_pictureCache;
    NoRecordStore m_noRecords;

    std::unique_ptr<RemoteHostAlert> m_remoteHostAlert;
    std::unique_ptr<NetworkActivity> m_networkActivity;
    std::unique_ptr<HTTPUserAgent> m_userAgent;
    std::unique_ptr<URLPlanner> m_planner;
    std::unique_ptr<PageFetcher> m_fetcher;
    std::shared_ptr<DispatchQueue> m_loadQueue;
    std::shared_ptr<DispatchQueue> m_checkAndUpdateAllChannelsQueue;

    std::unique_ptr<TVStationIcons> m_icons;
    Catalogue m_catalogue;
    QString m_catalogueProblem;
    std::vector<CatalogueChannel> m_suppliedChannels;
    std::mutex m_catalogueGuard;
    std::unique_ptr<OwnSources> m_ownSources;
    std::unique_ptr<TVChannels> m_channels;
    std::unique_ptr<TVShows> m_shows;
    std::unique_ptr<RecordCounters> m_showCounters;
    std::unique_ptr<FavoriteOperations> m_favoriteOperations;
    std::unique_ptr<RecordPopularShows> m_popularShows;
    std::unique_ptr<TVListings> m_listings;
    std::unique_ptr<ReplacedLists> m_replacedLists;
    std::unique_ptr<CloudSync> m_cloudSync;
    std::unique_ptr<UserData> m_userData;
    std::unique_ptr<ListDriver> m_listDriver;
    std::unique_ptr<SourceHealthRecords> m_sourceHealth;
    std::unique_ptr<UpdateCycle> m_updateCycle;
    /// Null on a device without sources of the user's own.
    std::unique_ptr<SourceRecords> m_sourceRecords;
    std::unique_ptr<SourceFetcher> m_sourceFetcher;
    std::unique_ptr<OwnSourceUpdates> m_ownSourceUpdates;
    std::unique_ptr<OwnPictures> m_ownPictures;
    std::unique_ptr<OwnSourceService> m_ownSourceService;
    KnownFeeds m_knownFeeds;
    std::unique_ptr<ChannelIconFetcher> m_channelIcons;
    using WatchedFile = std::pair<OwnSourceId, QString>;
    std::map<WatchedFile, FileWatch::Token> m_watchedFiles;
    std::unique_ptr<LoadRetries> m_retries;
    std::unique_ptr<PictureFetcher> m_pictureFetcher;
    std::unique_ptr<WebShowLookup> m_showLookup;
    std::unique_ptr<ShowPictureLoader> m_pictures;
    std::unique_ptr<GuidePictures> m_guidePictures;
    std::unique_ptr<RecordedShowsLookup> m_recordedShows;
    std::shared_ptr<const ScreenEnvironment> m_screenEnvironment;
    std::unique_ptr<TabBarController> m_tabBarController;
    std::unique_ptr<ScreenBroadcast> m_screens;
    /// Selects the channels of sources that the user adds.
    std::shared_ptr<SelectionEditor> m_selectionEditor;
    /// Null on a device that plays no streams.
    std::unique_ptr<Playback> m_playback;
    std::unique_ptr<CatalogueUpdater> m_catalogueUpdater;
};

} // namespace guide
