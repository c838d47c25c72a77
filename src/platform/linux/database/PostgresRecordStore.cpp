#include "platform/linux/database/PostgresRecordStore.h"

#include "platform/linux/database/IncrementQueue.h"

#include <QDebug>

#include <algorithm>
#include <atomic>
#include <limits>

namespace guide {

using namespace std::chrono_literals;

namespace {

constexpr auto kPauseAfterTooMuch = 5min;

struct CounterRows {
    std::mutex guard;
    std::optional<std::vector<CounterRecord>> records; // guarded
};

/// Sends the increments of a batch in one statement.
DatabaseReply countBatch(PostgresConnection& connection, const QUuid& session,
                         const IncrementQueue::Batch& batch) {
    QList<QByteArray> titles;
    QList<QByteArray> amounts;
    QList<QByteArray> makes;
    QList<QByteArray> removes;
    for (const IncrementQueue::Increment& each : batch.increments) {
        titles.append(each.title.toUtf8());
        amounts.append(QByteArray::number(qint64{each.amount}));
        makes.append(each.rule.makesMissing ? "t" : "f");
        removes.append(each.rule.removesBelowOne ? "t" : "f");
    }
    return connection.execute("select guide.count_batch($1, $2, $3, $4, $5, $6)",
                              {DatabaseParameter(session), DatabaseParameter(batch.id),
                               DatabaseParameter::array(titles), DatabaseParameter::array(amounts),
                               DatabaseParameter::array(makes), DatabaseParameter::array(removes)});
}

} // namespace

class PostgresRecordStore::Sender final : public PostgresSession::Client,
                                          public std::enable_shared_from_this<Sender> {
  public:
    Sender(const QString& path, const QString& address, DispatchQueues& queues)
        : queue(path, address)
        , m_files(queues.makeQueue("databaseIncrements", QueueKind::Serial, QueuePriority::Background)) {}

    void connected(const DatabaseGreeting& greeting) override {
        m_sessionId = greeting.session;
        m_pauseUntil = {};
    }
    void exchange(PostgresConnection& connection, bool /*mayHaveChanged*/) override { send(connection); }

    /// Sends what is in the queue.
    void send(PostgresConnection& connection) {
        const bool isPaused = std::chrono::steady_clock::now() < m_pauseUntil;
        bool isHeldUp = isPaused;
        while (const std::optional<IncrementQueue::Batch> batch =
                   isPaused ? std::nullopt : queue.nextBatch()) {
            queue.saveIfInFile();
            const DatabaseReply reply = countBatch(connection, m_sessionId, *batch);
            if (!reply.error()) {
                queue.removeBatch();
                queue.saveIfInFile();
            } else if (connection.isLost()) {
                isHeldUp = true;
                break;
            } else if (reply.error()->fault == DatabaseFault::Later) {
                m_pauseUntil = std::chrono::steady_clock::now() + kPauseAfterTooMuch;
                isHeldUp = true;
                break;
            } else if (batch->increments.size() > 1) {
                queue.divideBatch();
            } else {
                qWarning().noquote() << "An increment is not accepted:" << reply.error()->message;
                queue.refuseBatch();
                queue.saveIfInFile();
            }
        }
        if (isHeldUp) {
            save();
        }
    }

    /// Saves soon; many changes at once.
    void save() {
        if (!m_isSaving.exchange(true)) {
            m_files->async([self = shared_from_this()] {
                self->m_isSaving = false;
                self->queue.save();
            });
        }
    }

    IncrementQueue queue;

  private:
    const std::shared_ptr<DispatchQueue> m_files;
    std::atomic<bool> m_isSaving = false;
    // Session's thread.
    QUuid m_sessionId;
    std::chrono::steady_clock::time_point m_pauseUntil;
};

PostgresRecordStore::PostgresRecordStore(std::shared_ptr<PostgresSession> session, const QString& queuePath,
                                         const QString& address, DispatchQueues& queues)
    : m_session(std::move(session))
    , m_sender(std::make_shared<Sender>(queuePath, address, queues)) {
    m_session->addClient(m_sender);
}

PostgresRecordStore::~PostgresRecordStore() {
    m_sender->queue.save();
}

std::function<void()> PostgresRecordStore::forgetting() const {
    return [sender = m_sender] { sender->queue.forget(); };
}

bool PostgresRecordStore::incrementCounter(const QString& title, std::int64_t amount,
                                           const CounterRule& rule) {
    // PostgreSQL has no texts with this character.
    if (title.contains(QChar(u'\0'))) {
        return false;
    }
    const std::optional<IncrementQueue::Ticket> ticket =
        m_sender->queue.add({.title = title, .amount = amount, .rule = rule});
    if (!ticket) {
        return false;
    }
    const bool isSent =
        m_session->isConnected() && m_session->call([sender = m_sender](PostgresConnection& connection) {
            sender->send(connection);
        }) == PostgresSession::CallOutcome::Done;
    if (!isSent) {
        m_sender->save();
    }
    return !m_sender->queue.wasRefused(*ticket);
}

bool PostgresRecordStore::setCounter(const QString& /*title*/, std::int64_t /*counter*/) {
    return false;
}

bool PostgresRecordStore::removeCounters(const std::vector<QString>& /*titles*/) {
    return true;
}

std::optional<CounterRecord> PostgresRecordStore::counter(const QString& title) {
    const auto rows = std::make_shared<CounterRows>();
    m_session->call([rows, title](PostgresConnection& connection) {
        const DatabaseReply reply = connection.execute(
            "select count, (extract(epoch from modified) * 1000)::bigint from guide.counter($1)",
            {DatabaseParameter(title.toUtf8())});
        if (!reply.error() && reply.rows() == 1) {
            const std::lock_guard lock(rows->guard);
            rows->records = {
                {title, reply.number(0, 0), Moment(std::chrono::milliseconds(reply.number(0, 1)))}};
        }
    });
    const std::lock_guard lock(rows->guard);
    return rows->records ? std::optional(rows->records->front()) : std::nullopt;
}

std::optional<std::vector<CounterRecord>> PostgresRecordStore::countersByModification(std::size_t limit) {
    const auto rows = std::make_shared<CounterRows>();
    m_session->call([rows, limit](PostgresConnection& connection) {
        const auto most = std::min<std::uint64_t>(limit, std::numeric_limits<std::int64_t>::max());
        const DatabaseReply reply =
            connection.execute("select title, count, (extract(epoch from modified) * 1000)::bigint "
                               "from guide.popular_counters($1)",
                               {DatabaseParameter(QByteArray::number(static_cast<quint64>(most)))});
        if (reply.error()) {
            return;
        }
        std::vector<CounterRecord> records;
        records.reserve(static_cast<std::size_t>(reply.rows()));
        for (int row = 0; row < reply.rows(); ++row) {
            records.push_back({QString::fromUtf8(reply.text(row, 0)), reply.number(row, 1),
                               Moment(std::chrono::milliseconds(reply.number(row, 2)))});
        }
        const std::lock_guard lock(rows->guard);
        rows->records = std::move(records);
    });
    const std::lock_guard lock(rows->guard);
    return std::move(rows->records);
}

} // namespace guide
