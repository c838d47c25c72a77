#include "app/LaunchFiles.h"

#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

struct LaunchFilesTest : testing::Test {
    LaunchFilesTest() {
        for (const QString& name : {u"bundle"_s, u"caches"_s, u"runtime"_s, u"own"_s, u"configuration"_s}) {
            QDir(folder.path()).mkdir(name);
        }
        write(u"bundle/hosts.json"_s, R"({"Host": "installed.test"})");
        folders.bundle = path(u"bundle"_s);
        folders.caches = path(u"caches"_s);
        folders.runtime = path(u"runtime"_s);
        folders.configuration = path(u"configuration"_s);
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    void write(const QString& name, const QByteArray& bytes) const {
        ASSERT_TRUE(replaceFile(path(name), bytes));
    }
    const QTemporaryDir folder;
    Folders folders;
};

TEST_F(LaunchFilesTest, WithoutOptionsTheInstalledFilesAreRead) {
    const QString archive = launchFiles({}, folders)->catalogueArchive;
    EXPECT_TRUE(archive.startsWith(path(u"caches/"_s)));
    write(QDir(folder.path()).relativeFilePath(archive), "kept");
    const auto files = launchFiles({}, folders);
    EXPECT_TRUE(QFile::exists(archive));
    EXPECT_EQ(files->catalogue, path(u"bundle/Data.plist"_s));
    EXPECT_EQ(files->icons, path(u"bundle/icons"_s));
    EXPECT_EQ(files->hosts.value(u"Host"_s), u"installed.test"_s);
    EXPECT_EQ(files->firstSelection, std::nullopt);
}

TEST_F(LaunchFilesTest, ANamedCatalogueIgnoresItsArchiveAndUsesTheIconsBesideIt) {
    LaunchOptions options;
    options.catalogue = path(u"own/List.plist"_s);
    options.select = path(u"own/selection.json"_s);
    options.hosts = path(u"own/hosts.json"_s);
    EXPECT_FALSE(launchFiles(options, folders)) << "a named host table must be readable";
    write(u"own/hosts.json"_s, R"({"Host": "own.test"})");

    const QString archive = launchFiles(options, folders)->catalogueArchive;
    EXPECT_TRUE(archive.startsWith(path(u"runtime/"_s)));
    write(QDir(folder.path()).relativeFilePath(archive), "old");
    auto files = launchFiles(options, folders);
    EXPECT_FALSE(QFile::exists(archive));
    EXPECT_EQ(files->catalogue, options.catalogue);
    EXPECT_EQ(files->firstSelection, options.select);
    EXPECT_EQ(files->hosts.value(u"Host"_s), u"own.test"_s);
    EXPECT_EQ(files->icons, path(u"bundle/icons"_s));
    QDir(folder.path()).mkdir(u"own/icons"_s);
    EXPECT_EQ(launchFiles(options, folders)->icons, path(u"own/icons"_s));
}

} // namespace
} // namespace guide
