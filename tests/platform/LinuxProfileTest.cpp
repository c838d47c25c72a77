#include "fakes/ManualQueues.h"
#include "platform/FileReplacement.h"
#include "platform/linux/FolderKeyValueStore.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/SettingsUserDefaults.h"

#include <QCborArray>
#include <QCborMap>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Environment {
  public:
    void set(const char* variable, const QString& value) {
        m_before.emplace_back(variable, qgetenv(variable));
        qputenv(variable, QFile::encodeName(value));
    }
    ~Environment() {
        for (const auto& [variable, value] : m_before) {
            value.isNull() ? qunsetenv(variable) : qputenv(variable, value);
        }
    }

  private:
    std::vector<std::pair<const char*, QByteArray>> m_before;
};

TEST(LinuxFoldersTest, AProfileHoldsEverything) {
    const QTemporaryDir root;
    const QString profile = root.filePath(u"new/profil č"_s);
    const std::optional<Folders> folders = linuxFolders({profile + u'/', root.path()});
    ASSERT_TRUE(folders);
    const QStringList all{folders->caches, folders->documents, folders->configuration, folders->runtime,
                          folders->keyValueStore};
    EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), 5);
    for (const QString& folder : all) {
        EXPECT_TRUE(folder.startsWith(profile + u'/')) << folder.toStdString();
        struct stat found{};
        ASSERT_EQ(::stat(QFile::encodeName(folder).constData(), &found), 0) << folder.toStdString();
        EXPECT_EQ(found.st_mode & 07777, 0700U) << folder.toStdString();
    }
    EXPECT_EQ(folders->bundle, root.path());
    EXPECT_TRUE(linuxFolders({profile, {}}));
}

TEST(LinuxFoldersTest, TheDesktopNamesTheFolders) {
    const QTemporaryDir root;
    Environment environment;
    environment.set("HOME", root.filePath(u"home"_s));
    environment.set("XDG_CACHE_HOME", root.filePath(u"cache"_s));
    environment.set("XDG_DATA_HOME", u"relative"_s);
    environment.set("XDG_CONFIG_HOME", u""_s);
    environment.set("XDG_RUNTIME_DIR", u""_s);
    const std::optional<Folders> folders = linuxFolders({});
    ASSERT_TRUE(folders);
    EXPECT_EQ(folders->caches, root.filePath(u"cache/quellin-guide"_s));
    EXPECT_EQ(folders->documents, root.filePath(u"home/.local/share/quellin-guide"_s));
    EXPECT_EQ(folders->configuration, root.filePath(u"home/.config/quellin-guide"_s));
    EXPECT_TRUE(folders->runtime.startsWith(folders->caches + u'/'));
    EXPECT_TRUE(QDir(folders->keyValueStore).exists());
}

TEST(LinuxFoldersTest, AFileInTheWayIsToldBeforeAnythingIsLost) {
    const QTemporaryDir root;
    ASSERT_TRUE(replaceFile(root.filePath(u"profile"_s), "a file"));
    EXPECT_FALSE(linuxFolders({root.filePath(u"profile"_s), {}}));
    EXPECT_EQ(contentOf(root.filePath(u"profile"_s)), "a file");
}

TEST(SettingsUserDefaultsTest, ValuesSurviveWithTheirKinds) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    const QString text = u"Večer; \"x\" = 1, 2 \\ 📺"_s;
    const auto check = [&](const UserDefaults& defaults) {
        EXPECT_EQ(defaults.boolForKey(u"show_img"_s), false);
        EXPECT_EQ(defaults.integerForKey(u"noAlarmsSchedule.0"_s), std::numeric_limits<std::int64_t>::min());
        EXPECT_EQ(defaults.doubleForKey(u"data_update"_s), 0.1);
        EXPECT_EQ(defaults.stringForKey(u"selectedCalendar"_s), text);
        EXPECT_EQ(defaults.stringForKey(u"empty"_s), u""_s);
        EXPECT_FALSE(defaults.stringForKey(u"absent"_s) || defaults.boolForKey(u"absent"_s));
        EXPECT_FALSE(defaults.boolForKey(u"selectedCalendar"_s) ||
                     defaults.integerForKey(u"selectedCalendar"_s));
        EXPECT_FALSE(defaults.integerForKey(u"data_update"_s) || defaults.doubleForKey(u"empty"_s));
    };
    {
        SettingsUserDefaults defaults(path);
        defaults.setBool(u"show_img"_s, false);
        defaults.setInteger(u"noAlarmsSchedule.0"_s, std::numeric_limits<std::int64_t>::min());
        defaults.setDouble(u"data_update"_s, 0.1);
        defaults.setString(u"selectedCalendar"_s, text);
        defaults.setString(u"empty"_s, u""_s);
        check(defaults);
    }
    SettingsUserDefaults defaults(path);
    check(defaults);
    defaults.removeKey(u"show_img"_s);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_FALSE(SettingsUserDefaults(path).boolForKey(u"show_img"_s));
    EXPECT_TRUE(SettingsUserDefaults(path).stringForKey(u"selectedCalendar"_s));
}

