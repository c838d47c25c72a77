#pragma once

#include "platform/Clock.h"
#include "platform/SecretStore.h"
#include "platform/SharedStoreState.h"
#include "platform/linux/database/PostgresConnection.h"
#include "platform/queues/DispatchQueue.h"

#include <QUuid>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace guide {

/// What the database told a new connection.
struct DatabaseGreeting {
    /// Names the connection in statements that change something.
    QUuid session;
    qsizetype valueBytes = 0;
    qsizetype keyBytes = 0;
};

struct PostgresSessionOptions {
    DatabaseAddress address;
    /// Stays the same on this device.
    QUuid device;
    QString deviceName;
    /// The delay before the first attempt to connect again. It doubles up to the longest one.
    std::chrono::milliseconds firstRetry{500};
    std::chrono::milliseconds longestRetry{60'000};
};

/// One connection to a database, shared by the stores on it, and the thread that keeps it: it connects again
/// after a loss, and tells the client to catch up. Any thread.
class PostgresSession {
  public:
    /// Called on the session's thread.
    class Client {
      public:
        virtual ~Client() = default;
        /// After each connection, before anything else.
        virtual void connected(const DatabaseGreeting& greeting) = 0;
        /// Sends what is to be sent. `mayHaveChanged` asks to look for changes by other devices; after a new
        /// connection it is always set. A lost connection ends the call.
        virtual void exchange(PostgresConnection& connection, bool mayHaveChanged) = 0;
    };
    enum class CallOutcome { Done, NotConnected };

    /// The secrets must outlive the queues.
    PostgresSession(PostgresSessionOptions options, SecretStore& secrets, DispatchQueues& queues);
    PostgresSession(const PostgresSession&) = delete;
    PostgresSession& operator=(const PostgresSession&) = delete;
    /// Waits for nothing but the thread, which ends at once.
    ~PostgresSession();

    /// Before start().
    void addClient(std::shared_ptr<Client> client) { m_clients.push_back(std::move(client)); }
    void start();

    /// There is something to send.
    void wake() { m_wake.wake(); }
    /// Ends the delay before the next attempt, such as when a network appears.
    void retryNow();
    bool isConnected() const;
    /// From the next connection on, instead of the one of the address or of the secrets.
    void setPassword(const QString& password);
    /// What other devices call this one, from its next change on.
    void setDeviceName(const QString& name);

    /// Runs the function on the session's thread and waits for it, or returns at once when there is no
    /// connection; waits for the first attempt to connect. When the function takes too long it may run later
    /// than the call returns, so it must own what it uses.
    CallOutcome call(std::function<void(PostgresConnection&)> function);

    SharedStoreConnection connection(QString& reason) const;
    /// `changed` is called on the main thread, perhaps after the session is gone, when the answer of
    /// connection() has changed. Before start().
    void onConnectionChange(Block changed) { m_changed = std::move(changed); }
    /// What keeps one of the values from being stored, or empty. Session's thread.
    void setValueProblem(const QString& reason);

  private:
    struct Job {
        std::function<void(PostgresConnection&)> function;
        bool isDone = false;
        bool isDropped = false;
    };
    struct Preparation;
    enum class Phase { FirstAttempt, Connected, NotConnected };

    void run();
    std::unique_ptr<PostgresConnection> connect(DatabaseError& error);
    /// Until the connection is lost.
    void serve(PostgresConnection& connection, DatabaseError& error);
    bool greet(PostgresConnection& connection, DatabaseError& error);
    bool isRenamed() const;
    void runJobs(PostgresConnection& connection);
    /// False when the session ends.
    bool waitToRetry(std::chrono::milliseconds delay);
    /// Whether the connection or the reason changed.
    bool setPhase(Phase phase, SharedStoreConnection connection, const QString& reason);
    bool isStopping() const { return m_isStopping.load(); }

    const PostgresSessionOptions m_options;
    SecretStore& m_secrets;
    DispatchQueues& m_queues;
    const std::shared_ptr<DispatchQueue> m_preparations;
    std::vector<std::shared_ptr<Client>> m_clients;
    Block m_changed;

    const WakeUp m_wake;
    const WakeUp m_stop;
    std::atomic<bool> m_isStopping = false;

    mutable std::mutex m_guard;
    std::condition_variable m_jobsChanged;
    // guarded
    std::deque<std::shared_ptr<Job>> m_jobs;
    Phase m_phase = Phase::FirstAttempt;
    SharedStoreConnection m_connection = SharedStoreConnection::Offline;
    QString m_reason;
    QString m_valueProblem;
    bool m_retriesNow = false;
    std::optional<QString> m_password = m_options.address.password;
    QString m_deviceName = m_options.deviceName;
    bool m_isRenamed = false;

    std::thread m_thread;
};

/// The key of the password in the store of secrets.
QString databaseSecretKey(const DatabaseAddress& address);

} // namespace guide
