#pragma once

#include "platform/linux/EventLoopQueues.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/database/SharedStores.h"
#include "platform/memory/MemorySecretStore.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace guide::test {

/// The application object and the queues that the stores need.
class TestLoop {
  private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    const QCoreApplication m_application{m_count, m_arguments};

  public:
    EventLoopQueues queues;
    LinuxClock clock;
    MemorySecretStore secrets;

    ~TestLoop() {
        queues.shutDown();
        // What ended on another thread.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

/// The stores of one device, and what they announce.
class TestGuide final : public KeyValueStoreObserver {
  public:
    TestGuide(TestLoop& loop, const QString& address, const QString& name)
        : m_loop(loop)
        , m_address(address)
        , m_name(name) {
        start();
    }

    /// Ends the guide, and starts it with the same profile.
    void restart() {
        stores = {};
        start();
    }
    void end() { stores = {}; }

    KeyValueStore& values() { return *stores.keyValueStore; }
    RecordStore& records() { return *stores.recordStore; }
    SharedStoreState state() const { return stores.state->sharedState(); }
    std::optional<QCborValue> value(const char* key) {
        return values().valueForKey(QString::fromLatin1(key));
    }
    bool set(const char* key, const QCborValue& value) {
        return values().setValue(QString::fromLatin1(key), value);
    }

    /// Runs the event loop until then; false after half a minute.
    static bool waitFor(const std::function<bool()>& done) { return QTest::qWaitFor(done, 30'000); }
    bool waitForConnection(SharedStoreConnection connection = SharedStoreConnection::Connected) {
        return waitFor([&] { return state().connection == connection; });
    }
    bool waitForValue(const char* key, const std::optional<QCborValue>& expected) {
        return waitFor([&] { return value(key) == expected; });
    }

    void valuesChangedExternally(const QStringList& keys) override { announced.append(keys); }

    const QTemporaryDir profile;
    SharedStores stores;
    QStringList announced;

  private:
    void start() {
        QString why;
        stores = sharedStoresFor(m_address,
                                 {.folder = profile.path(),
                                  .deviceName = m_name,
                                  .firstRetry = std::chrono::milliseconds(20),
                                  .longestRetry = std::chrono::milliseconds(200)},
                                 m_loop.clock, m_loop.secrets, m_loop.queues, why);
        EXPECT_TRUE(stores.keyValueStore) << why.toStdString();
        stores.keyValueStore->setObserver(this);
    }

    TestLoop& m_loop;
    const QString m_address;
    const QString m_name;
};

} // namespace guide::test
