#include "platform/files/FileReplacement.h"

#include "fakes/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace guide::test {
namespace {

QStringList namesIn(const QTemporaryDir& folder) {
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
}

TEST(FileReplacementTest, ReplacesTheFileAndSetsTheDate) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"číslo 1.plist"_s);
    for (const Moment modified :
         {Moment(std::chrono::milliseconds(1'767'200'400'123)), Moment(std::chrono::milliseconds(-1))}) {
        const QByteArray content = QByteArray::number(qlonglong{modified.time_since_epoch().count()});
        ASSERT_TRUE(replaceFile(path, content, modified));
        EXPECT_EQ(contentOf(path), content);
        EXPECT_EQ(fileModificationDate(path), modified);
    }
    EXPECT_EQ(namesIn(folder), QStringList{u"číslo 1.plist"_s});
    EXPECT_FALSE(fileModificationDate(folder.filePath(u"absent"_s)));
}

TEST(FileReplacementTest, KeepsThePermissionsOfTheOldFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"file"_s);
    const auto mode = [&path] {
        struct stat found{};
        ::stat(QFile::encodeName(path).constData(), &found);
        return found.st_mode & 07777;
    };
    ASSERT_TRUE(replaceFile(path, "first"));
    EXPECT_EQ(mode(), 0600U);
    ::chmod(QFile::encodeName(path).constData(), 0644);
    ASSERT_TRUE(replaceFile(path, "second"));
    EXPECT_EQ(mode(), 0644U);
}

TEST(FileReplacementTest, AFailedWriteLeavesOnlyTheOldFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"file"_s);
    ASSERT_TRUE(replaceFile(path, "old"));

    // A file size limit makes a write fail half-way, like a full disk.
    const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit tight{4096, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &tight), 0);
    const bool replaced = replaceFile(path, QByteArray(10'000, 'n'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, ignored);

    EXPECT_FALSE(replaced);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(namesIn(folder), QStringList{u"file"_s});
    EXPECT_FALSE(replaceFile(folder.filePath(u"no such folder/file"_s), "new"));
    // A folder cannot be replaced by a file.
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"taken/inside"_s));
    EXPECT_FALSE(replaceFile(folder.filePath(u"taken"_s), "new"));
    EXPECT_EQ(namesIn(folder), QStringList{u"file"_s});
}

TEST(FileReplacementTest, RemovesTemporaryFilesOfDeadProcesses) {
    const pid_t dead = ::fork();
    if (dead == 0) {
        ::_exit(0);
    }
    ASSERT_EQ(::waitpid(dead, nullptr, 0), dead);
    const QTemporaryDir folder;
    const auto make = [&folder](const QString& name) {
        ASSERT_TRUE(replaceFile(folder.filePath(name), "x"));
    };
    make(u".replacing-%1-0"_s.arg(dead));
    make(u".replacing-%1-7"_s.arg(::getpid()));
    make(u".replacing-%1-0"_s.arg(::getppid()));
    make(u".replacing-by hand"_s);
    make(u"list.plist"_s);
    EXPECT_EQ(removeStaleReplacements(folder.path()), 2);
    EXPECT_EQ(namesIn(folder).size(), 3);
}

} // namespace
} // namespace guide::test
