#include "platform/linux/LinuxFileWatch.h"

#include "platform/files/FileReplacement.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class LinuxFileWatchTest : public testing::Test {
  protected:
    /// Whether a change is reported.
    bool reports() {
        const int before = m_changes;
        return QTest::qWaitFor([&] { return m_changes > before; });
    }
    static void append(const QString& path, const QByteArray& text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(text);
    }

    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    const QCoreApplication m_application{m_count, m_arguments};
    const QTemporaryDir folder;
    LinuxFileWatch watch{20ms};
    int m_changes = 0;
    const std::function<void()> m_changed = [this] { ++m_changes; };
};

TEST_F(LinuxFileWatchTest, ReportsAFileHoweverItChanges) {
    const QString path = folder.filePath(u"later/feed.xml"_s);
    const FileWatch::Token token = watch.watch(path, m_changed);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"later"_s));
    ASSERT_TRUE(replaceFile(path, "1"));
    EXPECT_TRUE(reports()) << "it appeared";
    ASSERT_TRUE(replaceFile(path, "22"));
    EXPECT_TRUE(reports()) << "it was replaced";
    append(path, "3");
    EXPECT_TRUE(reports()) << "it was written to after it was replaced";
    ASSERT_TRUE(QFile::remove(path));
    append(path, "4444");
    EXPECT_TRUE(reports()) << "it was removed and made again";

    // A neighbour wakes the watch too; its own change afterwards shows that nothing was reported before.
    const int before = m_changes;
    ASSERT_TRUE(replaceFile(folder.filePath(u"later/other.xml"_s), "other"));
    ASSERT_TRUE(QFile::remove(folder.filePath(u"later/other.xml"_s)));
    append(path, "5");
    EXPECT_TRUE(reports());
    EXPECT_EQ(m_changes, before + 1);
}

TEST_F(LinuxFileWatchTest, ReportsAFolderUntilItIsDropped) {
    FileWatch::Token token = watch.watch(folder.path(), m_changed);
    ASSERT_TRUE(replaceFile(folder.filePath(u"a.xml"_s), "1"));
    EXPECT_TRUE(reports());
    append(folder.filePath(u"a.xml"_s), "2");
    EXPECT_TRUE(reports());
    token.reset();
    int others = 0;
    const FileWatch::Token other = watch.watch(folder.path(), [&others] { ++others; });
    const int before = m_changes;
    ASSERT_TRUE(replaceFile(folder.filePath(u"b.xml"_s), "1"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return others > 0; }));
    EXPECT_EQ(m_changes, before);
}

} // namespace
} // namespace guide
