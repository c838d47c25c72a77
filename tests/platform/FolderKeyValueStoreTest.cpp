#include "platform/linux/FolderKeyValueStore.h"

#include "fakes/Files.h"
#include "fakes/ManualQueues.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/KeyValueFiles.h"

#include <QCborArray>
#include <QCborMap>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide::test {
namespace {

class FolderKeyValueStoreTest : public testing::Test {
  protected:
    QString fileOf(const QString& key) const { return folder.filePath(KeyValueFiles::fileName(key)); }

    FolderKeyValueStoreTest() { QDir().mkpath(folder.path()); }

    const QTemporaryDir root;
    const QDir folder{root.filePath(u"data"_s)};
    ManualClock clock;
    ManualQueues queues{clock};
    FolderKeyValueStore store{folder.path(), u"desk-1"_s, queues};
    FolderKeyValueStore other{folder.path(), u"phone-2"_s, queues};
};

TEST_F(FolderKeyValueStoreTest, ReadsFilesThatOthersReplaced) {
    const QString key = u"SelectedChannels"_s;
    ASSERT_TRUE(store.setValue(key, 1));
    EXPECT_EQ(other.valueForKey(key), QCborValue(1));
    const std::optional<Moment> date = fileModificationDate(fileOf(key));
    ASSERT_TRUE(store.setValue(key, 2));
    // A sync tool may keep the date; the size is equal too.
    ASSERT_TRUE(replaceFile(fileOf(key), contentOf(fileOf(key)), date));
    EXPECT_EQ(other.valueForKey(key), QCborValue(2));
    ASSERT_TRUE(replaceFile(fileOf(key), "{\"key\": \"SelectedChannels\", \"value\": [3]}"));
    EXPECT_EQ(other.valueForKey(key), QCborValue(QCborArray{3}));
    ASSERT_TRUE(QFile::remove(fileOf(key)));
    EXPECT_FALSE(other.valueForKey(key));
}

TEST_F(FolderKeyValueStoreTest, OnlyWholeValuesAreRead) {
    const std::vector<std::pair<const char*, QByteArray>> files{
        {"empty", ""},
        {"truncated", "{\"key\": \"a\", \"val"},
        {"of another key", "{\"key\": \"b\", \"value\": 1}"},
        {"without a value", "{\"key\": \"a\"}"},
        {"null", "{\"key\": \"a\", \"value\": null}"},
        {"odd number of digits", "{\"key\": \"a\", \"value\": {\"bytes\": \"123\"}}"},
        {"not hexadecimal", "{\"key\": \"a\", \"value\": {\"bytes\": \"zz\"}}"},
        {"not a date", "{\"key\": \"a\", \"value\": {\"date\": \"yesterday\"}}"},
        {"unknown kind", "{\"key\": \"a\", \"value\": {\"colour\": \"red\"}}"},
        {"too deep", "{\"key\": \"a\", \"value\": " + QByteArray(500, '[') + QByteArray(500, ']') + "}"},
        {"invalid element", "{\"key\": \"a\", \"value\": [1, null]}"},
    };
    for (const auto& [name, content] : files) {
        ASSERT_TRUE(replaceFile(fileOf(u"a"_s), content));
        EXPECT_FALSE(store.valueForKey(u"a"_s)) << name;
    }
    EXPECT_TRUE(store.setValue(u"a"_s, 1));
    EXPECT_EQ(other.valueForKey(u"a"_s), QCborValue(1));
    for (const auto& [name, content] : files) {
        ASSERT_TRUE(replaceFile(fileOf(u"a"_s), content));
        EXPECT_EQ(store.valueForKey(u"a"_s), QCborValue(1)) << name;
        EXPECT_EQ(other.valueForKey(u"a"_s), QCborValue(1)) << name;
    }
    EXPECT_FALSE(store.setValue(u"a"_s, QCborMap{{1, 2}}));
    EXPECT_EQ(store.valueForKey(u"a"_s), QCborValue(1)) << "the old value is kept";
}

TEST_F(FolderKeyValueStoreTest, EveryKeyHasItsOwnFileInTheFolder) {
    const QString longKey(300, u'ž');
    const QStringList keys{u"a"_s,  u"."_s,   u".."_s,   u"../a"_s, u"a/b"_s,   u"a%2Fb"_s, u""_s,
                           u".a"_s, u"ž č"_s, u"a\nb"_s, u"a\0b"_s, u"CON~1"_s, longKey,    longKey + u'a'};
    for (int index = 0; index < keys.size(); ++index) {
        ASSERT_TRUE(store.setValue(keys[index], index)) << index;
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), keys.size());
    for (int index = 0; index < keys.size(); ++index) {
        EXPECT_EQ(other.valueForKey(keys[index]), QCborValue(index)) << index;
    }
}

