#include "platform/linux/database/PostgresKeyValueStore.h"

#include <QDebug>

#include <atomic>
#include <chrono>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kPauseAfterTooMuch = 5min;
// Until the database has told its limits.
constexpr qsizetype kUsualValueBytes = 4 << 20;
constexpr qsizetype kUsualKeyBytes = 200;

} // namespace

/// Main thread.
struct PostgresKeyValueStore::Observers {
    KeyValueStoreObserver* values = nullptr;
    std::function<void()> state;
};

/// Exchanges the values with the database. Owned by store and session.
class PostgresKeyValueStore::Exchange final : public PostgresSession::Client,
                                              public std::enable_shared_from_this<Exchange> {
  public:
    Exchange(PostgresSession& session, std::shared_ptr<SharedValues> values,
             const std::shared_ptr<Observers>& observers, const Clock& clock, DispatchQueues& queues)
        : m_session(session)
        , m_values(std::move(values))
        , m_observers(observers)
        , m_clock(clock)
        , m_queues(queues) {}

    void connected(const DatabaseGreeting& greeting) override {
        m_sessionId = greeting.session;
        m_valueBytes = greeting.valueBytes;
        m_keyBytes = greeting.keyBytes;
        // The announcement of the last change may have been lost with the connection or with the guide.
        m_hasToAnnounce = true;
        // The limits may have been raised.
        m_values->sendAll();
        // Nothing is sent under a name that the next start would not know.
        m_values->save();
    }

    /// Changes of this device first: they were made without knowing of any that arrived meanwhile.
    void exchange(PostgresConnection& connection, bool mayHaveChanged) override {
        send(connection);
        if (mayHaveChanged && !connection.isLost()) {
            readOthers(connection);
            read(connection);
            // Reading shows which values give way.
            if (!connection.isLost() && !m_values->changesToSend().empty()) {
                send(connection);
            }
            if (!connection.isLost() && !m_isRead.exchange(true)) {
                tellState();
            }
        }
        m_values->saveSoon();
    }

    bool isRead() const { return m_isRead; }

    /// PostgreSQL has no texts with a zero.
    bool accepts(const QString& key) const {
        return key.toUtf8().size() <= m_keyBytes && !key.contains(QChar(u'\0'));
    }
    qsizetype valueBytes() const { return m_valueBytes; }

  private:
    void send(PostgresConnection& connection) {
        for (const SharedValues::Change& change : m_values->changesToSend()) {
            // After a crash, only the last change may be sent again: the database recognises that one.
            m_values->save();
            const DatabaseReply reply = connection.execute(
                "select guide.set_value($1, $2, $3, $4)",
                {DatabaseParameter(m_sessionId), DatabaseParameter(change.write),
                 DatabaseParameter(change.key.toUtf8()),
                 change.bytes ? DatabaseParameter(*change.bytes, true) : DatabaseParameter()});
            if (connection.isLost()) {
                return;
            }
            if (!reply.error()) {
                const QUuid stored = reply.isNull(0, 0) ? QUuid() : reply.id(0, 0);
                m_hasToAnnounce = m_hasToAnnounce || stored == change.write || !change.bytes;
                m_values->sent(change, stored);
                m_values->save();
                continue;
            }
            qWarning().noquote() << "The value of" << change.key
                                 << "is not shared:" << reply.error()->message;
            const bool isLater = reply.error()->fault == DatabaseFault::Later;
            m_problem = isLater ? u"The database takes no more changes for now; they are sent later."_s
                                : u"The database refuses a value because it is too large."_s;
            m_values->holdBack(change, isLater ? std::chrono::steady_clock::now() + kPauseAfterTooMuch
                                               : std::chrono::steady_clock::time_point::max());
        }
        m_session.setValueProblem(m_values->holdsBack() ? m_problem : QString());
        if (m_hasToAnnounce && !connection.execute("select guide.announce()").error()) {
            m_hasToAnnounce = false;
        }
    }

    void read(PostgresConnection& connection) {
        const DatabaseReply keys = connection.execute("select key, write from guide.user_values");
        if (keys.error()) {
            return;
        }
        std::vector<SharedValues::StoredKey> stored;
        stored.reserve(static_cast<std::size_t>(keys.rows()));
        for (int row = 0; row < keys.rows(); ++row) {
            stored.push_back({QString::fromUtf8(keys.text(row, 0)), keys.id(row, 1)});
        }
        QStringList toRead;
        QStringList changed = m_values->compare(stored, toRead);
        for (const QString& key : toRead) {
            const DatabaseReply value =
                connection.execute("select value, write from guide.user_values where key = $1",
                                   {DatabaseParameter(key.toUtf8())});
            if (value.error()) {
                break;
            }
            if (value.rows() == 1 && m_values->receive({key, value.id(0, 1)}, value.bytes(0, 0))) {
                changed.append(key);
            }
        }
        if (changed.isEmpty()) {
            return;
        }
        // Before the profile takes over what was read: a guide that finds a list in its files but not here
        // would share that list, however old.
        m_values->save();
        m_queues.mainQueue().async([weak = m_observers, changed] {
            if (const auto observers = weak.lock(); observers && observers->values != nullptr) {
                observers->values->valuesChangedExternally(changed);
            }
        });
    }

    void readOthers(PostgresConnection& connection) {
        // The time since then, because the clocks may differ.
        const DatabaseReply reply =
            connection.execute("select (extract(epoch from clock_timestamp() - max(seen)) * 1000)::bigint, "
                               "(array_agg(name order by wrote desc) filter (where wrote is not null))[1] "
                               "from guide.devices where device <> $1",
                               {DatabaseParameter(m_values->device())});
        if (reply.error() || reply.rows() != 1) {
            return;
        }
        SharedValues::Others others;
        if (!reply.isNull(0, 0)) {
            others.lastSeen = m_clock.now() - std::chrono::milliseconds(reply.number(0, 0));
        }
        others.lastWriter = QString::fromUtf8(reply.text(0, 1));
        const SharedValues::Others before = m_values->others();
        const bool isSame = before.lastSeen && others.lastSeen
                                ? std::chrono::abs(*before.lastSeen - *others.lastSeen) < 1s
                                : before.lastSeen == others.lastSeen;
        if (isSame && before.lastWriter == others.lastWriter) {
            return;
        }
        m_values->setOthers(others);
        tellState();
    }

    void tellState() const {
        m_queues.mainQueue().async([weak = m_observers] {
            if (const auto observers = weak.lock(); observers && observers->state) {
                observers->state();
            }
        });
    }

    PostgresSession& m_session;
    const std::shared_ptr<SharedValues> m_values;
    const std::weak_ptr<Observers> m_observers;
    const Clock& m_clock;
    DispatchQueues& m_queues;
    std::atomic<bool> m_isRead = false;
    std::atomic<qsizetype> m_valueBytes = kUsualValueBytes;
    std::atomic<qsizetype> m_keyBytes = kUsualKeyBytes;
    // Session's thread.
    QUuid m_sessionId;
    QString m_problem;
    bool m_hasToAnnounce = true;
};

