#include "platform/files/FileContent.h"

#include "platform/files/FileReplacement.h"
#include "platform/linux/SettingsUserDefaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

/// Puts each kind of thing that must not be read at the path, and calls `check`.
template <class Check>
void forEachUnreadable(const QString& path, qint64 mostBytes, const Check& check) {
    const QByteArray name = QFile::encodeName(path);
    {
        SCOPED_TRACE("pipe");
        ASSERT_EQ(::mkfifo(name.constData(), 0600), 0);
        check();
        ASSERT_TRUE(QFile::remove(path));
    }
    {
        SCOPED_TRACE("socket");
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        qstrncpy(address.sun_path, name.constData(), sizeof address.sun_path);
        ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        check();
        ::close(socket);
        ASSERT_TRUE(QFile::remove(path));
    }
    for (const char* target : {"/dev/zero", "/"}) {
        SCOPED_TRACE(target);
        ASSERT_EQ(::symlink(target, name.constData()), 0);
        check();
        ASSERT_TRUE(QFile::remove(path));
    }
    {
        SCOPED_TRACE("too large");
        ASSERT_TRUE(replaceFile(path, "[General]\ncurrently_show_count=7\n"));
        ASSERT_EQ(::truncate(name.constData(), mostBytes + 1), 0);
        check();
        ASSERT_TRUE(QFile::remove(path));
    }
}

TEST(FileContentTest, ReadsRegularFilesUpToTheirBound) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"čtu"_s);
    EXPECT_FALSE(fileContent(path, 10));
    ASSERT_TRUE(replaceFile(path, "0123456789"));
    EXPECT_EQ(fileContent(path, 10), "0123456789");
    EXPECT_FALSE(fileContent(path, 9));
    ASSERT_TRUE(QFile::remove(path));
    forEachUnreadable(path, 10, [&] { EXPECT_FALSE(fileContent(path, 10)); });
}

TEST(FileContentTest, SettingsThatCannotBeReadAreLeftAlone) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    forEachUnreadable(path, 1 << 20, [&] {
        SettingsUserDefaults defaults(path);
        EXPECT_FALSE(defaults.integerForKey(u"currently_show_count"_s));
        defaults.setBool(u"show_img"_s, false);
        EXPECT_EQ(defaults.boolForKey(u"show_img"_s), false);
        EXPECT_FALSE(defaults.synchronize());
    });
}

} // namespace
} // namespace guide
