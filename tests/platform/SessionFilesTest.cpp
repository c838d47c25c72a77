#include "platform/linux/SessionFiles.h"

#include "fakes/Files.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

class SessionFilesTest : public testing::Test {
  protected:
    SessionFilesTest() {
        qputenv("HOME", home.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home.filePath(u"configuration"_s).toLocal8Bit());
        // Ignored, because it is relative.
        qputenv("XDG_DATA_HOME", "data");
        QDir().mkpath(templates);
        for (const char* name : {"a.desktop", "a.timer", "b.service"}) {
            writeFile(templates + u'/' + QLatin1StringView(name) + u".in"_s,
                      "[Top]\nExec=\"@PROGRAMS@/a\"\nAgain=\"@PROGRAMS@/b\"\n");
        }
    }
    ~SessionFilesTest() override {
        const auto restore = [](const char* name, const QByteArray& value) {
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        };
        restore("HOME", m_home);
        restore("XDG_CONFIG_HOME", m_configuration);
        restore("XDG_DATA_HOME", m_data);
    }

    SessionFiles files(const QString& programs = u"/opt/a guide/bin"_s) const {
        return {templates,
                programs,
                {{SessionFile::Kind::Autostart, u"a.desktop"_s},
                 {SessionFile::Kind::SystemdUnit, u"a.timer"_s, u"timers.target"_s},
                 {SessionFile::Kind::BusService, u"b.service"_s}}};
    }
    /// Below the home folder, without templates and empty folders.
    QStringList written() const {
        QStringList paths;
        QDirIterator all(home.path(), QDir::Files | QDir::System | QDir::Hidden,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next().mid(home.path().size() + 1);
            if (!path.startsWith("templates/"_L1)) {
                paths << path;
            }
        }
        paths.sort();
        return paths;
    }

    const QTemporaryDir home;
    const QString templates = home.filePath(u"templates"_s);

  private:
    const QByteArray m_home = qgetenv("HOME");
    const QByteArray m_configuration = qgetenv("XDG_CONFIG_HOME");
    const QByteArray m_data = qgetenv("XDG_DATA_HOME");
};

TEST_F(SessionFilesTest, AreWrittenAndRemovedForTheUser) {
    const QStringList all{u".local/share/dbus-1/services/b.service"_s, u"configuration/autostart/a.desktop"_s,
                          u"configuration/systemd/user/a.timer"_s,
                          u"configuration/systemd/user/timers.target.wants/a.timer"_s};
    for (int times = 0; times < 2; ++times) {
        EXPECT_TRUE(files().write());
        EXPECT_EQ(written(), all);
        EXPECT_TRUE(files().areInUse());
    }
    const QString autostart = home.filePath(all[1]);
    EXPECT_EQ(contentOf(autostart), "[Top]\nExec=\"/opt/a guide/bin/a\"\nAgain=\"/opt/a guide/bin/b\"\n");
    EXPECT_EQ(contentOf(home.filePath(all[3])), contentOf(autostart)) << "the link leads to the unit";

    EXPECT_FALSE(files().areOfOtherPrograms());
    const SessionFiles moved = files(u"/usr/bin"_s);
    EXPECT_TRUE(moved.areOfOtherPrograms());
    EXPECT_TRUE(moved.write());
    EXPECT_TRUE(contentOf(autostart).contains("\"/usr/bin/a\""));

    // By `systemctl disable`.
    ASSERT_TRUE(QFile::remove(home.filePath(all[3])));
    EXPECT_FALSE(moved.areInUse());
    EXPECT_TRUE(moved.write());
    EXPECT_TRUE(moved.areInUse());
    // By the desktop's own list of programs.
    ASSERT_TRUE(writeFile(autostart, contentOf(autostart) + "Hidden=true\n"));
    EXPECT_FALSE(moved.areInUse());
    ASSERT_TRUE(QFile::remove(home.filePath(all[2])));
    for (int times = 0; times < 2; ++times) {
        EXPECT_TRUE(moved.remove());
        EXPECT_EQ(written(), QStringList());
    }
}

TEST_F(SessionFilesTest, LeaveNothingBehindWhenTheyCannotBeWritten) {
    for (const char* programs : {"/home/a$b", "/home/a\"b", "/home/100%", "/home/a\nb", "/home/`a`"}) {
        EXPECT_FALSE(files(QString::fromLatin1(programs)).write()) << programs;
        EXPECT_EQ(written(), QStringList()) << programs;
    }
    const QString blocked = home.filePath(u".local"_s);
    ASSERT_TRUE(writeFile(blocked, "a file"));
    EXPECT_FALSE(files().write());
    EXPECT_EQ(written(), QStringList(u".local"_s));
    ASSERT_TRUE(QFile::remove(blocked));
    ASSERT_TRUE(QFile::remove(templates + u"/a.timer.in"_s));
    EXPECT_FALSE(files().write());
    EXPECT_EQ(written(), QStringList());
}

} // namespace
} // namespace guide::test
