#pragma once

#include "platform/Clock.h"
#include "platform/KeyValueStore.h"
#include "platform/SharedStoreState.h"
#include "platform/linux/SharedValues.h"
#include "platform/linux/database/PostgresSession.h"

#include <memory>

namespace guide {

/// The values of a user in a PostgreSQL database. Reads are answered from memory. Changes apply at once on
/// this device and are sent as soon as there is a connection; the last change that arrives at the database
/// wins.
class PostgresKeyValueStore final : public KeyValueStore, public SharedStore {
  public:
    /// Adds itself to the session, which must not have been started. The clock must outlive the session.
    PostgresKeyValueStore(std::shared_ptr<PostgresSession> session, std::shared_ptr<SharedValues> values,
                          const Clock& clock, DispatchQueues& queues);
    ~PostgresKeyValueStore() override;

    std::optional<QCborValue> valueForKey(const QString& key) const override;
    /// False for a value that cannot be expressed or that the database is known to refuse.
    bool setValue(const QString& key, const QCborValue& value) override;
    void removeKey(const QString& key) override;
    bool setMissingValue(const QString& key, const QCborValue& value) override;
    bool flush() override { return m_values->save(); }
    void setObserver(KeyValueStoreObserver* observer) override;

    SharedStoreState sharedState() const override;
    void setStateObserver(std::function<void()> changed) override;

  private:
    bool set(const QString& key, const QCborValue& value, SharedValues::Yields yields);

    class Exchange;
    struct Observers;

    const std::shared_ptr<Observers> m_observers;
    const std::shared_ptr<SharedValues> m_values;
    const std::shared_ptr<PostgresSession> m_session;
    const std::shared_ptr<Exchange> m_exchange;
};

} // namespace guide
