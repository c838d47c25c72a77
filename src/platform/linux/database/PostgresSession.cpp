#include "platform/linux/database/PostgresSession.h"

#include "platform/linux/database/ServerReach.h"

#include <QDebug>
#include <QRandomGenerator>

#include <algorithm>
#include <poll.h>
#include <pthread.h>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kLongestCall = 40s;
// Finds dead connections, and changes where the server cannot announce them.
constexpr auto kLookInterval = 5min;
constexpr int kLooksPerGreeting = 12;

bool isRefusal(DatabaseFault fault) {
    switch (fault) {
    case DatabaseFault::Login:
    case DatabaseFault::NoPassword:
    case DatabaseFault::Rights:
    case DatabaseFault::Identity:
    case DatabaseFault::NoDatabase:
    case DatabaseFault::Schema:
        return true;
    default:
        return false;
    }
}

} // namespace

QString databaseSecretKey(const DatabaseAddress& address) {
    return u"database "_s + address.text();
}

/// What a connection needs and may have to be waited for. Outlives the session if it takes longer.
struct PostgresSession::Preparation {
    std::mutex guard;
    bool isReady = false;      // guarded
    QString password;          // guarded
    QList<QByteArray> numbers; // guarded
    DatabaseError error;       // guarded
    WakeUp ready;
};

PostgresSession::PostgresSession(PostgresSessionOptions options, SecretStore& secrets, DispatchQueues& queues)
    : m_options(std::move(options))
    , m_secrets(secrets)
    , m_queues(queues)
    , m_preparations(queues.makeQueue("database", QueueKind::Serial, QueuePriority::Background)) {}

PostgresSession::~PostgresSession() {
    m_isStopping = true;
    m_stop.wake();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void PostgresSession::start() {
    m_thread = std::thread([this] {
        pthread_setname_np(pthread_self(), "database");
        run();
        setPhase(Phase::NotConnected, SharedStoreConnection::Offline, {});
    });
}

void PostgresSession::retryNow() {
    {
        const std::lock_guard lock(m_guard);
        m_retriesNow = true;
    }
    m_wake.wake();
}

void PostgresSession::setPassword(const QString& password) {
    const std::lock_guard lock(m_guard);
    m_password = password;
}

void PostgresSession::setDeviceName(const QString& name) {
    {
        const std::lock_guard lock(m_guard);
        m_deviceName = name;
        m_isRenamed = true;
    }
    m_wake.wake();
}

bool PostgresSession::isConnected() const {
    const std::lock_guard lock(m_guard);
    return m_phase == Phase::Connected;
}

SharedStoreConnection PostgresSession::connection(QString& reason) const {
    const std::lock_guard lock(m_guard);
    const bool hasProblem = m_connection == SharedStoreConnection::Connected && !m_valueProblem.isEmpty();
    reason = hasProblem ? m_valueProblem : m_reason;
    return hasProblem ? SharedStoreConnection::Refused : m_connection;
}

void PostgresSession::setValueProblem(const QString& reason) {
    {
        const std::lock_guard lock(m_guard);
        if (m_valueProblem == reason) {
            return;
        }
        m_valueProblem = reason;
    }
    if (m_changed) {
        m_queues.mainQueue().async(m_changed);
    }
}

bool PostgresSession::setPhase(Phase phase, SharedStoreConnection connection, const QString& reason) {
    bool isChanged = false;
    {
        const std::lock_guard lock(m_guard);
        isChanged = m_connection != connection || m_reason != reason;
        m_phase = phase;
        m_connection = connection;
        m_reason = reason;
        if (phase == Phase::NotConnected) {
            for (const auto& job : m_jobs) {
                job->isDropped = true;
            }
            m_jobs.clear();
            m_jobsChanged.notify_all();
        }
    }
    if (isChanged && m_changed && !isStopping()) {
        m_queues.mainQueue().async(m_changed);
    }
    return isChanged;
}

PostgresSession::CallOutcome PostgresSession::call(std::function<void(PostgresConnection&)> function) {
    std::unique_lock lock(m_guard);
    if (m_phase == Phase::NotConnected) {
        return CallOutcome::NotConnected;
    }
    const auto job = std::make_shared<Job>(Job{std::move(function)});
    m_jobs.push_back(job);
    m_wake.wake();
    m_jobsChanged.wait_for(lock, kLongestCall, [&] { return job->isDone || job->isDropped; });
    return job->isDone ? CallOutcome::Done : CallOutcome::NotConnected;
}

void PostgresSession::runJobs(PostgresConnection& connection) {
    while (!connection.isLost()) {
        std::shared_ptr<Job> job;
        {
            const std::lock_guard lock(m_guard);
            if (m_jobs.empty()) {
                return;
            }
            job = std::move(m_jobs.front());
            m_jobs.pop_front();
        }
        job->function(connection);
        const std::lock_guard lock(m_guard);
        job->isDone = true;
        m_jobsChanged.notify_all();
    }
}

void PostgresSession::run() {
    std::chrono::milliseconds delay = m_options.firstRetry;
    while (!isStopping()) {
        DatabaseError error;
        if (const auto connection = connect(error); connection && greet(*connection, error)) {
            delay = m_options.firstRetry;
            setPhase(Phase::Connected, SharedStoreConnection::Connected, {});
            serve(*connection, error);
        }
        if (isStopping()) {
            return;
        }
        if (setPhase(Phase::NotConnected,
                     isRefusal(error.fault) ? SharedStoreConnection::Refused : SharedStoreConnection::Offline,
                     sentenceFor(error.fault))) {
            qInfo().noquote() << "The database:" << error.message;
        }
        // A refused password is not tried again and again.
        if (!waitToRetry(isRefusal(error.fault) ? m_options.longestRetry : delay)) {
            return;
        }
        delay = std::min(delay * 2, m_options.longestRetry);
    }
}

bool PostgresSession::waitToRetry(std::chrono::milliseconds delay) {
    // Guides that lost the same server do not return at the same moment.
    const double part = 0.5 + QRandomGenerator::system()->generateDouble() / 2;
    const auto until = std::chrono::steady_clock::now() +
                       std::chrono::duration_cast<std::chrono::milliseconds>(delay * part);
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(until - std::chrono::steady_clock::now());
        {
            const std::lock_guard lock(m_guard);
            if (std::exchange(m_retriesNow, false) || left.count() <= 0) {
                return !isStopping();
            }
        }
        pollfd polled[] = {{m_wake.descriptor(), POLLIN, 0}, {m_stop.descriptor(), POLLIN, 0}};
        ::poll(polled, std::size(polled), static_cast<int>(left.count()));
        m_wake.clear();
        if (isStopping()) {
            return false;
        }
    }
}

