#pragma once

#include "core/Catalogue.h"
#include "core/ListingsFile.h"
#include "core/TVChannels.h"
#include "fakes/FakeApplicationState.h"
#include "fakes/FakeBackgroundTasks.h"
#include "fakes/FakeDevice.h"
#include "fakes/FakeShowSources.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "store/TVListings.h"

#include <QTemporaryDir>

#include <memory>

namespace guide::test {

struct StoreChannel {
    QString language = QStringLiteral("cs");
    QStringList sourceIds = {};
    bool selected = true;
};

/// A store on a faked device, with its files in one folder. Add the channels first, then call open().
struct StoreFixture {
    /// Without a folder the files go into a temporary one.
    StoreFixture(const Clock& ownClock, DispatchQueues& ownQueues, const QString& folder = {})
        : clock(ownClock)
        , queues(ownQueues) {
        const QString path = folder.isEmpty() ? m_folder.path() : folder;
        folders = {path, path, path, path, path, path};
    }

    static ObjectId channelNumbered(int number) {
        return ObjectId::fromHex(QStringLiteral("%1").arg(number, 24, 16, QLatin1Char('0')));
    }

    /// The channel's title and icon are the number.
    void addChannel(int number, const StoreChannel& channel = {}) {
        addChannel({channelNumbered(number), QString::number(number), channel.language, QStringLiteral("x"),
                    QString::number(number), channel.sourceIds},
                   channel.selected);
    }
    void addChannel(CatalogueChannel channel, bool selected) {
        if (selected) {
            m_selected.push_back(channel.id);
        }
        m_listed.push_back(std::move(channel));
    }

    /// Creates the catalogue and the selection.
    void makeChannels() {
        catalogue.replace(CatalogueSnapshot(m_listed));
        channels = std::make_unique<TVChannels>(folders, keyValueStore, queues, catalogue);
        channels->setSelected(m_selected);
    }
    /// Creates the store, which starts to read its files. May be called again for a second store.
    TVListings& open() {
        if (!channels) {
            makeChannels();
        }
        listings = std::make_unique<TVListings>(TVListingsEnvironment{
            clock, device, folders, queues, tasks, state, *channels, alphabet, favorites, popular, observer,
            QStringLiteral("guide"), [this] { return showCount; }});
        return *listings;
    }

    QString listingsFile(const ObjectId& channel) const {
        return folders.caches + u'/' + listingsFileFromChannelIdentificator(channel);
    }

  private:
    const QTemporaryDir m_folder;
    std::vector<CatalogueChannel> m_listed;
    std::vector<ObjectId> m_selected;

  public:
    const Clock& clock;
    DispatchQueues& queues;
    Folders folders;
    FakeDevice device;
    FakeBackgroundTasks tasks;
    FakeApplicationState state;
    MemoryUserDefaults userDefaults;
    MemoryKeyValueStore keyValueStore;
    Alphabet alphabet;
    FakeFavorites favorites;
    FakePopularShows popular;
    CountingListingsObserver observer;
    int showCount = 4;
    Catalogue catalogue;
    std::unique_ptr<TVChannels> channels;
    std::unique_ptr<TVListings> listings;
};

} // namespace guide::test
