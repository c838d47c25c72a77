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
    std::optional<LaunchFiles> files(const LaunchOptions& options) {
        return launchFiles(options, folders, why);
    }

    const QTemporaryDir folder;
    Folders folders;
    QString why;
};

TEST_F(LaunchFilesTest, WithoutOptionsTheInstalledFilesAreRead) {
    const QString archive = files({})->catalogueArchive;
    EXPECT_TRUE(archive.startsWith(path(u"caches/"_s)));
    write(QDir(folder.path()).relativeFilePath(archive), "kept");
    const auto installed = files({});
    EXPECT_TRUE(QFile::exists(archive));
    EXPECT_EQ(installed->catalogue, path(u"bundle/Data.plist"_s));
    EXPECT_EQ(installed->icons, path(u"bundle/icons"_s));
    EXPECT_EQ(installed->hosts.value(u"Host"_s), u"installed.test"_s);
    EXPECT_EQ(installed->firstSelection, std::nullopt);
}

TEST_F(LaunchFilesTest, ANamedCatalogueIgnoresItsArchiveAndUsesTheIconsBesideIt) {
    LaunchOptions options;
    options.catalogue = path(u"own/List.plist"_s);
    options.hosts = path(u"own/hosts.json"_s);
    EXPECT_FALSE(files(options)) << "a named host table must be readable";
    write(u"own/hosts.json"_s, R"({"Host": "own.test"})");

    const QString archive = files(options)->catalogueArchive;
    EXPECT_TRUE(archive.startsWith(path(u"runtime/"_s)));
    write(QDir(folder.path()).relativeFilePath(archive), "old");
    const auto named = files(options);
    EXPECT_FALSE(QFile::exists(archive));
    EXPECT_EQ(named->catalogue, options.catalogue);
    EXPECT_EQ(named->hosts.value(u"Host"_s), u"own.test"_s);
    EXPECT_EQ(named->icons, path(u"bundle/icons"_s));
    QDir(folder.path()).mkdir(u"own/icons"_s);
    EXPECT_EQ(files(options)->icons, path(u"own/icons"_s));
}

TEST_F(LaunchFilesTest, ASelectionKeepsItsIdentitiesInOrder) {
    const QByteArray first = "58f4ded60befe78cb3360001";
    const QByteArray second = "58F4DED60BEFE78CB336000A";
    LaunchOptions options;
    options.select = path(u"own/selection.json"_s);
    EXPECT_FALSE(files(options)) << "a named selection must be readable";
    EXPECT_TRUE(why.contains(*options.select)) << why.toStdString();
    write(u"own/selection.json"_s, R"({"selected": []})");
    EXPECT_FALSE(files(options));
    write(u"own/selection.json"_s,
          R"([")" + second + R"(", 7, "58f4ded60befe78cb336000g", ")" + first + R"(", ")" + second + R"("])");
    testing::internal::CaptureStderr();
    EXPECT_EQ(files(options)->firstSelection, (std::vector{ObjectId::fromHex(QString::fromLatin1(second)),
                                                           ObjectId::fromHex(QString::fromLatin1(first))}));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("2 of 5 channels left out: 1 type, 1 identity"),
              std::string::npos);
}

} // namespace
} // namespace guide