std::unique_ptr<PostgresConnection> PostgresSession::connect(DatabaseError& error) {
    const auto preparation = std::make_shared<Preparation>();
    std::optional<QString> known;
    {
        const std::lock_guard lock(m_guard);
        known = m_password;
    }
    m_preparations->async([preparation, known, address = m_options.address, &secrets = m_secrets] {
        const QString password =
            known ? *known : secrets.secret(databaseSecretKey(address)).value_or(QString());
        DatabaseError failure;
        const QList<QByteArray> numbers = numbersOf(address, failure);
        const std::lock_guard lock(preparation->guard);
        preparation->password = password;
        preparation->numbers = numbers;
        preparation->error = failure;
        preparation->isReady = true;
        preparation->ready.wake();
    });
    pollfd polled[] = {{preparation->ready.descriptor(), POLLIN, 0}, {m_stop.descriptor(), POLLIN, 0}};
    while (::poll(polled, std::size(polled), -1) < 0) {
    }
    if (isStopping()) {
        return nullptr;
    }
    const std::lock_guard lock(preparation->guard);
    if (preparation->numbers.isEmpty() && !m_options.address.isSocket()) {
        error = preparation->error;
        return nullptr;
    }
    return PostgresConnection::open(m_options.address, preparation->password, preparation->numbers, m_stop,
                                    error);
}

bool PostgresSession::isRenamed() const {
    const std::lock_guard lock(m_guard);
    return m_isRenamed;
}

bool PostgresSession::greet(PostgresConnection& connection, DatabaseError& error) {
    QByteArray name;
    {
        const std::lock_guard lock(m_guard);
        name = m_deviceName.toUtf8().replace('\0', ' ');
        m_isRenamed = false;
    }
    const DatabaseReply hello =
        connection.execute("select session, channel, value_bytes, key_bytes from guide.hello($1, $2)",
                           {DatabaseParameter(m_options.device), DatabaseParameter(name)});
    if (hello.error() || hello.rows() != 1) {
        error = hello.error().value_or(DatabaseError{.fault = DatabaseFault::Schema, .message = {}});
        return false;
    }
    const QByteArray channel = hello.text(0, 1);
    // An engine without notifications is looked at in intervals.
    const DatabaseReply listening =
        connection.execute("listen \"" + QByteArray(channel).replace('"', "\"\"") + '"');
    if (listening.error() && connection.isLost()) {
        error = *listening.error();
        return false;
    }
    for (const auto& client : m_clients) {
        client->connected(
            {.session = hello.id(0, 0), .valueBytes = hello.number(0, 2), .keyBytes = hello.number(0, 3)});
    }
    return true;
}

void PostgresSession::serve(PostgresConnection& connection, DatabaseError& error) {
    error = {.fault = DatabaseFault::Lost, .message = u"the connection was lost"_s};
    bool mayHaveChanged = true;
    int looks = 0;
    while (!isStopping() && !connection.isLost()) {
        if (isRenamed() && !greet(connection, error)) {
            return;
        }
        runJobs(connection);
        for (const auto& client : m_clients) {
            if (!connection.isLost()) {
                client->exchange(connection, mayHaveChanged);
            }
        }
        mayHaveChanged = connection.takeNotifications();
        if (mayHaveChanged || connection.isLost()) {
            continue;
        }
        pollfd polled[] = {{connection.descriptor(), POLLIN, 0},
                           {m_wake.descriptor(), POLLIN, 0},
                           {m_stop.descriptor(), POLLIN, 0}};
        constexpr auto kLongest = std::chrono::milliseconds(kLookInterval);
        const int ready = ::poll(polled, std::size(polled), static_cast<int>(kLongest.count()));
        if (polled[1].revents != 0) {
            m_wake.clear();
        }
        if (polled[0].revents != 0 && !connection.receive()) {
            return;
        }
        mayHaveChanged = connection.takeNotifications() || ready == 0;
        // So that other devices can see that this one is there.
        if (ready == 0 && ++looks % kLooksPerGreeting == 0 && !greet(connection, error)) {
            return;
        }
    }
}

} // namespace guide
