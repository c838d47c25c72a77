#pragma once

#include "TestShows.h"
#include "fakes/StoreFixture.h"
#include "platform/files/FileReplacement.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryUserDefaults.h"
#include "store/ShowCoding.h"

#include <QDir>
#include <QFile>

namespace guide::test {

/// A store in a given folder whose user has selected channels 1 to 3 of the four in the catalogue.
struct FileStoreFixture : StoreFixture {
    FileStoreFixture(const Clock& ownClock, DispatchQueues& ownQueues, const QString& folder)
        : StoreFixture(ownClock, ownQueues, folder) {
        for (int number = 1; number <= 4; ++number) {
            addChannel(number, {.selected = number < 4});
        }
        showCount = 2;
        makeChannels();
    }

    void writeFile(const ObjectId& of, const std::vector<TestShow>& shows) const {
        ASSERT_TRUE(replaceFile(listingsFile(of), archivedShows(items(shows))));
    }
    /// The titles in the channel's file; nothing when there is no readable file.
    std::optional<Titles> fileTitles(const ObjectId& of) const {
        const auto shows = unarchivedShowsOfFile(listingsFile(of), latinAlphabet());
        return shows ? std::optional(titles(*shows)) : std::nullopt;
    }
};

} // namespace guide::test
