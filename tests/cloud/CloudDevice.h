#pragma once

#include "cloud/CloudSync.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/FakeShowSources.h"
#include "fakes/ManualQueues.h"
#include "platform/memory/MemoryUserDefaults.h"

#include <QMap>
#include <QTemporaryDir>

#include <vector>

namespace guide::test {

using namespace Qt::StringLiterals;

class SharedStore;

/// The values of all devices.
struct SharedValues {
    QMap<QString, QCborValue> values;
    std::vector<SharedStore*> stores;
    int writes = 0;
};

/// One device's view of the values; a change is announced to the others.
class SharedStore final : public KeyValueStore {
  public:
    explicit SharedStore(SharedValues& shared)
        : m_shared(shared) {
        shared.stores.push_back(this);
    }
    ~SharedStore() override { std::erase(m_shared.stores, this); }

    std::optional<QCborValue> valueForKey(const QString& key) const override {
        const auto found = m_shared.values.constFind(key);
        return found == m_shared.values.cend() ? std::nullopt : std::optional(*found);
    }
    bool setValue(const QString& key, const QCborValue& value) override {
        if (refuses) {
            return false;
        }
        if (valueForKey(key) != value) {
            m_shared.values[key] = value;
            ++m_shared.writes;
            announce(key);
        }
        return true;
    }
    void removeKey(const QString& key) override {
        if (m_shared.values.remove(key) > 0) {
            announce(key);
        }
    }
    void setObserver(KeyValueStoreObserver* observer) override { m_observer = observer; }

    bool refuses = false;

  private:
    void announce(const QString& key) {
        for (SharedStore* store : m_shared.stores) {
            if (store != this && store->m_observer) {
                store->m_observer->valuesChangedExternally({key});
            }
        }
    }

    SharedValues& m_shared;
    KeyValueStoreObserver* m_observer = nullptr;
};

/// One of the user's devices. Its changes reach the others when the queues run.
class CloudDevice : KeyValueStoreObserver {
  public:
    CloudDevice(ManualClock& clock, ManualQueues& queues, SharedValues& values)
        : store(values)
        , m_folders{m_folder.path(), m_folder.path(), m_folder.path(), {}, {}, {}, true}
        , channels(m_folders, store, queues, catalogue)
        , shows(m_folders, store, queues)
        , listings({clock, m_device, m_folders, queues, m_tasks, m_state, channels, m_alphabet, shows,
                    m_popular, m_observer, u"guide"_s, [] { return 4; }})
        , replaced(m_folders, clock)
        , sync({.mainQueue = queues.mainQueue(),
                .keyValueStore = store,
                .userDefaults = userDefaults,
                .channels = channels,
                .shows = shows,
                .listings = listings,
                .alarms = alarms,
                .alarmSynchronisation = alarms,
                .replacedLists = replaced,
                .checkAndUpdateAllChannels = [this] { ++checks; },
                .selectionReplaced = [this] { ++refreshes; },
                .favoritesUpdated = [this] { ++updates; },
                .favoritesEmptied = [this](const auto&) { ++emptied; }}) {
        store.setObserver(this);
    }

    /// The titles of the rules.
    QString titles() const {
        QStringList all;
        for (const Favorite& rule : shows.snapshot()->rules()) {
            all << rule.identificator;
        }
        return all.join(u' ');
    }
    static std::vector<Favorite> rules(const QString& titles) {
        std::vector<Favorite> all;
        for (const QString& title : titles.split(u' ', Qt::SkipEmptyParts)) {
            all.push_back({title, 10, Moment(), {}});
        }
        return all;
    }
    static std::vector<ObjectId> channelsNumbered(const std::vector<int>& numbers) {
        std::vector<ObjectId> ids;
        for (const int number : numbers) {
            ids.push_back(ObjectId::fromHex(u"%1"_s.arg(number, 24, 16, QChar(u'0'))));
        }
        return ids;
    }

    SharedStore store;

  private:
    void valuesChangedExternally(const QStringList&) override {
        sync.cloudDidChangeExternally(CloudSync::Reason::Server);
    }

    const QTemporaryDir m_folder;
    const Folders m_folders;
    FakeDevice m_device;
    FakeBackgroundTasks m_tasks;
    FakeApplicationState m_state;
    FakePopularShows m_popular;
    CountingListingsObserver m_observer;
    const Alphabet m_alphabet;

  public:
    Catalogue catalogue;
    MemoryUserDefaults userDefaults;
    FakeAlarms alarms;
    TVChannels channels;
    TVShows shows;
    TVListings listings;
    ReplacedLists replaced;
    CloudSync sync;
    int checks = 0;
    int refreshes = 0;
    int updates = 0;
    int emptied = 0;
};

} // namespace guide::test