QByteArray stamped(const char* key, int value, const char* counter, const char* device) {
    return QByteArray("{\"key\": \"") + key + "\", \"value\": " + QByteArray::number(value) +
           ", \"stamp\": {\"counter\": " + counter + ", \"device\": \"" + device + "\"}}";
}

TEST_F(FolderKeyValueStoreTest, ConflictCopiesAreResolvedToTheNewestStamp) {
    const struct {
        const char* copy;
        bool isCopy = true;
    } names[] = {
        {"a.sync-conflict-20261123-014800-ABCDEFG.json"},
        {"a (conflicted copy 2026-11-23 014800).json"},
        {"a (Jan's conflicted copy 2026-11-23).json"},
        {"a_conflict-20261123-014800.json"},
        {"a (SFConflict jan@example.org 2026-11-23-01-48-00).json"},
        {"a_desk_Nov-23-0148-2026_Conflict.json"},
        {"a [conflicted].json"},
        {"a-desk-safeBackup-0001.json"},
        {"a (1).json"},
        {"a 2.json"},
        {"a.json.tmp", false},
        {".a.sync-conflict-20261123-014800-ABCDEFG.json", false},
        {"ab.sync-conflict-20261123-014800-ABCDEFG.json", false},
        {"a-backup.json", false},
    };
    const struct {
        const char* name;
        QByteArray own;
        QByteArray copy;
        int value;
    } stamps[] = {
        {"greater counter", stamped("a", 1, "9", "z"), stamped("a", 2, "10", "a"), 2},
        {"smaller counter", stamped("a", 1, "9", "a"), stamped("a", 2, "8", "z"), 1},
        {"later device", stamped("a", 1, "9", "a"), stamped("a", 2, "9", "b"), 2},
        {"without stamps", "{\"key\": \"a\", \"value\": 1}", stamped("a", 2, "1", "a"), 2},
        {"impossible counter", stamped("a", 1, "9", "a"), stamped("a", 2, "9223372036854775807", "b"), 1},
        {"only the copy is whole", "{\"key\"", stamped("a", 2, "1", "b"), 2},
    };
    for (const auto& name : names) {
        SCOPED_TRACE(name.copy);
        const QString copy = folder.filePath(QString::fromUtf8(name.copy));
        for (const auto& each : stamps) {
            SCOPED_TRACE(each.name);
            ASSERT_TRUE(replaceFile(fileOf(u"a"_s), each.own) && replaceFile(copy, each.copy));
            FolderKeyValueStore opened(folder.path(), u"desk-1"_s, queues);
            const auto value = opened.valueForKey(u"a"_s);
            if (name.isCopy) {
                EXPECT_EQ(value, QCborValue(each.value));
                EXPECT_EQ(contentOf(fileOf(u"a"_s)), each.value == 1 ? each.own : each.copy)
                    << "byte by byte";
            }
            EXPECT_EQ(QFile::exists(copy), !name.isCopy);
            QFile::remove(copy);
        }
    }
    ASSERT_TRUE(replaceFile(folder.filePath(u"c (1).json"_s), stamped("c", 3, "41", "b")));
    FolderKeyValueStore opened(folder.path(), u"desk-1"_s, queues);
    EXPECT_EQ(opened.valueForKey(u"c"_s), QCborValue(3)) << "the file itself is missing";
    ASSERT_TRUE(opened.setValue(u"d"_s, 1));
    EXPECT_TRUE(contentOf(fileOf(u"d"_s)).contains("\"counter\": 42")) << "greater than all that were seen";
}

