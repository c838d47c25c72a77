#include "alarms/TVShows.h"

#include "alarms/FavoritesFile.h"
#include "fakes/ManualQueues.h"
#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "platform/memory/MemoryKeyValueStore.h"

#include <QCborArray>
#include <QCborMap>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const std::vector<Favorite> kRules{
    {u"Žirafa"_s, 0, Moment(5ms), false}, {u"News"_s, {}, Moment(-7ms), {}}, {u""_s, 120, Moment(), true}};

class TVShowsTest : public testing::Test {
  protected:
    std::unique_ptr<TVShows> open() { return std::make_unique<TVShows>(folders, keyValueStore, queues); }
    QString path() const { return folders.documents + u"/favorites.plist"_s; }

    QTemporaryDir folder;
    Folders folders{folder.path(), folder.path(), {}, {}, {}, {}};
    ManualClock clock;
    ManualQueues queues{clock};
    MemoryKeyValueStore keyValueStore;
};

TEST_F(TVShowsTest, RulesAndTheirOrderOutliveTheProcess) {
    {
        const auto shows = open();
        EXPECT_EQ(shows->favorites(), std::nullopt);
        shows->setFavorites(kRules);
        EXPECT_TRUE(shows->snapshot()->containsFavoriteNamed(u"žirafa"_s)) << "before it is written";
        EXPECT_FALSE(QFile::exists(path()));
        queues.runAll();
        EXPECT_EQ(favoritesOfMirror(*keyValueStore.valueForKey(u"Favorites"_s)), kRules);
    }
    const auto shows = open();
    EXPECT_FALSE(shows->snapshot()->containsFavoriteNamed(u"News"_s)) << "not read yet";
    EXPECT_EQ(shows->favorites(), kRules);
    EXPECT_TRUE(shows->snapshot()->containsFavoriteNamed(u"News"_s));
    queues.runAll();
    EXPECT_EQ(keyValueStore.writeCount(), 1) << "reading writes nothing";
}

TEST_F(TVShowsTest, AnEqualListWritesNothing) {
    const auto shows = open();
    shows->setFavorites(kRules);
    shows->setFavorites({});
    shows->setFavorites(kRules);
    queues.runAll();
    EXPECT_EQ(keyValueStore.writeCount(), 1) << "several changes in a row cost one write";
    ASSERT_TRUE(QFile::remove(path()));
    shows->setFavorites(kRules);
    queues.runAll();
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(TVShowsTest, AFileThatDoesNotDecodeIsKeptAndNeverReplacedByNothing) {
    const QByteArray whole = favoritesFileContent(kRules);
    const auto withoutKey = [](const char* key) {
        QCborMap rule{{u"id"_s, u"A"_s}, {u"minutes"_s, -1}, {u"date"_s, 0}};
        rule.remove(QLatin1StringView(key));
        return archivedData(QCborArray{rule});
    };
    const std::pair<const char*, QByteArray> files[] = {
        {"truncated", whole.left(whole.size() - 1)}, {"empty", ""},
        {"not an array", archivedData(7)},           {"without a title", withoutKey("id")},
        {"without minutes", withoutKey("minutes")},  {"without a date", withoutKey("date")},
        {"not a rule", archivedData(QCborArray{3})},
    };
    for (const auto& [name, content] : files) {
        SCOPED_TRACE(name);
        keyValueStore.removeKey(u"Favorites"_s);
        ASSERT_TRUE(replaceFile(path(), content));
        auto shows = open();
        EXPECT_EQ(shows->favorites(), std::nullopt);
        queues.runAll();
        shows = nullptr;
        EXPECT_EQ(fileContent(path(), 1000), content) << "no empty list took its place";
        keyValueStore.setValue(u"Favorites"_s, favoritesMirror(kRules));
        EXPECT_EQ(open()->favorites(), kRules) << "the copy takes its place";
        EXPECT_EQ(fileContent(path() + u".damaged-1"_s, 1000), content);
        EXPECT_EQ(fileContent(path(), 1000), whole);
    }
}

TEST_F(TVShowsTest, AFailedWriteIsNotMirroredAndIsRetried) {
    const auto shows = open();
    shows->setFavorites({});
    ASSERT_TRUE(QDir().mkpath(path() + u"/in the way"_s));
    shows->setFavorites(kRules);
    EXPECT_FALSE(shows->finishWriting());
    EXPECT_EQ(keyValueStore.writeCount(), 0);
    ASSERT_TRUE(QDir(path()).removeRecursively());
    shows->retryWriting();
    queues.runAll();
    EXPECT_EQ(open()->favorites(), kRules);
    EXPECT_EQ(keyValueStore.writeCount(), 1);
}

TEST_F(TVShowsTest, ACopyThatWasRefusedIsSharedLaterEvenByTheNextProcess) {
    keyValueStore.setValue(u"Favorites"_s, favoritesMirror({}));
    keyValueStore.writesFail = true;
    {
        const auto shows = open();
        shows->setFavorites(kRules);
        queues.runAll();
        EXPECT_TRUE(shows->hasUnshared());
        EXPECT_EQ(fileContent(path(), 1000), favoritesFileContent(kRules)) << "the file is written";
    }
    auto shows = open();
    EXPECT_EQ(shows->favorites(), kRules);
    EXPECT_TRUE(shows->hasUnshared());
    queues.runAll();
    keyValueStore.writesFail = false;
    shows->retryWriting();
    queues.runAll();
    EXPECT_FALSE(shows->hasUnshared());
    EXPECT_EQ(favoritesOfMirror(*keyValueStore.valueForKey(u"Favorites"_s)), kRules);
    shows = nullptr;
    shows = open();
    shows->favorites();
    EXPECT_FALSE(shows->hasUnshared());
}

} // namespace
} // namespace guide