TEST(SettingsUserDefaultsTest, ReadsWhatAPersonWrites) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    ASSERT_TRUE(replaceFile(path, "[General]\nshow_img=No\nbg_img = TRUE\nodd=perhaps\nempty=\n"));
    const SettingsUserDefaults defaults(path);
    EXPECT_EQ(defaults.boolForKey(u"show_img"_s), false);
    EXPECT_EQ(defaults.boolForKey(u"bg_img"_s), true);
    EXPECT_FALSE(defaults.boolForKey(u"odd"_s) || defaults.boolForKey(u"empty"_s));
}

TEST(SettingsUserDefaultsTest, WritesChangedKeysOnly) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    ASSERT_TRUE(replaceFile(path, "[General]\ncurrently_show_count=5\nlist=a, b\n"));
    SettingsUserDefaults defaults(path);
    EXPECT_EQ(defaults.integerForKey(u"currently_show_count"_s), 5);
    EXPECT_FALSE(defaults.stringForKey(u"list"_s));
    ASSERT_TRUE(replaceFile(path, "[General]\ncurrently_show_count=16\nlist=a, b\n"));
    defaults.setBool(u"a"_s, true);
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(SettingsUserDefaults(path).integerForKey(u"currently_show_count"_s), 16);
    EXPECT_TRUE(contentOf(path).contains("list=a, b"));
}

TEST(SettingsUserDefaultsTest, AFailedWriteStaysToBeWritten) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"inside/settings.ini"_s);
    ASSERT_TRUE(replaceFile(folder.filePath(u"inside"_s), "a file in the way"));
    SettingsUserDefaults defaults(path);
    defaults.setInteger(u"currently_show_count"_s, 3);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey(u"currently_show_count"_s), 3);
    ASSERT_TRUE(QFile::remove(folder.filePath(u"inside"_s)));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(SettingsUserDefaults(path).integerForKey(u"currently_show_count"_s), 3);
}

TEST(SettingsUserDefaultsTest, ChangesAreWrittenSoonAndOnce) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    ManualClock clock;
    ManualQueues queues(clock);
    const auto queue = queues.makeQueue("settings", QueueKind::Serial);
    {
        SettingsUserDefaults defaults(path, queue);
        defaults.setInteger(u"currently_show_count"_s, 3);
        defaults.setInteger(u"currently_show_count"_s, 4);
        EXPECT_FALSE(QFile::exists(path));
        clock.advance(std::chrono::seconds(1));
        EXPECT_EQ(queues.runAll(), 1U);
        EXPECT_EQ(SettingsUserDefaults(path).integerForKey(u"currently_show_count"_s), 4);
        defaults.setInteger(u"currently_show_count"_s, 5);
    }
    EXPECT_EQ(SettingsUserDefaults(path).integerForKey(u"currently_show_count"_s), 5) << "written at the end";
    clock.advance(std::chrono::seconds(1));
    queues.runAll();
}

class FolderKeyValueStoreTest : public testing::Test {
  protected:
    QString fileOf(const QString& key) const { return folder.filePath(FolderKeyValueStore::fileName(key)); }

    const QTemporaryDir folder;
    FolderKeyValueStore store{folder.path()};
};

