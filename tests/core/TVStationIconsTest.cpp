#include "core/TVStationIcons.h"

#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

QImage filled(int width, int height, Qt::GlobalColor color = Qt::red) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

TEST(TVStationIconsTest, LetterboxesToOneSize) {
    const struct {
        const char* name;
        QSize size;
        double scale;
        QRect painted; // in pixels of the result
    } rows[] = {
        {"wide", {400, 72}, 1, {0, 14, 50, 9}},
        {"tall", {36, 144}, 1, {21, 0, 9, 36}},
        {"a small image is enlarged", {25, 18}, 1, {0, 0, 50, 36}},
        {"three pixels per point", {30, 30}, 3, {21, 0, 108, 108}},
        {"very narrow", {1, 4000}, 1, {25, 0, 1, 36}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const QImage icon = TVStationIcons::toIcon(filled(row.size.width(), row.size.height()), row.scale);
        ASSERT_EQ(icon.size(), QSize(50, 36) * row.scale);
        EXPECT_EQ(icon.devicePixelRatio(), row.scale);
        QRect painted;
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = 0; x < icon.width(); ++x) {
                if (icon.pixelColor(x, y).alpha() > 127) {
                    painted |= QRect(x, y, 1, 1);
                }
            }
        }
        EXPECT_NEAR(painted.x(), row.painted.x(), 1);
        EXPECT_NEAR(painted.y(), row.painted.y(), 1);
        EXPECT_EQ(painted.size(), row.painted.size());
    }
}

TEST(TVStationIconsTest, KeepsABitmapOfTheRightSize) {
    QImage image = filled(100, 72);
    image.setPixel(7, 7, qRgb(1, 2, 3));
    const QImage icon = TVStationIcons::toIcon(image, 2);
    EXPECT_EQ(icon.devicePixelRatio(), 2);
    EXPECT_EQ(icon.pixel(7, 7), qRgb(1, 2, 3));
    EXPECT_TRUE(TVStationIcons::toIcon(QImage(), 2).isNull());
}

TEST(TVStationIconsTest, RendersSVGAtTheIconsOwnSize) {
    QTemporaryDir folder;
    const QByteArray svg =
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="10" height="6" viewBox="0 0 10 6">)"
        R"(<rect width="10" height="6" fill="#f00"/><rect width="5" height="6" fill="#00f"/></svg>)";
    ASSERT_TRUE(replaceFile(folder.filePath(u"halves.svg"_s), svg));
    const QImage icon = TVStationIcons(folder.path(), 2).iconNamed(u"halves"_s);
    ASSERT_EQ(icon.size(), QSize(100, 72));
    EXPECT_EQ(icon.pixelColor(50, 4).alpha(), 0);
    EXPECT_EQ(icon.pixelColor(48, 36), QColor(Qt::blue)) << "an enlarged bitmap would be blurred here";
    EXPECT_EQ(icon.pixelColor(51, 36), QColor(Qt::red));
}

TEST(TVStationIconsTest, FindsIconsByName) {
    QTemporaryDir folder;
    QDir(folder.path()).mkdir(u"icons"_s);
    const QString icons = folder.filePath(u"icons"_s);
    ASSERT_TRUE(filled(10, 10).save(icons + u"/one.png"_s));
    ASSERT_TRUE(filled(10, 10).save(icons + u"/two"_s, "png"));
    ASSERT_TRUE(filled(10, 10).save(icons + u"/cz.three.png"_s));
    ASSERT_TRUE(filled(10, 10).save(icons + u"/s\u030cport.png"_s));
    ASSERT_TRUE(filled(10, 10).save(folder.filePath(u"outside.png"_s)));
    ASSERT_TRUE(replaceFile(icons + u"/broken.png"_s, "no image"));

    TVStationIcons stationIcons(icons, 1);
    for (const QString& name :
         {u"one"_s, u"one.png"_s, u"two"_s, u"cz.three"_s, u"šport"_s, u"s\u030cport"_s}) {
        EXPECT_FALSE(stationIcons.iconNamed(name).isNull()) << name.toStdString();
    }
    EXPECT_TRUE(stationIcons.iconNamed(u"cz"_s).isNull());
    EXPECT_TRUE(stationIcons.iconNamed(QString()).isNull());
    EXPECT_TRUE(stationIcons.iconNamed(u"../outside"_s).isNull());
    EXPECT_TRUE(stationIcons.iconNamed(u"broken"_s).isNull());
    EXPECT_TRUE(stationIcons.hasIconFile(u"broken"_s));
    EXPECT_FALSE(stationIcons.hasIconFile(u"none"_s));

    ASSERT_TRUE(QFile::remove(icons + u"/one.png"_s));
    EXPECT_FALSE(stationIcons.iconNamed(u"one"_s).isNull()) << "cached";
    stationIcons.dropIcons();
    EXPECT_TRUE(stationIcons.iconNamed(u"one"_s).isNull()) << "read again";
}

TEST(TVStationIconsTest, OwnChannelsAlwaysHaveAnIcon) {
    QTemporaryDir folder;
    const QString channel = u"ff0102030405060708090a0b"_s;
    const QString name = u"own/"_s + channel;
    TVStationIcons icons(folder.path(), 2, folder.path());
    EXPECT_TRUE(icons.hasIconFile(name));
    const QImage unknown = icons.iconNamed(name);
    ASSERT_EQ(unknown.size(), QSize(100, 72));
    const QColor plate = unknown.pixelColor(50, 3);
    EXPECT_EQ(plate.alpha(), 255);

    ASSERT_TRUE(filled(50, 36, Qt::green).save(folder.filePath(channel), "png"));
    EXPECT_EQ(icons.iconNamed(name).pixelColor(50, 3), plate) << "kept until it is dropped";
    icons.dropIcon(name);
    EXPECT_EQ(icons.iconNamed(name).pixelColor(50, 3), QColor(Qt::green));
    ASSERT_TRUE(replaceFile(folder.filePath(channel), "no image"));
    icons.setOwnTitles({{name, u"ČT 1"_s}});
    const QColor named = icons.iconNamed(name).pixelColor(50, 3);
    EXPECT_EQ(named.alpha(), 255);
    EXPECT_NE(named, plate) << "of its title";

    ASSERT_TRUE(filled(10, 10).save(folder.filePath(u"secret.png"_s)));
    EXPECT_TRUE(icons.iconNamed(u"own/../secret.png"_s).isNull());
}

} // namespace
} // namespace guide
