#include "core/ChannelCatalogue.h"

#include "platform/FileReplacement.h"

#include <QFile>
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

class ChannelCatalogueTest : public testing::Test {
  protected:
    QString load() {
        const auto channels = catalogueChannels(supplied, archive, types, [this](const QString&) {
            ++iconsLooked;
            return true;
        });
        return channels.empty() ? u"nothing"_s : channels.front().value(u"Title"_s);
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

TEST_F(ChannelCatalogueTest, TheArchiveIsTakenWhenItIsNewer) {
    supply("Jedna", kSupplied);
    EXPECT_EQ(load(), u"Jedna"_s);
    EXPECT_EQ(iconsLooked, 1);
    supply("Dvě", kSupplied);
    EXPECT_EQ(load(), u"Jedna"_s) << "from the archive";
    EXPECT_EQ(iconsLooked, 1) << "without a look at the icons";

    const Moment archived = *fileModificationDate(archive);
    supply("Dvě", archived);
    EXPECT_EQ(load(), u"Dvě"_s) << "as old as the archive";
    supply("Dva", kSupplied + 24h);
    EXPECT_EQ(load(), u"Dva"_s) << "made long before the archive was written, but after its own list";
    supply("Tři", *fileModificationDate(archive) + 1s);
    EXPECT_EQ(load(), u"Tři"_s);
}

TEST_F(ChannelCatalogueTest, ADamagedArchiveIsMadeAnew) {
    supply("Jedna", kSupplied);
    load();
    QFile file(archive);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.resize(file.size() - 1));
    file.close();
    supply("Dvě", kSupplied);
    EXPECT_EQ(load(), u"Dvě"_s);
    supply("Tři", kSupplied);
    EXPECT_EQ(load(), u"Dvě"_s) << "from the new archive";
}

TEST_F(ChannelCatalogueTest, AnUnreadableListCostsNobodyTheCatalogue) {
    EXPECT_EQ(load(), u"nothing"_s);
    supply("Jedna", kSupplied);
    load();
    ASSERT_TRUE(replaceFile(supplied, "no property list", *fileModificationDate(archive) + 1s));
    EXPECT_EQ(load(), u"Jedna"_s);
    ASSERT_TRUE(QFile::remove(supplied));
    EXPECT_EQ(load(), u"Jedna"_s);
}

TEST_F(ChannelCatalogueTest, AnEmptyCatalogueIsNotKept) {
    supply("", kSupplied);
    EXPECT_EQ(load(), u"nothing"_s);
    supply("Jedna", kSupplied);
    EXPECT_EQ(load(), u"Jedna"_s);
}

TEST(ChannelDataTest, TheLaterRowOfAnIdentityStays) {
    const auto data = makeChannelData({{{u"Location"_s, kId}, {u"Title"_s, u"first"_s}},
                                       {{u"Title"_s, u"no location"_s}},
                                       {{u"Location"_s, kId.toUpper()}, {u"Title"_s, u"second"_s}}});
    ASSERT_EQ(data->size(), 1u);
    EXPECT_EQ(data->at(ObjectId::fromHex(kId)).value(u"Title"_s), u"second"_s);
}

} // namespace
} // namespace guide
