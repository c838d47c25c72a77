#include "platform/linux/SharedFolderKeyValueStore.h"

#include "fakes/Files.h"
#include "fakes/ManualQueues.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/FolderKeyValueStore.h"
#include "platform/linux/KeyValueFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace guide::test {
namespace {

/// The folder is not watched unless events are processed.
class SharedFolderKeyValueStoreTest : public testing::Test, public KeyValueStoreObserver {
  protected:
    SharedFolderKeyValueStoreTest() {
        QDir().mkpath(folder.path());
        QDir().mkpath(kept);
        start();
    }
    void valuesChangedExternally(const QStringList& keys) override { announced << keys; }

    void start() {
        store.reset();
        queues.emplace(clock);
        store.emplace(SharedFolderOptions{.folder = folder.path(), .device = u"desk-1"_s, .keepsIn = kept},
                      clock, *queues);
        store->setObserver(this);
    }
    /// Only what is in files survives.
    void kill() {
        const QString survives = kept;
        kept += u'+';
        QDir().mkpath(kept);
        for (const QFileInfo& file : QDir(survives).entryInfoList(QDir::Files)) {
            ASSERT_TRUE(QFile::copy(file.filePath(), kept + u'/' + file.fileName()));
        }
        store.reset();
    }
    void setAway(bool isAway) const {
        ASSERT_TRUE(isAway ? QDir().rename(folder.path(), away) : QDir().rename(away, folder.path()));
    }
    void look() {
        store->retryNow();
        queues->runAll();
    }
    QString pathOf(const QString& key) const { return folder.filePath(KeyValueFiles::fileName(key)); }
    void wait(std::chrono::seconds pause) {
        clock.advance(pause);
        queues->runAll();
    }
    bool isOffline() const { return store->sharedState().connection == SharedStoreConnection::Offline; }

