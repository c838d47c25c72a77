#pragma once

#include "cloud/SharedPlaceActions.h"
#include "platform/Clock.h"
#include "platform/SecretStore.h"
#include "platform/SwitchedKeyValueStore.h"
#include "platform/SwitchedRecordStore.h"
#include "platform/UserDefaults.h"
#include "platform/files/Folders.h"
#include "platform/linux/database/DatabaseAddress.h"
#include "platform/queues/DispatchQueue.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace guide {

class WakeUp;

/// The stores that the guide shares with the user's other devices and with other users: the folder of the
/// profile, another folder or a database, as the user has chosen. Main thread; the stores, any.
class SharedStoresChoice final : public SharedPlaceActions {
  public:
    /// All of them must outlive the stores, `secrets` also the queues.
    struct Environment {
        const Folders& folders;
        UserDefaults& userDefaults;
        const Clock& clock;
        SecretStore& secrets;
        DispatchQueues& queues;
    };

    explicit SharedStoresChoice(Environment environment);
    SharedStoresChoice(const SharedStoresChoice&) = delete;
    SharedStoresChoice& operator=(const SharedStoresChoice&) = delete;
    ~SharedStoresChoice() override;

    KeyValueStore& keyValueStore() { return *m_keyValueStore; }
    RecordStore& records() { return m_records; }

    SharedPlace place() const override;
    /// A folder or database is waited for, at most half a minute.
    void choose(const QString& address, MainBlock<QString> mainBlock) override;
    void createFolder(const QString& path, MainBlock<QString> mainBlock) override;
    void setDeviceName(const QString& name) override;
    void retryNow() override;
    /// Waits until a folder has what this device changed, and ends what waits for a server. Before the queues
    /// end.
    void finish(std::chrono::milliseconds atMost) const;
    void setObserver(std::weak_ptr<const void> owner, std::function<void()> changed) override {
        m_observer = std::move(owner);
        m_changed = std::move(changed);
    }

  private:
    struct Stores {
        QString address = {};
        /// As the user entered it, with a password that is not kept yet.
        QString entered = {};
        /// Of this device, as the stores use it.
        QString deviceName = {};
        std::shared_ptr<KeyValueStore> keyValueStore = {};
        /// Null when no counters are shared.
        std::shared_ptr<RecordStore> records = {};
        /// Part of the key-value store.
        SharedStore* shared = nullptr;
        std::function<void()> retryNow = {};
        std::function<void(const QString&)> setPassword = {};
        std::function<void(const QString&)> setDeviceName = {};
        /// Waits, not longer, until the place has what this device changed; empty for those that know later.
        std::function<void(std::chrono::milliseconds)> finish = {};
        /// Leaves nothing of the values of the place in the profile. Writes; not on the main thread.
        std::function<void(bool wasUsed)> forget = {};
    };
    /// A choice that is being made.
    struct Choice {
        Stores stores;
        MainBlock<QString> answer;
        /// The stores are being used, or given up.
        bool isDecided = false;
    };

    Stores folderStores(const QString& address, bool joins) const;
    Stores databaseStores(const QString& address, bool joins, QString& why) const;
    QString deviceName() const;
    /// Where the stores still have another one.
    void useDeviceName();
    /// Asks where a disk may never answer: after half a minute, that is the answer.
    void askDisk(std::function<QString()> question, std::function<void(QString)> answered) const;
    void chooseFolder(const QString& path, MainBlock<QString> mainBlock);
    void stay(const std::optional<DatabaseAddress>& database, const QString& entered,
              MainBlock<QString> answer);
    void tryStores(Stores stores, QString why, MainBlock<QString> answer);
    /// Goes on when the state of the stores tells whether they can be used.
    void look();
    void move();
    void moved(const std::optional<QStringList>& differing, const QString& why);
    /// Leaves nothing of a place in the profile that is no longer used. Not on the main thread.
    void forget(const Stores& left) const;
    void end(const QString& why);
    void answerChoice(const QString& why);
    void adopt(Stores stores);
    void tellChanged() const;

    const Environment m_environment;
    const std::shared_ptr<DispatchQueue> m_queue;
    Stores m_current;
    std::shared_ptr<SwitchedKeyValueStore> m_keyValueStore;
    SwitchedRecordStore m_records;
    std::shared_ptr<Choice> m_choice;
    std::weak_ptr<const void> m_observer;
    std::function<void()> m_changed;
    /// Ends what waits for a server.
    const std::shared_ptr<const WakeUp> m_stop;
    const std::shared_ptr<char> m_alive = std::make_shared<char>();
};

} // namespace guide
