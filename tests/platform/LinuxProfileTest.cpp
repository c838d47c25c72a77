#include "fakes/Files.h"
#include "fakes/ManualQueues.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/LinuxFolders.h"
#include "platform/linux/SettingsUserDefaults.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace guide::test {
namespace {

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

TEST(LinuxFoldersTest, AProfileContainsAllFolders) {
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
    EXPECT_TRUE(folders->writable);
    EXPECT_TRUE(linuxFolders({profile, {}}));
}

TEST(LinuxFoldersTest, UsesXDGFoldersWithoutAProfile) {
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

TEST(LinuxFoldersTest, FailsWhenAFileIsInTheWay) {
    const QTemporaryDir root;
    ASSERT_TRUE(replaceFile(root.filePath(u"profile"_s), "a file"));
    EXPECT_FALSE(linuxFolders({root.filePath(u"profile"_s), {}}));
    EXPECT_EQ(contentOf(root.filePath(u"profile"_s)), "a file");
}

/// What `look` returns in a process without the rights of root.
template <class Look>
int asOrdinaryUser(const Look& look) {
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t kNobody = 65534;
        const bool ordinary = ::getuid() != 0 || ::setresuid(kNobody, kNobody, kNobody) == 0;
        ::_exit(ordinary ? look() : 100);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(LinuxFoldersTest, AReadOnlyProfileHasWhatItContains) {
    const QTemporaryDir root;
    const QString profile = root.filePath(u"profile"_s);
    ASSERT_TRUE(QDir().mkpath(profile + u"/documents"_s));
    ASSERT_TRUE(QDir().mkpath(profile + u"/empty"_s));
    for (const QString& folder : {root.path(), profile, profile + u"/documents"_s, profile + u"/empty"_s}) {
        ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
    }
    EXPECT_EQ(asOrdinaryUser([&] {
                  const auto folders = linuxFolders({profile, {}});
                  return folders && !folders->writable && folders->documents.endsWith(u"/documents"_s) ? 0
                                                                                                       : 1;
              }),
              0);
    EXPECT_EQ(asOrdinaryUser([&] { return linuxFolders({profile + u"/empty"_s, {}}) ? 1 : 0; }), 0)
        << "it has nothing to show";
    for (const QString& folder : {root.path(), profile}) {
        ::chmod(QFile::encodeName(folder).constData(), 0755);
    }
}

struct SettingsUserDefaultsTest : testing::Test {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
};

TEST_F(SettingsUserDefaultsTest, ValuesKeepTheirTypes) {
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

TEST_F(SettingsUserDefaultsTest, ReadsHandWrittenValues) {
    ASSERT_TRUE(replaceFile(path, "[General]\nshow_img=No\nbg_img = TRUE\nodd=perhaps\nempty=\n"));
    const SettingsUserDefaults defaults(path);
    EXPECT_EQ(defaults.boolForKey(u"show_img"_s), false);
    EXPECT_EQ(defaults.boolForKey(u"bg_img"_s), true);
    EXPECT_FALSE(defaults.boolForKey(u"odd"_s) || defaults.boolForKey(u"empty"_s));
}

TEST_F(SettingsUserDefaultsTest, WritesOnlyChangedKeys) {
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

TEST_F(SettingsUserDefaultsTest, RetriesAFailedWrite) {
    const QString inside = folder.filePath(u"inside/settings.ini"_s);
    ASSERT_TRUE(replaceFile(folder.filePath(u"inside"_s), "a file in the way"));
    SettingsUserDefaults defaults(inside);
    defaults.setInteger(u"currently_show_count"_s, 3);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey(u"currently_show_count"_s), 3);
    ASSERT_TRUE(QFile::remove(folder.filePath(u"inside"_s)));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(SettingsUserDefaults(inside).integerForKey(u"currently_show_count"_s), 3);
}

TEST_F(SettingsUserDefaultsTest, AReadOnlyProfileKeepsChangesInMemory) {
    ManualClock clock;
    ManualQueues queues(clock);
    SettingsUserDefaults defaults(path, queues.makeQueue("settings", QueueKind::Serial), false);
    defaults.setInteger(u"currently_show_count"_s, 3);
    EXPECT_EQ(defaults.integerForKey(u"currently_show_count"_s), 3);
    EXPECT_EQ(queues.delayed(), 0U);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(SettingsUserDefaultsTest, WritesChangesTogetherAfterADelay) {
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

} // namespace
} // namespace guide::test
