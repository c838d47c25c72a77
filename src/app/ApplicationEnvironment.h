#pragma once

#include "app/Promotion.h"
#include "cloud/SharedPlaceActions.h"
#include "core/ObjectId.h"
#include "parsers/URLPlanner.h"
#include "platform/AlarmRinging.h"
#include "platform/AudioSession.h"
#include "platform/BackgroundTasks.h"
#include "platform/BackgroundUpdates.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/FileWatch.h"
#include "platform/IdleInhibition.h"
#include "platform/KeyValueStore.h"
#include "platform/LifeCycle.h"
#include "platform/MediaPlayer.h"
#include "platform/MediaSession.h"
#include "platform/NetworkWatch.h"
#include "platform/ProgramRunner.h"
#include "platform/RecordStore.h"
#include "platform/SecretStore.h"
#include "platform/UserDefaults.h"
#include "platform/calendar/EventStore.h"
#include "platform/files/Folders.h"
#include "platform/http/HTTPClient.h"
#include "platform/http/ResponseCache.h"
#include "platform/queues/DispatchQueue.h"
#include "screens/kit/PictureKey.h"
#include "sources/SourceHostTable.h"

#include <QString>
#include <QUrl>

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// The device and the data that the application runs on. Referenced objects must outlive the application.
struct ApplicationEnvironment {
    const Clock& clock;
    const Device& device;
    Folders folders;
    DispatchQueues& queues;
    UserDefaults& userDefaults;
    KeyValueStore& keyValueStore;
    /// Null when no counters are shared with other users.
    RecordStore* records = nullptr;
    /// Null when the stores cannot be chosen.
    SharedPlaceActions* sharedPlace = nullptr;
    BackgroundTasks& backgroundTasks;
    const ApplicationStateSource& applicationState;
    HTTPClient& httpClient;
    ResponseCache& responseCache;
    /// The normal capacity of the response cache, in bytes.
    std::size_t responseCacheCapacity = 0;
    /// Null when nothing reports that the device has got a network.
    NetworkWatch* networkWatch = nullptr;
    AudioSession& audioSession;
    Clipboard& clipboard;
    /// Null on a device that plays no streams: they are opened like pages of the web.
    MediaPlayers* mediaPlayers = nullptr;
    /// Null where there is none.
    MediaSession* mediaSession = nullptr;
    IdleInhibition* idleInhibition = nullptr;
    Promotion& promotion;
    /// Null on a device that runs no programs for the guide, or keeps no secrets: then the user adds no
    /// sources.
    ProgramRunner* programs = nullptr;
    SecretStore* secrets = nullptr;
    /// Null on a device without calendars: then there are no alarms.
    EventStore* eventStore = nullptr;
    /// Null where alarms cannot ring without the guide.
    AlarmRinging* alarmRinging = nullptr;
    /// Null where the program is not started by the device.
    BackgroundUpdates* backgroundUpdates = nullptr;
    /// Null when files of the user are only looked at when they are due.
    FileWatch* fileWatch = nullptr;

    SourceHostTable hosts;
    RandomIndex random;
    /// The catalogue's property list, the archive of its filtered form, and the folder of its icons.
    QString cataloguePath;
    QString catalogueArchivePath;
    QString iconFolder;
    /// The guide has nothing to show without a channel of the catalogue.
    bool needsCatalogue = false;
    /// The selection for a profile that has none yet.
    std::optional<std::vector<ObjectId>> firstSelection = {};
    /// The application's URL scheme; empty when it has none.
    QString scheme;

    /// Limits the pause between two attempts of a transfer.
    std::chrono::milliseconds longestPause = std::chrono::hours(1);

    /// Called on the main queue with whether a transfer is in progress. May be empty.
    std::function<void(bool visible)> networkActivityIndicator;
    /// Called on the main queue with the number of pending alarms. May be empty.
    std::function<void(int count)> applicationIconBadgeNumber;
    /// Opens an http or https URL in the user's default program. Main queue. May be empty.
    std::function<void(const QUrl& url)> openExternally;
    /// Whether the window draws pages of the web; otherwise they are opened externally.
    bool drawsWebPages = false;
    /// Brings the window to the front. May be empty.
    std::function<void()> raiseWindow = {};
    /// A picture that the window may have drawn is another one now. May be empty.
    std::function<void(const PictureKey& key)> pictureReplaced = {};
};

} // namespace guide
