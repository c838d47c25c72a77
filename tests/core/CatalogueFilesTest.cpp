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
        const auto [channels, why] = loadedCatalogue(supplied, archive, types, [this](const QString& name) {
            ++iconsLooked;
            return name != u"absent"_s;
        });
        problem = why;
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
    QString problem;
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
    EXPECT_TRUE(problem.contains(supplied));
    supply("Jedna", kSupplied);
    load();
    ASSERT_TRUE(replaceFile(supplied, "no property list", *fileModificationDate(archive) + 1s));
    EXPECT_EQ(load(), u"Jedna"_s);
    EXPECT_TRUE(problem.contains(u"cannot be read as a catalogue"_s)) << problem.toStdString();
    ASSERT_TRUE(QFile::remove(supplied));
    EXPECT_EQ(load(), u"Jedna"_s);
}

TEST_F(CatalogueFilesTest, AnEmptyCatalogueIsNotArchived) {
    supply("", kSupplied);
    EXPECT_EQ(load(), u"nothing"_s);
    supply("Jedna", kSupplied);
    EXPECT_EQ(load(), u"Jedna"_s);
}

TEST_F(CatalogueFilesTest, TellsWhyChannelsAreMissing) {
    const QByteArray id = kId.toLatin1();
    const auto row = [](const QByteArray& location, const QByteArray& language, const QByteArray& icon,
                        const QByteArray& more = {}) {
        return "<dict><key>Location</key><string>" + location +
               "</string><key>Title</key><string>A</string>" + "<key>Language</key><string>" + language +
               "</string><key>Icon</key><string>" + icon + "</string>" + more + "</dict>";
    };
    const struct {
        const char* name;
        QByteArray rows;
        const char* problem;
    } cases[] = {
        {"all is used", row(id, "cs", "Czech/a", "<key>Number</key><integer>5</integer>"), ""},
        {"empty", "", "no channels"},
        {"no dictionaries", "<string>a</string><integer>1</integer>", "2 of 2 channels left out: 2 type"},
        {"a required value of another type",
         row(id, "cs", "Czech/a") + "<dict><key>Location</key><integer>1</integer></dict>",
         "1 of 2 channels left out: 1 type"},
        {"a source of another type", row(id, "cs", "Czech/a", "<key>Location1</key><integer>5</integer>"),
         "1 of 1 channels doubtful: 1 type"},
        {"no title", "<dict><key>Location</key><string>a</string></dict>",
         "1 of 1 channels left out: 1 incomplete"},
        {"other languages, absent icons and a bad identity",
         row(id, "de", "Czech/a") + row(id, "cs", "czech/a") + row(id, "cs", "Czech/absent") +
             row("one", "cs", "Czech/a") + row(id, "en", "Czech/a"),
         "4 of 5 channels left out: 3 language, 1 icon; 1 of 5 channels doubtful: 1 identity"},
    };
    for (const auto& each : cases) {
        ASSERT_TRUE(replaceFile(supplied, R"(<plist version="1.0"><dict><key>Channels</key><array>)" +
                                              each.rows + "</array></dict></plist>"));
        QFile::remove(archive);
        load();
        EXPECT_EQ(problem, each.problem[0] ? supplied + u": "_s + QLatin1StringView(each.problem) : QString())
            << each.name;
    }
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