TEST_F(FolderKeyValueStoreTest, EqualValuesAreNotWritten) {
    ASSERT_TRUE(store.setValue(u"a"_s, QCborArray{1, QByteArray("x")}));
    const QByteArray content = contentOf(fileOf(u"a"_s));
    ASSERT_TRUE(other.setValue(u"a"_s, QCborArray{1, QByteArray("x")}));
    EXPECT_EQ(contentOf(fileOf(u"a"_s)), content) << "still by the device that wrote it";
    EXPECT_EQ(other.sharedState().device, u"desk"_s);
    EXPECT_FALSE(store.sharedState().lastSeen);
    ASSERT_TRUE(other.setValue(u"a"_s, 5));
    ASSERT_TRUE(store.setValue(u"b"_s, 5));
    EXPECT_EQ(store.valueForKey(u"a"_s), QCborValue(5));
    EXPECT_EQ(store.sharedState().device, u"phone"_s);
    ASSERT_TRUE(replaceFile(fileOf(u"a"_s), "damaged"));
    ASSERT_TRUE(store.setValue(u"a"_s, 5));
    EXPECT_TRUE(contentOf(fileOf(u"a"_s)).contains("\"desk-1\"")) << "a damaged file holds no value";
}

class WatchedFolderTest : public FolderKeyValueStoreTest, public KeyValueStoreObserver {
  protected:
    WatchedFolderTest() {
        store.setValue(u"a"_s, 1);
        other.setValue(u"b"_s, 1);
        store.setObserver(this);
    }
    void valuesChangedExternally(const QStringList& keys) override { m_announced.append(keys); }

    /// The keys that are announced after the next event from the folder and those that closely follow it.
    QStringList announced() {
        EXPECT_TRUE(hasEvent(10'000)) << "no event from the watcher";
        do {
            clock.advance(std::chrono::milliseconds(250));
            queues.runAll();
        } while (hasEvent(30));
        QStringList keys = std::exchange(m_announced, {});
        keys.sort();
        return keys;
    }
    bool hasEvent(int withinMilliseconds) {
        return QTest::qWaitFor([this] { return queues.delayed() > 0; }, withinMilliseconds);
    }

  private:
    int m_argc = 1;
    char m_name[5] = "test";
    char* m_argv[2] = {m_name, nullptr};
    const QCoreApplication m_application{m_argc, m_argv};
    QStringList m_announced;
};

TEST_F(WatchedFolderTest, AnnouncesWhatOthersChange) {
    other.setValue(u"a"_s, 2);
    other.setValue(u"c"_s, 3);
    other.removeKey(u"b"_s);
    EXPECT_EQ(announced(), QStringList({u"a"_s, u"b"_s, u"c"_s})) << "together";
    EXPECT_EQ(store.valueForKey(u"a"_s), QCborValue(2));

    other.setValue(u"a"_s, 4);
    EXPECT_EQ(store.valueForKey(u"a"_s), QCborValue(4));
    EXPECT_EQ(announced(), QStringList(u"a"_s)) << "even if it was read already";

    store.setObserver(nullptr);
    other.setValue(u"a"_s, 5);
    EXPECT_FALSE(hasEvent(50));
}

TEST_F(WatchedFolderTest, DoesNotAnnounceOwnAndEqualValues) {
    store.setValue(u"a"_s, 2);
    store.removeKey(u"b"_s);
    EXPECT_EQ(announced(), QStringList());
    ASSERT_TRUE(replaceFile(fileOf(u"a"_s), contentOf(fileOf(u"a"_s))));
    EXPECT_EQ(announced(), QStringList()) << "the same value";
    other.setValue(u"a"_s, 2);
    EXPECT_FALSE(hasEvent(50)) << "nothing was written";
    other.setValue(u"b"_s, 3);
    store.setValue(u"b"_s, 4);
    EXPECT_EQ(announced(), QStringList()) << "our value replaced the other one";
}

TEST_F(WatchedFolderTest, TheFolderMayDisappearAndReappear) {
    ASSERT_TRUE(QDir().rename(folder.path(), root.filePath(u"away"_s)));
    EXPECT_EQ(announced(), QStringList());
    EXPECT_FALSE(store.setValue(u"a"_s, 9));
    EXPECT_EQ(store.valueForKey(u"a"_s), QCborValue(1)) << "the value last read";
    const QString replacement = root.filePath(u"replacement"_s);
    ASSERT_TRUE(QDir().mkpath(replacement));
    FolderKeyValueStore replaced(replacement, u"phone-2"_s, queues);
    replaced.setValue(u"a"_s, 1);
    replaced.setValue(u"b"_s, 2);
    ASSERT_TRUE(QDir().rename(replacement, folder.path()));
    EXPECT_EQ(announced(), QStringList({u"b"_s}));
    other.setValue(u"a"_s, 3);
    EXPECT_EQ(announced(), QStringList(u"a"_s));
}

} // namespace
} // namespace guide::test
