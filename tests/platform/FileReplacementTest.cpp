#include "platform/files/FileReplacement.h"

#include "fakes/Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Receives the calls that matter after a power failure: "d"ata of a file, the file "s"ystem,
/// "r"ename, a "f"older. May be null.
std::string* fileSystemCalls = nullptr;

void note(char call) {
    if (fileSystemCalls != nullptr) {
        fileSystemCalls->push_back(call);
    }
}
bool failFlush = false;

int flushResult(long result) {
    if (failFlush) {
        errno = EIO;
        return -1;
    }
    return int(result);
}

} // namespace

// These take the place of the C library's functions in this program.
extern "C" {
int fdatasync(int file) {
    note('d');
    return flushResult(::syscall(SYS_fdatasync, file));
}
int syncfs(int file) noexcept {
    note('s');
    return flushResult(::syscall(SYS_syncfs, file));
}
int fsync(int file) {
    note('f');
    return int(::syscall(SYS_fsync, file));
}
int renameat(int from, const char* name, int to, const char* newName) noexcept {
    note('r');
    return int(::syscall(SYS_renameat2, from, name, to, newName, 0));
}
}

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

/// Limits the size of files while it lives: a write fails half-way, as on a full disk.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit tight{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_ignored);
    }

  private:
    const sighandler_t m_ignored = std::signal(SIGXFSZ, SIG_IGN);
    rlimit m_before{};
};

TEST(FileReplacementTest, AFailedWriteLeavesOnlyTheOldFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"file"_s);
    ASSERT_TRUE(replaceFile(path, "old"));
    {
        const FileSizeLimit limit(4096);
        EXPECT_FALSE(replaceFile(path, QByteArray(10'000, 'n')));
    }
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(namesIn(folder), QStringList{u"file"_s});
    EXPECT_FALSE(replaceFile(folder.filePath(u"no such folder/file"_s), "new"));
    // A folder cannot be replaced by a file.
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"taken/inside"_s));
    EXPECT_FALSE(replaceFile(folder.filePath(u"taken"_s), "new"));
    EXPECT_EQ(namesIn(folder), QStringList{u"file"_s});
}

TEST(FileReplacementTest, ABatchAsksBeforeEachFile) {
    const QTemporaryDir folder;
    ReplacementBatch batch(folder.path());
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s}) {
        ASSERT_TRUE(replaceFile(folder.filePath(name), "old"));
        ASSERT_TRUE(batch.add(name, "new"));
    }
    EXPECT_EQ(batch.commit([](std::size_t index) { return index != 1; }), (std::vector{true, false, true}));
    EXPECT_EQ(contentOf(folder.filePath(u"b"_s)), "old");
    EXPECT_EQ(contentOf(folder.filePath(u"c"_s)), "new");
    EXPECT_EQ(namesIn(folder), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

TEST(FileReplacementTest, ContentReachesTheDiskBeforeItsName) {
    for (const int count : {1, 3, 40}) {
        SCOPED_TRACE(count);
        const QTemporaryDir folder;
        ReplacementBatch batch(folder.path());
        for (int i = 0; i < count; ++i) {
            ASSERT_TRUE(batch.add(QString::number(i), "content"));
        }
        std::string calls;
        fileSystemCalls = &calls;
        EXPECT_EQ(batch.commit(), std::vector<bool>(std::size_t(count), true));
        fileSystemCalls = nullptr;
        const std::string flushes = count < 10 ? std::string(std::size_t(count), 'd') : "s";
        EXPECT_EQ(calls, flushes + std::string(std::size_t(count), 'r') + 'f');
        EXPECT_TRUE(batch.empty());
    }
}

TEST(FileReplacementTest, ABatchReplacesAllFilesOrKeepsTheOldOnes) {
    const std::tuple<const char*, int, bool, bool> rows[] = {{"few", 3, false, true},
                                                             {"many", 40, false, true},
                                                             {"few, flushing fails", 3, true, true},
                                                             {"many, flushing fails", 40, true, true},
                                                             {"discarded", 40, false, false}};
    for (const auto& [name, count, flushFails, commits] : rows) {
        SCOPED_TRACE(name);
        const QTemporaryDir folder;
        for (int i = 0; i < count; ++i) {
            ASSERT_TRUE(replaceFile(folder.filePath(QString::number(i)), "old"));
        }
        {
            ReplacementBatch batch(folder.path());
            for (int i = 0; i < count; ++i) {
                ASSERT_TRUE(batch.add(QString::number(i), "new"));
            }
            const FileSizeLimit limit(4096);
            EXPECT_FALSE(batch.add(u"0"_s, QByteArray(10'000, 'n')));
            failFlush = flushFails;
            if (commits) {
                EXPECT_EQ(batch.commit(), std::vector<bool>(std::size_t(count), !flushFails));
            }
            failFlush = false;
        }
        EXPECT_EQ(namesIn(folder).size(), count) << "no temporary file is left";
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(contentOf(folder.filePath(QString::number(i))), commits && !flushFails ? "new" : "old");
        }
    }
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
