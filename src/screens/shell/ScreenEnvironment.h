#pragma once

#include "alarms/AlarmActions.h"
#include "alarms/AlarmSynchronisation.h"
#include "alarms/AlertsSchedule.h"
#include "alarms/Favorites.h"
#include "alarms/PendingAlarms.h"
#include "core/Catalogue.h"
#include "core/TVChannels.h"
#include "core/TVStationIcons.h"
#include "platform/AlarmRinging.h"
#include "platform/BackgroundUpdates.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/KeyValueStore.h"
#include "platform/LifeCycle.h"
#include "platform/UserDefaults.h"
#include "platform/queues/DispatchQueue.h"
#include "screens/AppNavigation.h"
#include "screens/ListingsUpdates.h"
#include "screens/RecordedShows.h"
#include "screens/ScreenSettings.h"
#include "screens/ShowLookup.h"
#include "screens/ShowPictureCache.h"
#include "screens/ShowPictures.h"
#include "screens/kit/RowAction.h"
#include "screens/kit/ViewController.h"
#include "store/PopularShows.h"
#include "store/TVListings.h"
#include "text/display/Alphabet.h"

#include <functional>
#include <memory>
#include <vector>

namespace guide {

class AlarmExplanations;
class CalendarActions;
class KnownFeeds;
class SharedPlaceActions;
class SourceActions;
class UserDataActions;

/// The services that screens use. All of them must outlive the screens.
struct ScreenEnvironment {
    const Clock& clock;
    const Device& device;
    DispatchQueue& mainQueue;
    /// The queues of the process, for work in the background.
    DispatchQueues& queues;
    /// Parses lists; suspended while the first screen rebuilds.
    DispatchQueue& loadQueue;
    const ApplicationStateSource& applicationState;
    TVListings& listings;
    TVChannels& channels;
    TVStationIcons& icons;
    const Catalogue& catalogue;
    const Alphabet& alphabet;
    const FavoritesSource& favorites;
    const AlarmsSource& alarms;
    AlarmSynchronisation& alarmSynchronisation;
    AlertsSchedule& alertsSchedule;
    AlarmActions& alarmActions;
    FavoriteActions& favoriteActions;
    RecordedShowsSource& recordedShows;
    const PopularShows& popularShows;
    ShowPictures& pictures;
    ShowPictureCache& pictureCache;
    ScreenSettings& settings;
    ListingsUpdates& updates;
    AppNavigation& navigation;
    ShowLookup& showLookup;
    Clipboard& clipboard;
    /// The application's URL scheme; empty when it has none.
    QString scheme;
    /// Of this device.
    UserDefaults& userDefaults;
    /// Of all devices of the user.
    KeyValueStore& keyValueStore;
    /// The actions on the row of a show. They may outlive the row.
    std::function<std::vector<RowAction>(const std::shared_ptr<const TVEntry>&,
                                         const std::shared_ptr<ViewController>&)>
        swipeActions = [](const auto&, const auto&) { return std::vector<RowAction>(); };
    /// Where the channel's schedule was loaded from, for display; empty when unknown.
    std::function<QString(const ObjectId&)> sourceOfSchedule = [](const auto&) { return QString(); };
    /// Of the user's own sources; null in a guide without them.
    SourceActions* sourceActions = nullptr;
    /// Null when there are none.
    const KnownFeeds* knownFeeds = nullptr;
    /// Null in a guide without calendars.
    CalendarActions* calendarActions = nullptr;
    AlarmExplanations* alarmExplanations = nullptr;
    /// Null where alarms cannot ring without the guide.
    AlarmRinging* alarmRinging = nullptr;
    /// Null where nothing starts the guide by itself.
    BackgroundUpdates* backgroundUpdates = nullptr;
    /// Null in a guide that cannot export or erase.
    UserDataActions* userData = nullptr;
    /// Null where nothing can be shared with other devices.
    SharedPlaceActions* sharedPlace = nullptr;
};

} // namespace guide