TEST_F(FolderKeyValueStoreTest, ValuesReachAnotherDevice) {
    const QDateTime date(QDate(2025, 12, 31), QTime(18, 30, 1, 234), Qt::UTC);
    const std::vector<std::pair<const char*, QCborValue>> values{
        {"flag", true},
        {"number", qint64{(qint64{1} << 60) + 1}},
        {"fraction", -0.1},
        {"whole fraction", 5.0},
        {"large fraction", 1e300},
        {"infinity", std::numeric_limits<double>::infinity()},
        {"text", u"Večer \"x\" 📺"_s},
        {"empty text", u""_s},
        {"bytes", QByteArray("\0\1\xff", 3)},
        {"no bytes", QByteArray()},
        {"date", QCborValue(date)},
        {"selection", QCborArray{QByteArray(12, '\x58'), QByteArray(12, '\0'), QCborArray{}}},
    };
    for (const auto& [name, value] : values) {
        const QString key = QString::fromLatin1(name);
        ASSERT_TRUE(store.setValue(key, value)) << name;
        const std::optional<QCborValue> read = FolderKeyValueStore(folder.path()).valueForKey(key);
        ASSERT_TRUE(read) << name;
        EXPECT_EQ(read->type(), value.type()) << name;
        EXPECT_EQ(*read, value) << name;
        store.removeKey(key);
        EXPECT_FALSE(store.valueForKey(key)) << name;
    }
}

TEST_F(FolderKeyValueStoreTest, ReadsWhatOthersReplaced) {
    const QString key = u"SelectedChannels"_s;
    FolderKeyValueStore other(folder.path());
    ASSERT_TRUE(store.setValue(key, 1));
    EXPECT_EQ(other.valueForKey(key), QCborValue(1));
    const std::optional<Moment> date = fileModificationDate(fileOf(key));
    ASSERT_TRUE(store.setValue(key, 2));
    // A sync tool may bring the date along: the size is the same as well.
    ASSERT_TRUE(replaceFile(fileOf(key), contentOf(fileOf(key)), date));
    EXPECT_EQ(other.valueForKey(key), QCborValue(2));
    ASSERT_TRUE(replaceFile(fileOf(key), "{\"key\": \"SelectedChannels\", \"value\": [3]}"));
    EXPECT_EQ(other.valueForKey(key), QCborValue(QCborArray{3}));
    ASSERT_TRUE(QFile::remove(fileOf(key)));
    EXPECT_FALSE(other.valueForKey(key));
}

TEST_F(FolderKeyValueStoreTest, ADamagedFileCountsAsAbsent) {
    const std::vector<std::pair<const char*, QByteArray>> files{
        {"empty", ""},
        {"cut", "{\"key\": \"a\", \"val"},
        {"of another key", "{\"key\": \"b\", \"value\": 1}"},
        {"without a value", "{\"key\": \"a\"}"},
        {"null", "{\"key\": \"a\", \"value\": null}"},
        {"odd digits", "{\"key\": \"a\", \"value\": {\"bytes\": \"123\"}}"},
        {"no digits", "{\"key\": \"a\", \"value\": {\"bytes\": \"zz\"}}"},
        {"no date", "{\"key\": \"a\", \"value\": {\"date\": \"yesterday\"}}"},
        {"unknown kind", "{\"key\": \"a\", \"value\": {\"colour\": \"red\"}}"},
        {"deep", "{\"key\": \"a\", \"value\": " + QByteArray(500, '[') + QByteArray(500, ']') + "}"},
        {"damage within", "{\"key\": \"a\", \"value\": [1, null]}"},
    };
    for (const auto& [name, content] : files) {
        ASSERT_TRUE(replaceFile(fileOf(u"a"_s), content));
        EXPECT_FALSE(store.valueForKey(u"a"_s)) << name;
    }
    EXPECT_TRUE(store.setValue(u"a"_s, 1));
    EXPECT_FALSE(store.setValue(u"a"_s, QCborMap{{1, 2}}));
    EXPECT_EQ(store.valueForKey(u"a"_s), QCborValue(1)) << "the old value stays";
}

TEST_F(FolderKeyValueStoreTest, AnyKeyHasAFileOfItsOwnInTheFolder) {
    const QString longKey(300, u'ž');
    const QStringList keys{u"a"_s,  u"."_s,   u".."_s,   u"../a"_s, u"a/b"_s,   u"a%2Fb"_s, u""_s,
                           u".a"_s, u"ž č"_s, u"a\nb"_s, u"a\0b"_s, u"CON~1"_s, longKey,    longKey + u'a'};
    for (int index = 0; index < keys.size(); ++index) {
        ASSERT_TRUE(store.setValue(keys[index], index)) << index;
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), keys.size());
    for (int index = 0; index < keys.size(); ++index) {
        EXPECT_EQ(FolderKeyValueStore(folder.path()).valueForKey(keys[index]), QCborValue(index)) << index;
    }
}

} // namespace
} // namespace guide
