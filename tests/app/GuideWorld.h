#pragma once

#include "app/QuellinGuideAppDelegate.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/ScriptedServer.h"
#include "platform/linux/CurlHTTPClient.h"
#include "platform/linux/LinuxAudioSession.h"
#include "platform/memory/MemoryKeyValueStore.h"
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

/// Real transfers that soon give up on the paths of which no answer is expected, and never on others.
class ImpatientHTTPClient final : public HTTPClient {
  public:
    /// The paths change only while nothing is transferred.
    ImpatientHTTPClient(HTTPClient& client, const QByteArrayList& hopelessPaths)
        : m_client(client)
        , m_hopelessPaths(hopelessPaths) {}

    using HTTPClient::perform;
    TransferResult perform(const HTTPRequest& request, const TakePiece& takePiece) override {
        HTTPRequest hasty = request;
        hasty.timeout = m_hopelessPaths.contains(request.url.path().toLatin1())
                            ? std::chrono::milliseconds(750)
                            : kPatience;
        hasty.resourceTimeout = hasty.timeout * 2;
        return m_client.perform(hasty, takePiece);
    }
    void removeCachedResponse(const HTTPRequest& request) override { m_client.removeCachedResponse(request); }
    void cancelAll() override { m_client.cancelAll(); }

  private:
    static constexpr std::chrono::milliseconds kPatience{30'000};

    HTTPClient& m_client;
    const QByteArrayList& m_hopelessPaths;
};

/// The whole guide without its window: real queues, real transfers from a server on loopback, real files;
/// only the clock, the settings and the facts of the device are the test's. The test's thread is the main
/// thread.
class GuideWorld {
  public:
    /// Two channels, "first" and "second", each with the sources /KEY-1.xml and /KEY-2.xml.
    GuideWorld();
    /// A channel for each of the source ids, in which "%1" stands for the server's host and port. All are
    /// selected; channels are counted from 1.
    explicit GuideWorld(const QStringList& sources);
    ~GuideWorld();

    static ObjectId channel(int number);
    /// "first" is 1, "second" is 2.
    static ObjectId channel(const QString& key);
    static QByteArray feedPath(const QString& key, int source);

    /// A feed with so many hour-long shows from now on, of this title with a number behind it.
    QByteArray feed(const QString& title, int count) const;
    void serve(const QString& key, int source, const QByteArray& feed);

    /// Starts the guide in this world's folders; at most one at a time.
    void start();
    /// Ends it as the program's end does.
    void end();

    /// Runs the main queue until the condition holds; false when ten seconds were not enough.
    bool runUntil(const std::function<bool()>& condition);
    /// Runs a check, and what it hands to the main queue, to its end.
    bool check();
    /// Waits until a check has begun, without running the main queue.
    void waitForCheck() const;
    /// The titles that the store has of a channel now.
    QStringList titles(const QString& key);
    /// All that the store has of a channel now, with the starts.
    std::vector<std::pair<Moment, QString>> shows(const ObjectId& channel);

    SharedClock clock;
    FakeDevice device;
    MemoryUserDefaults userDefaults;
    MemoryKeyValueStore keyValueStore;
    FakeApplicationState state;
    std::unique_ptr<ScriptedServer> server = std::make_unique<ScriptedServer>();
    std::unique_ptr<QuellinGuideAppDelegate> guide;
    Folders folders;
    SourceHostTable hosts;
    /// Paths whose transfers may be given up soon.
    QByteArrayList hopelessPaths;

  private:
    void furnish(const std::vector<QStringList>& sources);
    void wake();

    QTemporaryDir m_folder;
    std::mutex m_mutex;
    std::condition_variable m_woken;
    bool m_awake = false;
    std::unique_ptr<FakeBackgroundTasks> m_tasks;
    LinuxAudioSession m_audio;
    Promotion m_promotion;
    std::unique_ptr<ThreadedQueues> m_queues;
    std::unique_ptr<ResponseCache> m_cache;
    std::unique_ptr<CurlHTTPClient> m_curl;
    std::unique_ptr<ImpatientHTTPClient> m_client;
};

} // namespace guide
