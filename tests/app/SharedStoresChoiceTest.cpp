#include "app/SharedStoresChoice.h"

#include "alarms/FavoritesFile.h"
#include "alarms/TVShows.h"
#include "fakes/ManualQueues.h"
#include "platform/linux/FolderKeyValueStore.h"
#include "platform/memory/MemorySecretStore.h"
#include "platform/memory/MemoryUserDefaults.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

class SharedStoresChoiceTest : public testing::Test, protected KeyValueStoreObserver {
  protected:
    SharedStoresChoiceTest() { start(); }
    ~SharedStoresChoiceTest() override { choice.reset(); }

    void valuesChangedExternally(const QStringList& keys) override { announced << keys; }

    void start() {
        choice.reset();
        choice.emplace(SharedStoresChoice::Environment{folders, defaults, clock, secrets, queues});
        choice->keyValueStore().setObserver(this);
    }
    QString choose(const QString& address) {
        QString why = u"no answer"_s;
        choice->choose(address, MainBlock<QString>([&why](const QString& answer) { why = answer; }));
        queues.runAll();
        return why;
    }
    QString value(const QString& key) {
        return choice->keyValueStore().valueForKey(key).value_or(QCborValue()).toString();
    }
    QString made(const QString& name) const {
        QDir(root.path()).mkpath(name);
        return root.filePath(name);
    }

    const QTemporaryDir root;
    const Folders folders{made(u"caches"_s), made(u"documents"_s), {}, {}, made(u"profile"_s), {}};
    ManualClock clock;
    ManualQueues queues{clock};
    MemoryUserDefaults defaults;
    MemorySecretStore secrets;
    QStringList announced;
    std::optional<SharedStoresChoice> choice;
};

TEST_F(SharedStoresChoiceTest, AFolderGetsWhatItLacksAndReplacesTheRest) {
    const QString place = made(u"sync"_s);
    {
        FolderKeyValueStore other(place, u"phone-1"_s, queues);
        other.setValue(u"Favorites"_s, u"theirs"_s);
        other.setValue(u"noAlarmsSchedule"_s, u"same"_s);
    }
    choice->keyValueStore().setValue(u"Favorites"_s, u"ours"_s);
    choice->keyValueStore().setValue(u"OwnSources"_s, u"ours"_s);
    choice->keyValueStore().setValue(u"noAlarmsSchedule"_s, u"same"_s);
    EXPECT_EQ(choice->place().kind, SharedPlace::Kind::ThisDevice);
    EXPECT_FALSE(choice->records().isShared());
    int changes = 0;
    const auto owner = std::make_shared<int>();
    choice->setObserver(owner, [&changes] { ++changes; });

    EXPECT_EQ(choose(place), QString());
    EXPECT_EQ(value(u"Favorites"_s), u"theirs"_s);
    EXPECT_EQ(value(u"OwnSources"_s), u"ours"_s);
    EXPECT_EQ(announced, QStringList{u"Favorites"_s}) << "only what differs";
    EXPECT_EQ(choice->place().kind, SharedPlace::Kind::Folder);
    EXPECT_EQ(choice->place().state.device, u"phone"_s);
    EXPECT_GT(changes, 0);
    EXPECT_FALSE(FolderKeyValueStore(folders.keyValueStore, u"x-1"_s, queues).valueForKey(u"OwnSources"_s))
        << "nothing is left behind";

    start();
    EXPECT_EQ(choice->place().address, place) << "kept";
    EXPECT_EQ(value(u"Favorites"_s), u"theirs"_s);
    choice->keyValueStore().setValue(u"Favorites"_s, u"newer"_s);
    EXPECT_EQ(choose({}), QString());
    EXPECT_EQ(value(u"Favorites"_s), u"newer"_s) << "nothing changes for whoever leaves";
    EXPECT_EQ(value(u"noAlarmsSchedule"_s), u"same"_s);
    EXPECT_EQ(FolderKeyValueStore(place, u"phone-1"_s, queues).valueForKey(u"Favorites"_s), u"newer"_s)
        << "other devices keep it";
}

TEST_F(SharedStoresChoiceTest, APlaceThatCannotBeUsedChangesNothing) {
    choice->keyValueStore().setValue(u"Favorites"_s, u"ours"_s);
    QFile file(root.filePath(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (const QString& address :
         {root.filePath(u"none"_s), file.fileName(), u"relative"_s, u"https://tv.example/guide"_s}) {
        EXPECT_EQ(choose(address), u"There is no such folder, or it cannot be written."_s)
            << address.toStdString();
    }
    EXPECT_TRUE(QDir(folders.documents).isEmpty()) << "what was tried leaves nothing";
    EXPECT_FALSE(choose(u"postgresql://anna@tv.example/guide?sslmode=disable"_s).isEmpty());
    EXPECT_FALSE(choose(u"postgresql://tv.example"_s).isEmpty());
    EXPECT_EQ(choice->place().kind, SharedPlace::Kind::ThisDevice);
    EXPECT_EQ(value(u"Favorites"_s), u"ours"_s);
    EXPECT_FALSE(defaults.stringForKey(u"sharedPlace"_s));
    EXPECT_TRUE(announced.isEmpty());
}

TEST_F(SharedStoresChoiceTest, AFolderThatVanishesSaysSo) {
    const QString place = made(u"stick"_s);
    ASSERT_EQ(choose(place), QString());
    choice->keyValueStore().setValue(u"Favorites"_s, u"ours"_s);
    ASSERT_TRUE(QDir(place).removeRecursively());
    choice->retryNow();
    queues.runAll();
    EXPECT_EQ(choice->place().state.connection, SharedStoreConnection::Offline);
    EXPECT_FALSE(choice->place().state.reason.isEmpty());
}

TEST_F(SharedStoresChoiceTest, AFolderThatDoesNotAnswerIsGivenUp) {
    QString why;
    choice->choose(made(u"hung"_s), MainBlock<QString>([&why](const QString& answer) { why = answer; }));
    queues.run("main");
    EXPECT_TRUE(why.isEmpty());
    clock.advance(std::chrono::seconds(30));
    queues.run("main");
    EXPECT_EQ(why, u"There is no such folder, or it cannot be written."_s);
    EXPECT_EQ(choice->place().kind, SharedPlace::Kind::ThisDevice);
}

TEST_F(SharedStoresChoiceTest, AListThatWasSetBeforeAKillIsNotReplacedByTheOldOne) {
    const QString place = made(u"sync"_s);
    const std::vector<Favorite> older{{u"Older"_s, {}, Moment(), {}}};
    const std::vector<Favorite> newer{{u"Newer"_s, {}, Moment(), {}}};
    ASSERT_EQ(choose(place), QString());
    TVShows shows(folders, choice->keyValueStore(), queues);
    shows.setFavorites(older);
    queues.runAll();
    shows.setFavorites(newer);
    queues.run("favorites");
    // Only what is in files survives.
    const Folders survived{{}, made(u"survived"_s), {}, {}, {}, {}};
    for (const QFileInfo& file : QDir(folders.documents).entryInfoList(QDir::Files)) {
        QFile::copy(file.filePath(), survived.documents + u'/' + file.fileName());
    }
    SharedStoresChoice next({survived, defaults, clock, secrets, queues});
    TVShows restarted(survived, next.keyValueStore(), queues);
    EXPECT_EQ(restarted.favorites(), newer);
    EXPECT_TRUE(restarted.hasUnshared() ||
                next.keyValueStore().valueForKey(u"Favorites"_s) == favoritesMirror(newer));
}

} // namespace
} // namespace guide