    const QTemporaryDir root;
    const QDir folder{root.filePath(u"data"_s)};
    const QString away = root.filePath(u"away"_s);
    QString kept = root.filePath(u"kept"_s);
    ManualClock clock;
    ManualQueues otherQueues{clock};
    FolderKeyValueStore other{folder.path(), u"phone-2"_s, otherQueues};
    // Of the process under test.
    std::optional<ManualQueues> queues;
    std::optional<SharedFolderKeyValueStore> store;
    QStringList announced;
};

TEST_F(SharedFolderKeyValueStoreTest, WhatIsSetWithoutTheFolderOutlivesAKillAndArrives) {
    other.setValue(u"a"_s, 1);
    other.setValue(u"b"_s, 1);
    other.setValue(u"gone"_s, 1);
    EXPECT_FALSE(store->valueForKey(u"a"_s)) << "nothing was read on this thread";
    queues->runAll();
    EXPECT_EQ(announced.size(), 3);
    EXPECT_EQ(store->sharedState().device, u"phone"_s);
    const auto seen = store->sharedState().lastSeen;
    setAway(true);
    EXPECT_TRUE(store->setValue(u"a"_s, 2));
    EXPECT_TRUE(store->setValue(u"new"_s, 2));
    store->removeKey(u"gone"_s);
    ASSERT_TRUE(store->flush());
    kill();
    start();
    announced.clear();
    EXPECT_EQ(store->valueForKey(u"a"_s), QCborValue(2));
    EXPECT_EQ(store->valueForKey(u"b"_s), QCborValue(1)) << "last read";
    EXPECT_EQ(store->valueForKey(u"gone"_s), std::nullopt);
    EXPECT_EQ(store->sharedState().lastSeen, seen);
    queues->runAll();
    EXPECT_TRUE(isOffline());
    EXPECT_FALSE(store->sharedState().reason.isEmpty());

    setAway(false);
    other.setValue(u"a"_s, 3);
    other.setValue(u"a"_s, 4);
    other.setValue(u"b"_s, 4);
    look();
    EXPECT_EQ(other.valueForKey(u"a"_s), QCborValue(2)) << "the change that waited wins";
    EXPECT_GT(keyValueFromJson(contentOf(pathOf(u"a"_s)))->stamp.counter, 6) << "above all that were seen";
    EXPECT_EQ(other.valueForKey(u"new"_s), QCborValue(2));
    EXPECT_FALSE(QFile::exists(pathOf(u"gone"_s)));
    EXPECT_EQ(announced, QStringList{u"b"_s});
    EXPECT_FALSE(isOffline());

    const FileStamp stamp = *fileStamp(pathOf(u"a"_s));
    EXPECT_TRUE(store->setValue(u"a"_s, 2));
    look();
    EXPECT_EQ(fileStamp(pathOf(u"a"_s)), stamp) << "an equal value is not written";
}

TEST_F(SharedFolderKeyValueStoreTest, AChangeThatAKilledProcessHadWrittenIsNotRepeated) {
    for (const bool wasAttempted : {true, false}) {
        other.setValue(u"a"_s, wasAttempted);
        look();
        setAway(true);
        store->setValue(u"a"_s, 2);
        ASSERT_TRUE(store->flush());
        kill();
        setAway(false);
        // What the process would have done next.
        KeyValueFiles files(folder.path(), u"desk-1"_s);
        ASSERT_TRUE(files.list());
        if (wasAttempted) {
            SharedValues values(QDir(kept).entryInfoList(QDir::Files).front().filePath(), folder.path(),
                                nullptr);
            ASSERT_EQ(values.changesToSend().size(), 1);
            values.attempt(values.changesToSend().front(), files.nextCounter());
            ASSERT_TRUE(values.save());
        }
        ASSERT_TRUE(files.write(u"a"_s, 2));
        other.setValue(u"a"_s, 5);
        start();
        look();
        EXPECT_EQ(store->valueForKey(u"a"_s), QCborValue(wasAttempted ? 5 : 2));
        EXPECT_EQ(other.valueForKey(u"a"_s), store->valueForKey(u"a"_s));
    }
}

TEST_F(SharedFolderKeyValueStoreTest, FilesThatCannotBeReadAreUnchangedAndRemovedOnesAreGone) {
    other.setValue(u"a"_s, 1);
    other.setValue(u"b"_s, 1);
    queues->runAll();
    ASSERT_TRUE(replaceFile(pathOf(u"a"_s), "{\"key\": \"a\", "));
    other.removeKey(u"b"_s);
    kill();
    start();
    announced.clear();
    look();
    EXPECT_EQ(announced, QStringList{u"b"_s});
    EXPECT_EQ(store->valueForKey(u"a"_s), QCborValue(1));
    EXPECT_EQ(store->valueForKey(u"b"_s), std::nullopt);

    // An erasure leaves nothing.
    for (const char16_t* name : {u"a (1).json", u"a.sync-conflict-20261123-014800-ABCDEFG.json"}) {
        ASSERT_TRUE(replaceFile(folder.filePath(QString::fromUtf16(name)), "{\"key\": \"a\", \"val"));
    }
    other.setValue(u"a_conflict"_s, 1);
    store->removeKey(u"a"_s);
    store->removeKey(u"never seen"_s);
    look();
    EXPECT_EQ(folder.entryList(QDir::Files), QStringList{u"a_conflict.json"_s});
}

TEST_F(SharedFolderKeyValueStoreTest, FailedWritesAreTriedAgainWithGrowingPauses) {
    ASSERT_TRUE(QDir().mkpath(pathOf(u"a"_s) + u"/in the way"_s));
    other.setValue(u"b"_s, 1);
    ASSERT_TRUE(store->setValue(u"a"_s, 1));
    queues->runAll();
    EXPECT_TRUE(isOffline());
    EXPECT_EQ(store->valueForKey(u"b"_s), QCborValue(1)) << "still read";
    wait(30s);
    ASSERT_TRUE(QDir(pathOf(u"a"_s)).removeRecursively());
    wait(59s);
    EXPECT_TRUE(isOffline());
    wait(1s);
    EXPECT_FALSE(isOffline());
    EXPECT_EQ(other.valueForKey(u"a"_s), QCborValue(1));
}

TEST_F(SharedFolderKeyValueStoreTest, AFailedWriteIsNoReasonToTryAgain) {
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    ASSERT_TRUE(QDir().mkpath(pathOf(u"a"_s) + u"/in the way"_s));
    other.setValue(u"b"_s, 1);
    store->setValue(u"a"_s, 1);
    const auto letEventsArrive = [this] {
        for (int i = 0; i < 40; ++i) {
            QThread::msleep(20);
            QCoreApplication::processEvents();
            queues->runAll();
        }
        return fileStamp(folder.path());
    };
    const auto before = letEventsArrive();
    EXPECT_EQ(letEventsArrive(), before) << "a temporary file was made";
    other.setValue(u"b"_s, 2);
    for (int attempt = 0; attempt < 20 && store->valueForKey(u"b"_s) != QCborValue(2); ++attempt) {
        letEventsArrive();
    }
    EXPECT_EQ(store->valueForKey(u"b"_s), QCborValue(2));
}

TEST_F(SharedFolderKeyValueStoreTest, AnEmptyFolderOnWhichADiskIsMountedOtherwiseIsMissing) {
    const QTemporaryDir disk(u"/dev/shm/guide-XXXXXX"_s);
    ASSERT_NE(fileStamp(disk.path())->device, fileStamp(root.path())->device);
    other.setValue(u"a"_s, 1);
    ASSERT_TRUE(QFile::rename(pathOf(u"a"_s), away) && QFile::copy(away, disk.filePath(u"a.json"_s)));
    ASSERT_TRUE(QDir().rmdir(folder.path()) && QFile::link(disk.path(), folder.path()));
    look();
    EXPECT_EQ(store->valueForKey(u"a"_s), QCborValue(1));
    ASSERT_TRUE(QFile::remove(folder.path()) && QDir().mkpath(folder.path()));
    store->setValue(u"b"_s, 1);
    look();
    EXPECT_TRUE(isOffline());
    EXPECT_EQ(store->valueForKey(u"a"_s), QCborValue(1));
    EXPECT_TRUE(folder.isEmpty()) << "what was set waits for the disk";
}

TEST_F(SharedFolderKeyValueStoreTest, AMissingValueGivesWayToOneThatIsReadLater) {
    other.setValue(u"a"_s, 2);
    EXPECT_TRUE(store->setMissingValue(u"a"_s, 1) && store->setMissingValue(u"b"_s, 1));
    EXPECT_EQ(store->valueForKey(u"a"_s), QCborValue(1)) << "not read yet";
    queues->runAll();
    EXPECT_EQ(store->valueForKey(u"a"_s), QCborValue(2));
    EXPECT_EQ(other.valueForKey(u"a"_s), QCborValue(2));
    EXPECT_EQ(other.valueForKey(u"b"_s), QCborValue(1));
    EXPECT_EQ(announced, QStringList(u"a"_s));
}

} // namespace
} // namespace guide::test
