#include "core/CatalogueFiles.h"

#include "core/Catalogue.h"
#include "fakes/Files.h"
#include "platform/archive/Archive.h"
#include "platform/files/FileReplacement.h"

#include <QCborArray>
#include <QCborMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const QString kId = u"58f4ded60befe78cb336a80a"_s;
constexpr Moment kSupplied{1'700'000'000s};

QByteArray propertyList(const QByteArray& title) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>Channels</key><array>)"
           "<dict><key>Location</key><string>58f4ded60befe78cb336a80a</string><key>Title</key><string>" +
           title +
           "</string><key>Language</key><string>cs</string><key>Icon</key><string>Czech/a</string>"
           "<key>Number</key><integer>5</integer></dict><string>no channel</string></array></dict></plist>";
}

class CatalogueFilesTest : public testing::Test {
  protected:
    QString load() {
        const auto channels = catalogueChannels(supplied, archive, types, [this](const QString&) {
            ++iconsLooked;
            return true;
        });
        return channels.empty() ? u"nothing"_s : channels.front().title;
    }
    void supply(const QByteArray& title, Moment modified) {
        ASSERT_TRUE(replaceFile(supplied, propertyList(title), modified));
    }

    QTemporaryDir folder;
    QString supplied = folder.filePath(u"Data.plist"_s);
    QString archive = catalogueArchivePath(folder.path());
    SupportedChannelTypes types{{{u"cs"_s, u"Czech"_s}}};
    int iconsLooked = 0;
};

TEST_F(CatalogueFilesTest, UsesTheArchiveWhileItIsNewer) {
    supply("Jedna", kSupplied);
    EXPECT_EQ(load(), u"Jedna"_s);
    EXPECT_EQ(iconsLooked, 1);
    supply("Dvě", kSupplied);
    EXPECT_EQ(load(), u"Jedna"_s) << "from the archive";
    EXPECT_EQ(iconsLooked, 1) << "icons are not loaded";

    const Moment archived = *fileModificationDate(archive);
    supply("Dvě", archived);
    EXPECT_EQ(load(), u"Dvě"_s) << "as old as the archive";
    supply("Dva", kSupplied + 24h);
    EXPECT_EQ(load(), u"Dva"_s) << "made long before the archive was written, but after its own list";
    supply("Tři", *fileModificationDate(archive) + 1s);
    EXPECT_EQ(load(), u"Tři"_s);
}

TEST_F(CatalogueFilesTest, ADamagedArchiveIsRebuilt) {
    supply("Jedna", kSupplied);
    load();
    ASSERT_TRUE(QFile::resize(archive, QFile(archive).size() - 1));
    supply("Dvě", kSupplied);
    EXPECT_EQ(load(), u"Dvě"_s);
    supply("Tři", kSupplied);
    EXPECT_EQ(load(), u"Dvě"_s) << "from the new archive";
}

TEST_F(CatalogueFilesTest, AnUnreadableListFallsBackToAnOldArchive) {
    EXPECT_EQ(load(), u"nothing"_s);
    supply("Jedna", kSupplied);
    load();
    ASSERT_TRUE(replaceFile(supplied, "no property list", *fileModificationDate(archive) + 1s));
    EXPECT_EQ(load(), u"Jedna"_s);
    ASSERT_TRUE(QFile::remove(supplied));
    EXPECT_EQ(load(), u"Jedna"_s);
}

TEST_F(CatalogueFilesTest, AnEmptyCatalogueIsNotArchived) {
    supply("", kSupplied);
    EXPECT_EQ(load(), u"nothing"_s);
    supply("Jedna", kSupplied);
    EXPECT_EQ(load(), u"Jedna"_s);
}

TEST_F(CatalogueFilesTest, TheArchiveHoldsTheRowsAsSupplied) {
    supply("Jedna", kSupplied);
    load();
    const QCborMap row{
        {u"Icon"_s, u"Czech/a"_s}, {u"Language"_s, u"cs"_s}, {u"Location"_s, kId}, {u"Title"_s, u"Jedna"_s}};
    EXPECT_EQ(unarchivedRoot(test::contentOf(archive)),
              QCborValue(QCborMap{{u"Channels"_s, QCborArray{row}}}));
}

TEST(CatalogueRowTest, ReadsTheValues) {
    const ChannelDictionary values{{u"Location"_s, kId.toUpper()}, {u"Title"_s, u"Jedna"_s},
                                   {u"Language"_s, u"cs/sk"_s},    {u"Icon"_s, u"Czech/sub/a"_s},
                                   {u"Location1"_s, u"r.x"_s},     {u"Location2"_s, u""_s},
                                   {u"Location4"_s, u"late"_s},    {u"Stream"_s, u""_s}};
    const auto row = catalogueRow(values);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->channel, (CatalogueChannel{ObjectId::fromHex(kId), u"Jedna"_s, u"cs/sk"_s, u"Czech"_s,
                                              u"sub/a"_s, QStringList{u"r.x"_s, u""_s}, QString()}));
    EXPECT_EQ(row->values, values);
    ChannelDictionary many = values;
    for (int number = 1; number <= 9; ++number) {
        many[u"Location%1"_s.arg(number)] = QString::number(number);
    }
    many.remove(u"Stream"_s);
    EXPECT_EQ(catalogueRow(many)->channel.sourceIds.last(), u"7"_s);
    EXPECT_FALSE(catalogueRow(many)->channel.stream);

    for (const QString& key : {u"Location"_s, u"Title"_s, u"Language"_s, u"Icon"_s}) {
        ChannelDictionary without = values;
        without.remove(key);
        EXPECT_FALSE(catalogueRow(without)) << key.toStdString();
    }
    for (const QString& icon : {u"Czech"_s, u"/a"_s, u"Czech/"_s}) {
        ChannelDictionary other = values;
        other[u"Icon"_s] = icon;
        EXPECT_FALSE(catalogueRow(other)) << icon.toStdString();
    }
}

TEST(CatalogueSnapshotTest, KeepsTheLaterChannelOfAnIdentity) {
    const ObjectId id = ObjectId::fromHex(kId);
    const CatalogueSnapshot snapshot({{id, u"first"_s, u"cs"_s, u"Czech"_s},
                                      {ObjectId::all(), u"other"_s, u"cs"_s, u"Czech"_s},
                                      {id, u"second"_s, u"cs"_s, u"Czech"_s}});
    EXPECT_EQ(snapshot.channels().size(), 2u);
    EXPECT_EQ(snapshot.find(id)->title, u"second"_s);
    EXPECT_EQ(snapshot.find(ObjectId::all())->title, u"other"_s);
    EXPECT_EQ(snapshot.find(ObjectId::popular()), nullptr);
}

} // namespace
} // namespace guide
