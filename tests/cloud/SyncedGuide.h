#pragma once

#include "cloud/CloudSync.h"
#include "core/own/OwnSources.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/FakeShowSources.h"
#include "platform/memory/MemoryUserDefaults.h"

#include <vector>

namespace guide::test {

using namespace Qt::StringLiterals;

/// The part of a guide that shares lists with the user's other devices, in a profile and on a store.
class SyncedGuide : KeyValueStoreObserver {
  public:
    SyncedGuide(const Clock& clock, DispatchQueues& queues, KeyValueStore& store, const QString& profile)
        : m_store(store)
        , m_folders{profile, profile, profile, {}, {}, {}, true}
        , channels(m_folders, store, queues, catalogue)
        , shows(m_folders, store, queues)
        , sources(m_folders, store, queues)
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
        takeSources();
        store.setObserver(this);
    }
    ~SyncedGuide() override { m_store.setObserver(nullptr); }

    /// The titles of the rules.
    QString titles() const {
        QStringList all;
        for (const Favorite& rule : shows.snapshot()->rules()) {
            all << rule.identificator;
        }
        return all.join(u' ');
    }
    std::vector<ReplacedList> kept() const {
        return replaced.all({*shows.snapshot(), channels.selected(), *catalogue.snapshot()});
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

  private:
    void takeSources() {
        if (const auto shared = m_store.valueForKey(kOwnSourcesKey)) {
            sources.takeFrom(*shared);
        }
    }
    void valuesChangedExternally(const QStringList&) override {
        takeSources();
        sync.cloudDidChangeExternally(CloudSync::Reason::Server);
    }

    KeyValueStore& m_store;
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
    OwnSources sources;
    TVListings listings;
    ReplacedLists replaced;
    CloudSync sync;
    int checks = 0;
    int refreshes = 0;
    int updates = 0;
    int emptied = 0;
};

} // namespace guide::test