PostgresKeyValueStore::PostgresKeyValueStore(std::shared_ptr<PostgresSession> session,
                                             std::shared_ptr<SharedValues> values, const Clock& clock,
                                             DispatchQueues& queues)
    : m_observers(std::make_shared<Observers>())
    , m_values(std::move(values))
    , m_session(std::move(session))
    , m_exchange(std::make_shared<Exchange>(*m_session, m_values, m_observers, clock, queues)) {
    m_session->addClient(m_exchange);
    m_session->onConnectionChange([weak = std::weak_ptr(m_observers)] {
        if (const auto observers = weak.lock(); observers && observers->state) {
            observers->state();
        }
    });
}

PostgresKeyValueStore::~PostgresKeyValueStore() {
    m_values->save();
}

std::optional<QCborValue> PostgresKeyValueStore::valueForKey(const QString& key) const {
    return m_values->value(key);
}

bool PostgresKeyValueStore::setValue(const QString& key, const QCborValue& value) {
    return set(key, value, SharedValues::Yields::No);
}

bool PostgresKeyValueStore::setMissingValue(const QString& key, const QCborValue& value) {
    return valueForKey(key) ||
           set(key, value, m_exchange->isRead() ? SharedValues::Yields::No : SharedValues::Yields::Yes);
}

bool PostgresKeyValueStore::set(const QString& key, const QCborValue& value, SharedValues::Yields yields) {
    if (!m_exchange->accepts(key)) {
        return false;
    }
    switch (m_values->set(key, value, m_exchange->valueBytes(), yields)) {
    case SharedValues::SetOutcome::Refused:
        return false;
    case SharedValues::SetOutcome::Same:
        return true;
    case SharedValues::SetOutcome::Changed:
        break;
    }
    m_values->saveSoon();
    m_session->wake();
    return true;
}

void PostgresKeyValueStore::removeKey(const QString& key) {
    if (m_values->remove(key)) {
        m_values->saveSoon();
        m_session->wake();
    }
}

void PostgresKeyValueStore::setObserver(KeyValueStoreObserver* observer) {
    m_observers->values = observer;
}

SharedStoreState PostgresKeyValueStore::sharedState() const {
    SharedStoreState state;
    state.connection = m_session->connection(state.reason);
    state.isRead = m_exchange->isRead();
    const SharedValues::Others others = m_values->others();
    state.lastSeen = others.lastSeen;
    state.device = others.lastWriter;
    return state;
}

void PostgresKeyValueStore::setStateObserver(std::function<void()> changed) {
    m_observers->state = std::move(changed);
}

} // namespace guide
