#pragma once

#include "TestShows.h"
#include "core/ListingsFile.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "platform/files/FileReplacement.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "store/ShowCoding.h"
#include "store/TVListings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <atomic>

namespace guide::test {

class NoFavorites final : public FavoriteQuestions {
  public:
    bool containsFavoriteNamed(const QString&) const override { return false; }
    bool hasFavorites() const override { return false; }
};

class CountedPopularShows final : public PopularShows {
  public:
    ShowList popularShows() const override { return list; }
    bool contains(const ShowItem&) const override { return false; }
    void refresh() override { ++refreshes; }

    ShowList list;
    std::atomic<int> refreshes = 0;
};

class CountedAlarms final : public AlarmSynchronisation {
  public:
    void setSynchronized(bool synchronized) override { isSynchronized = synchronized; }
    void syncAlarms() override { ++syncs; }

    std::atomic<bool> isSynchronized = true;
    std::atomic<int> syncs = 0;
};

/// Everything around a store, in a folder of its own, with channels 1 to 3 selected and 4 known besides.
struct StoreWorld {
    StoreWorld(const Clock& clock, DispatchQueues& queues, const QString& folder)
        : folders{folder, folder, folder, folder, folder, folder}
        , icons(folder, 1)
        , channels(folders, keyValueStore, queues, catalogue)
        , environment{clock,           device,       folders,  queues, tasks,
                      state,           userDefaults, channels, icons,  catalogue,
                      latinAlphabet(), favorites,    popular,  alarms, QStringLiteral("guide"),
                      [] { return 2; }} {
        catalogue.replace(listedChannels());
        channels.setSelected({channel(1), channel(2), channel(3)});
    }

    static CatalogueSnapshot listedChannels() {
        std::vector<CatalogueChannel> listed;
        for (int number = 1; number <= 4; ++number) {
            listed.push_back({channel(number), QString::number(number), QStringLiteral("cs"),
                              QStringLiteral("x"), QStringLiteral("1.png")});
        }
        return CatalogueSnapshot(listed);
    }

    QString path(const ObjectId& of) const {
        return folders.caches + u'/' + listingsFileFromChannelIdentificator(of);
    }
    void writeFile(const ObjectId& of, const std::vector<TestShow>& shows) const {
        ShowItems items;
        for (const TestShow& show : shows) {
            items.push_back(item(show));
        }
        ASSERT_TRUE(replaceFile(path(of), archivedShows(items)));
    }
    /// The titles in the channel's file; nothing when there is no readable file.
    std::optional<Titles> fileTitles(const ObjectId& of) const {
        const auto shows = unarchivedShowsOfFile(path(of), latinAlphabet());
        return shows ? std::optional(titles(*shows)) : std::nullopt;
    }

    Folders folders;
    FakeDevice device;
    FakeBackgroundTasks tasks;
    FakeApplicationState state;
    MemoryUserDefaults userDefaults;
    MemoryKeyValueStore keyValueStore;
    TVStationIcons icons;
    Catalogue catalogue;
    TVChannels channels;
    NoFavorites favorites;
    CountedPopularShows popular;
    CountedAlarms alarms;
    TVListingsEnvironment environment;
};

} // namespace guide::test
