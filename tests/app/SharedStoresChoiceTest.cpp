#include "app/SharedStoresChoice.h"

#include "alarms/FavoritesFile.h"
#include "alarms/TVShows.h"
#include "fakes/ManualQueues.h"
#include "platform/linux/FolderKeyValueStore.h"
#include "platform/linux/SettingsUserDefaults.h"
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
    const struct {
        QString address;
        const char* why;
    } cases[] = {
        {root.filePath(u"none"_s), kFolderIsMissing},
        {root.filePath(u"none/none"_s), "There is no such folder, nor the one in which it would be."},
        {u"file://"_s + file.fileName(), "This is not a folder."},
        {folders.keyValueStore + u"/../profile/"_s,
         "This folder belongs to the guide on this device: choose another one."},
        {u"https://tv.example/guide"_s, "The address of a database begins with postgresql://."}};
    for (const auto& each : cases) {
        EXPECT_EQ(choose(each.address), QString::fromUtf8(each.why)) << each.address.toStdString();
    }
    for (const char* relative : {"relative", "~anna/sync", "./sync", "file:sync"}) {
        EXPECT_EQ(choose(QString::fromLatin1(relative)), u"The path of a folder begins with “/” or “~/”."_s)
            << relative;
    }
    EXPECT_TRUE(QDir(folders.documents).isEmpty()) << "what was tried leaves nothing";
    EXPECT_FALSE(choose(u"postgresql://anna@tv.example/guide?sslmode=disable"_s).isEmpty());
    EXPECT_FALSE(choose(u"postgresql://tv.example"_s).isEmpty());
    EXPECT_EQ(choice->place().kind, SharedPlace::Kind::ThisDevice);
    EXPECT_EQ(value(u"Favorites"_s), u"ours"_s);
    EXPECT_FALSE(defaults.stringForKey(u"sharedPlace"_s));
    EXPECT_TRUE(announced.isEmpty());
}

TEST_F(SharedStoresChoiceTest, APlaceIsLeftOnlyWhenTheNextOneIsStored) {
    const QString place = made(u"sync"_s);
    const QString settings = root.filePath(u"settings.ini"_s);
    const auto own = [this] {
        return FolderKeyValueStore(folders.keyValueStore, u"x-1"_s, queues).valueForKey(u"Favorites"_s);
    };
    const auto kept = [this] { return QDir(folders.documents).entryList({u"folder-*.values"_s}); };
    std::optional<SettingsUserDefaults> stored;
    // As after a kill: what was not synchronized is lost.
    const auto startWith = [&](const QString& path) {
        choice.reset();
        stored.emplace(path);
        choice.emplace(SharedStoresChoice::Environment{folders, *stored, clock, secrets, queues});
        queues.runAll();
    };
    const QString unwritable = root.filePath(u"settings.ini/settings.ini"_s);
    startWith(settings);
    choice->keyValueStore().setValue(u"Favorites"_s, u"ours"_s);
    ASSERT_TRUE(stored->synchronize());

    startWith(unwritable);
    EXPECT_EQ(choose(place), QString());
    EXPECT_TRUE(own()) << "the next start would find nothing";
    startWith(settings);
    EXPECT_EQ(choice->place().kind, SharedPlace::Kind::ThisDevice);
    EXPECT_TRUE(kept().isEmpty()) << "of a folder that is not the current one";

    EXPECT_EQ(choose(place), QString());
    EXPECT_FALSE(own());
    EXPECT_EQ(SettingsUserDefaults(settings).stringForKey(u"sharedPlace"_s), place);
    startWith(settings);
    EXPECT_EQ(kept().size(), 1) << "that of the current folder";
    EXPECT_EQ(choose({}), QString());
    EXPECT_TRUE(own());
    EXPECT_TRUE(kept().isEmpty());
    EXPECT_EQ(SettingsUserDefaults(settings).stringForKey(u"sharedPlace"_s), QString());
}

TEST_F(SharedStoresChoiceTest, AFolderIsCreatedInTheHome) {
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(root.path()));
    QString why = u"no answer"_s;
    choice->createFolder(u"~/new"_s, MainBlock<QString>([&why](const QString& answer) { why = answer; }));
    queues.runAll();
    EXPECT_EQ(why, QString());
    EXPECT_EQ(choose(u" ~/new/ "_s), QString());
    EXPECT_EQ(choose(u"~/new"_s), QString()) << "used already";
    EXPECT_EQ(choice->place().address, root.filePath(u"new"_s));
    qputenv("HOME", home);
}

TEST_F(SharedStoresChoiceTest, ANewNameIsThatOfTheNextChange) {
    const QString place = made(u"sync"_s);
    ASSERT_EQ(choose(place), QString());
    const QString host = choice->place().deviceName;
    choice->keyValueStore().setValue(u"Favorites"_s, u"a"_s);
    choice->setDeviceName(u"  Front   desk \n"_s);
    EXPECT_EQ(choice->place().deviceName, u"Front desk"_s);
    queues.runAll();
    choice->keyValueStore().setValue(u"Favorites"_s, u"b"_s);
    queues.runAll();
    FolderKeyValueStore reader(place, u"phone-1"_s, queues);
    EXPECT_EQ(reader.sharedState().device, u"Front desk"_s);
    EXPECT_EQ(choice->place().state.device, QString()) << "what it wrote under the other name is its own";
    start();
    EXPECT_EQ(choice->place().deviceName, u"Front desk"_s);
    choice->setDeviceName({});
    EXPECT_EQ(choice->place().deviceName, host);
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
    EXPECT_EQ(why, u"The place does not answer."_s);
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
