#pragma once

#include "app/Promotion.h"
#include "parsers/URLPlanner.h"
#include "platform/AudioSession.h"
#include "platform/BackgroundTasks.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/KeyValueStore.h"
#include "platform/LifeCycle.h"
#include "platform/UserDefaults.h"
#include "platform/files/Folders.h"
#include "platform/http/HTTPClient.h"
#include "platform/http/ResponseCache.h"
#include "platform/queues/DispatchQueue.h"
#include "sources/SourceHostTable.h"

#include <QString>
#include <QUrl>

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>

namespace guide {

/// The device and the data that the application is started on. What is referred to outlives the application.
struct ApplicationEnvironment {
    const Clock& clock;
    const Device& device;
    Folders folders;
    DispatchQueues& queues;
    UserDefaults& userDefaults;
    KeyValueStore& keyValueStore;
    BackgroundTasks& backgroundTasks;
    const ApplicationStateSource& applicationState;
    HTTPClient& httpClient;
    ResponseCache& responseCache;
    /// What the response cache holds in ordinary times, in bytes.
    std::size_t responseCacheCapacity = 0;
    AudioSession& audioSession;
    Promotion& promotion;

    SourceHostTable hosts;
    RandomIndex random;
    /// The catalogue's property list, where what the filter leaves of it is kept, and where its icons are.
    QString cataloguePath;
    QString catalogueArchivePath;
    QString iconFolder;
    /// A selection for a profile that has none yet.
    std::optional<QString> firstSelectionPath;
    /// The application's URL scheme; empty when it has none.
    QString scheme;

    /// Bounds the pauses between two attempts of a transfer.
    std::chrono::milliseconds longestPause = std::chrono::hours(1);

    /// Told on the main queue whether anything is being transferred. May be empty.
    std::function<void(bool visible)> networkActivityIndicator;
    /// Told on the main queue how many alarms are pending. May be empty.
    std::function<void(int count)> applicationIconBadgeNumber;
    /// Opens an http or https URL with what the person uses for it. Main queue. May be empty.
    std::function<void(const QUrl& url)> openExternally;
};

} // namespace guide
