#include "platform/archive/PropertyList.h"

#include "platform/archive/PropertyListBounds.h"

#include <QDateTime>

#include <cstdlib>
#include <gtest/gtest.h>
#include <plist/plist.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

QByteArray xmlList(const QByteArray& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST "
           "1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">" +
           content + "</plist>";
}

QByteArray binaryList(const QByteArray& xml) {
    plist_t root = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &root);
    char* bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(root, &bytes, &size);
    const QByteArray binary(bytes, static_cast<qsizetype>(size));
    plist_free(root);
    std::free(bytes); // NOLINT: the library's memory comes from malloc
    return binary;
}

const QByteArray kEveryKind =
    "<dict><key>Channels</key><array><dict><key>Title</key><string>Č&amp;T 📺</string></dict></array>"
    "<key>empty</key><string></string><key>yes</key><true/><key>no</key><false/>"
    "<key>number</key><integer>-42</integer><key>real</key><real>1.5</real>"
    "<key>date</key><date>2025-12-31T18:30:00Z</date><key>data</key><data>AAEC</data></dict>";

TEST(PropertyListTest, ReadsEveryTypeFromBothFormats) {
    const QVariantMap expected{
        {u"Channels"_s, QVariantList{QVariantMap{{u"Title"_s, u"Č&T 📺"_s}}}},
        {u"empty"_s, u""_s},
        {u"yes"_s, true},
        {u"no"_s, false},
        {u"number"_s, qlonglong{-42}},
        {u"real"_s, 1.5},
        {u"date"_s, QDateTime(QDate(2025, 12, 31), QTime(18, 30), Qt::UTC)},
        {u"data"_s, QByteArray("\0\1\2", 3)},
    };
    const QByteArray xml = xmlList(kEveryKind);
    EXPECT_EQ(propertyListFromData(xml), QVariant(expected));
    EXPECT_EQ(propertyListFromData(binaryList(xml)), QVariant(expected));

    // Counts of one, two and four bytes.
    for (const int count : {15, 255, 256, 70'000}) {
        const QByteArray large = xmlList("<dict><key>" + QByteArray(count, 'k') + "</key><array>" +
                                         QByteArray("<true/>").repeated(count) + "</array></dict>");
        const std::optional<QVariant> read = propertyListFromData(binaryList(large));
        EXPECT_TRUE(read) << count;
        EXPECT_EQ(read, propertyListFromData(large)) << count;
    }
}

TEST(PropertyListTest, RefusesDamagedLists) {
    const QByteArray xml = xmlList(kEveryKind);
    const std::vector<std::pair<const char*, QByteArray>> cases{
        {"no data", ""},
        {"text", "Channels"},
        {"HTML", "<html><body>Not found</body></html>"},
        {"truncated XML", xml.left(xml.size() / 2)},
        {"truncated binary", binaryList(xml).chopped(40)},
        {"only the binary header", "bplist00"},
        {"NUL in a key", xmlList("<dict><key>a&#0;b</key><true/></dict>")},
        {"not UTF-8", xmlList("<string>\xe9</string>")},
    };
    for (const auto& [name, data] : cases) {
        EXPECT_FALSE(propertyListFromData(data)) << name;
    }
}

/// A binary list in which each object but the last is an array that refers to the next object `references`
/// times; `head` is the marker and count of these arrays.
QByteArray bomb(const QByteArray& head, int references, char objects) {
    QByteArray list = "bplist00";
    QByteArray offsets;
    const auto number = [](qsizetype value, int size) {
        QByteArray bytes;
        for (int byte = size - 1; byte >= 0; --byte) {
            bytes += byte < 4 ? static_cast<char>(value >> 8 * byte) : '\0';
        }
        return bytes;
    };
    for (char object = 0; object < objects; ++object) {
        offsets += number(list.size(), 2);
        const char next = static_cast<char>(object + 1);
        list += next < objects ? head + QByteArray(references, next) : QByteArray("\x09");
    }
    const qsizetype table = list.size();
    return list + offsets + QByteArray(6, '\0') + '\2' + '\1' + number(objects, 8) + number(0, 8) +
           number(table, 8);
}

TEST(PropertyListTest, RefusesReferencesAndOffsetsOutsideTheList) {
    const QByteArray list = bomb("\xa1", 1, 2);
    EXPECT_TRUE(binaryPropertyListIsBounded(list));
    EXPECT_FALSE(binaryPropertyListIsBounded(QByteArray(list).replace(9, 1, "\2"))) << "an object too many";
    EXPECT_FALSE(binaryPropertyListIsBounded(QByteArray(list).replace(14, 1, "\x0f"))) << "the trailer";
}

TEST(PropertyListTest, RefusesEndlessTrees) {
    const auto nested = [](int depth) {
        return xmlList(QByteArray("<array>").repeated(depth) + "<true/>" +
                       QByteArray("</array>").repeated(depth));
    };
    EXPECT_TRUE(propertyListFromData(nested(64)));
    EXPECT_TRUE(propertyListFromData(binaryList(nested(64))));
    EXPECT_FALSE(propertyListFromData(nested(65)));
    EXPECT_FALSE(propertyListFromData(binaryList(nested(65))));

    // Arrays of few and of many elements, with counts in the marker and of one, two and four bytes.
    EXPECT_FALSE(binaryPropertyListIsBounded(bomb("\xa2", 2, 40)));
    EXPECT_FALSE(binaryPropertyListIsBounded(bomb("\xaf\x10\x28", 40, 8)));
    EXPECT_FALSE(binaryPropertyListIsBounded(bomb("\xaf\x11\x01\x2c", 300, 6)));
    EXPECT_FALSE(binaryPropertyListIsBounded(bomb(QByteArray("\xaf\x12\0\0\x01\x2c", 6), 300, 6)));
    EXPECT_TRUE(binaryPropertyListIsBounded(bomb("\xa2", 2, 5)));
    EXPECT_FALSE(propertyListFromData(bomb("\xa2", 2, 40)));
}

} // namespace
} // namespace guide
