#pragma once

#include "app/QuellinGuideAppDelegate.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/FakeNetworkWatch.h"
#include "fakes/ScriptedServer.h"
#include "platform/linux/CurlHTTPClient.h"
#include "platform/linux/LinuxAudioSession.h"
#include "platform/linux/SpawnedProgramRunner.h"
#include "platform/memory/MemoryClipboard.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemorySecretStore.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "platform/queues/ThreadedQueues.h"

#include <QString>
#include <QTemporaryDir>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace guide {

/// A clock that other threads may read while the test moves it.
class SharedClock final : public Clock {
  public:
    Moment now() const override { return Moment(std::chrono::milliseconds(m_now.load())); }
    void advance(std::chrono::milliseconds span) { m_now += span.count(); }

  private:
    std::atomic<std::int64_t> m_now{1'798'700'000'000};
};

/// Real transfers with a short timeout for paths that will not answer and a long one for the others.
class ImpatientHTTPClient final : public HTTPClient {
  public:
    /// The list of paths must not change during a transfer.
    ImpatientHTTPClient(HTTPClient& client, const QByteArrayList& silentPaths)
        : m_client(client)
        , m_silentPaths(silentPaths) {}

    using HTTPClient::perform;
    TransferResult perform(const HTTPRequest& request, const TakePiece& takePiece) override {
        HTTPRequest hasty = request;
        hasty.timeout = m_silentPaths.contains(request.url.path().toLatin1()) ? std::chrono::milliseconds(750)
                                                                              : kPatience;
        hasty.resourceTimeout = hasty.timeout * 2;
        return m_client.perform(hasty, takePiece);
    }
    void removeCachedResponse(const HTTPRequest& request) override { m_client.removeCachedResponse(request); }
    void cancelAll() override { m_client.cancelAll(); }

  private:
    static constexpr std::chrono::milliseconds kPatience{30'000};

    HTTPClient& m_client;
    const QByteArrayList& m_silentPaths;
};

/// The whole guide without its window, on real queues, files and transfers from a server on loopback. Only
/// the clock, the settings and the device are faked. The test's thread is the main thread.
class GuideWorld {
  public:
    /// Two channels, "first" and "second", each with the sources /KEY-1.xml and /KEY-2.xml.
    GuideWorld();
    /// One selected channel for each source id, numbered from 1. "%1" is replaced by the server's host and
    /// port.
    explicit GuideWorld(const QStringList& sources);
    ~GuideWorld();

    static ObjectId channel(int number);
    /// "first" is 1, "second" is 2.
    static ObjectId channel(const QString& key);
    static QByteArray feedPath(const QString& key, int source);

    /// A feed with `count` shows of one hour from now on, titled "title 0", "title 1", ...
    QByteArray feed(const QString& title, int count) const;
    void serve(const QString& key, int source, const QByteArray& feed);

    /// Starts the guide in this world's folders; at most one at a time.
    void start();
    /// Shuts the guide down as the program does.
    void end();

    /// Runs the main queue for that long.
    void runFor(std::chrono::milliseconds span);
    /// Runs the main queue until the condition holds; false after 60 seconds.
    bool runUntil(const std::function<bool()>& condition);
    /// Runs a check and its blocks on the main queue to the end.
    bool check();
    /// Waits until a check has started, without running the main queue.
    void waitForCheck() const;
    /// The titles in the store for a channel.
    QStringList titles(const QString& key);
    /// The starts and titles in the store for a channel.
    std::vector<std::pair<Moment, QString>> shows(const ObjectId& channel);

    SharedClock clock;
    FakeDevice device;
    MemoryUserDefaults userDefaults;
    MemoryKeyValueStore keyValueStore;
    FakeApplicationState state;
    FakeNetworkWatch networkWatch;
    MemorySecretStore secrets;
    std::unique_ptr<ScriptedServer> server = std::make_unique<ScriptedServer>();
    std::unique_ptr<QuellinGuideAppDelegate> guide;
    Folders folders;
    SourceHostTable hosts;
    /// The selection for the first start: every channel, in order.
    std::vector<ObjectId> firstSelection;
    /// When set before start(), replaces the guide's queues.
    std::function<DispatchQueues&(DispatchQueues& queues)> adaptQueues = {};
    /// When set before start(), the calendars of the device; there are none otherwise.
    EventStore* eventStore = nullptr;
    /// When set before start(), what rings the alarms.
    AlarmRinging* alarmRinging = nullptr;
    /// When set before start(), counters that are shared with others.
    RecordStore* records = nullptr;
    /// Paths that will not answer.
    QByteArrayList silentPaths;
    /// What the guide has given to other programs.
    std::vector<QUrl> openedExternally;

  private:
    void fillProfile(const std::vector<QStringList>& sources);
    void wake();

    QTemporaryDir m_folder;
    std::mutex m_mutex;
    std::condition_variable m_woken;
    bool m_awake = false;
    std::unique_ptr<FakeBackgroundTasks> m_tasks;
    LinuxAudioSession m_audio;
    MemoryClipboard m_clipboard;
    Promotion m_promotion;
    SpawnedProgramRunner m_programs{std::chrono::milliseconds(200)};
    std::unique_ptr<ThreadedQueues> m_queues;
    std::unique_ptr<ResponseCache> m_cache;
    std::unique_ptr<CurlHTTPClient> m_curl;
    std::unique_ptr<ImpatientHTTPClient> m_client;
};

} // namespace guide
