#include "core/PictureDecoding.h"

#include "core/HarmlessDrawing.h"
#include "fakes/Packing.h"

#include <QBuffer>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

QByteArray encoded(const QSize& size, const char* format, QImage::Format pixels = QImage::Format_RGB32) {
    QImage image(size, pixels);
    image.fill(pixels == QImage::Format_Mono ? QColor(Qt::black) : QColor(Qt::darkCyan));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes;
}

QImage decoded(const QByteArray& bytes, const QSizeF& most = {100, 100}) {
    return decodedPicture(bytes, kShowPictureLimits,
                          [&most](const QSize& own, bool) { return scaledPictureSize(own, most, 1); });
}

QByteArray svg(const QByteArray& content) {
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='40' "
           "height='20'>" +
           content + "</svg>";
}

TEST(PictureDecoding, MakesPicturesSmallerAndNeverLarger) {
    const std::tuple<const char*, QSize, QSizeF, double, QSize> cases[] = {
        {"limited by width", {400, 200}, {100, 100}, 1, {100, 50}},
        {"very tall: limited by height", {100, 1000}, {120, 120}, 1, {12, 120}},
        {"small", {50, 40}, {120, 120}, 1, {50, 40}},
        {"small for the screen's scale", {100, 80}, {120, 120}, 2, {100, 80}},
        {"scaled for the screen", {1000, 500}, {120, 120}, 2, {240, 120}},
        {"a line", {10'000, 1}, {100, 100}, 1, {100, 1}},
    };
    for (const auto& [name, own, most, scale, expected] : cases) {
        EXPECT_EQ(scaledPictureSize(own, most, scale), expected) << name;
    }
}

TEST(PictureDecoding, ReadsTheUsualFormats) {
    for (const char* format : {"PNG", "JPEG", "WEBP"}) {
        EXPECT_EQ(decoded(encoded({300, 150}, format)).size(), QSize(100, 50)) << format;
    }
    EXPECT_EQ(decoded(svg("<rect width='40' height='20' fill='red'/>")).size(), QSize(40, 20));
    EXPECT_EQ(decoded(QByteArray::fromBase64("R0lGODdhAQABAIAAAP///////ywAAAAAAQABAAACAkQBADs=")).size(),
              QSize(1, 1));
}

TEST(PictureDecoding, RefusesWhatIsTooLargeOrNoPicture) {
    EXPECT_EQ(decoded(encoded({8'000, 5'000}, "PNG", QImage::Format_Mono)).size(), QSize(100, 63));
    const QByteArray drawing = svg("<rect width='40' height='20'/>");
    const QByteArray picture = encoded({600, 400}, "PNG");
    const std::pair<const char*, QByteArray> cases[] = {
        {"60 megapixels", encoded({10'000, 6'000}, "PNG", QImage::Format_Mono)},
        {"a long side", encoded({70'000, 1}, "PNG", QImage::Format_Mono)},
        {"too many bytes", picture + QByteArray(kShowPictureLimits.bytes, '\0')},
        {"truncated", picture.first(picture.size() / 2)},
        {"only a header", picture.first(33)},
        {"a web page", "<!DOCTYPE html><html><body>404</body></html>"},
        {"nothing", {}},
        {"a packed drawing", gzipped(drawing)},
        {"an icon file", QByteArray::fromHex("00000100010001010000010020003000000016000000")},
    };
    for (const auto& [name, bytes] : cases) {
        EXPECT_TRUE(decoded(bytes).isNull()) << name;
    }
    const QImage icon = decodedPicture(encoded({4'097, 10}, "PNG"), kChannelIconLimits,
                                       [](const QSize& own, bool) { return own; });
    EXPECT_TRUE(icon.isNull());
}

TEST(PictureDecoding, DrawsOnlySelfContainedDrawings) {
    QByteArray nested = "<g id='a'><rect width='1' height='1'/></g>";
    for (char level = 'b'; level < 'm'; ++level) {
        const QByteArray use = QByteArray("<use xlink:href='#") + char(level - 1) + "'/>";
        nested += QByteArray("<g id='") + level + "'>" + use.repeated(9) + "</g>";
    }
    const std::tuple<const char*, bool, QByteArray> cases[] = {
        {"shapes", true, svg("<g><path d='M0 0L9 9'/><circle r='3'/></g>")},
        {"a gradient of its own", true, svg("<rect fill='url(#g)'/><circle style='fill:url( \"#g\" )'/>")},
        {"a part used twice", true, svg("<g id='a'/><use href='#a'/><use xlink:href='#a'/>")},
        {"a file", false, svg("<image xlink:href='file:///etc/passwd' width='9' height='9'/>")},
        {"a relative file", false, svg("<image href='secret.png'/>")},
        {"a server", false, svg("<image href='http://127.0.0.1:1/x.png'/>")},
        {"an embedded picture", false, svg("<image href='data:image/png;base64,AAAA'/>")},
        {"a part of another file", false, svg("<use href='other.svg#a'/>")},
        {"a style of another file", false, svg("<style>@import url('http://x/a.css');</style>")},
        {"a pattern of another file", false, svg("<rect style='fill:url(http://x/p.svg#a)'/>")},
        {"a style sheet", false, "<?xml-stylesheet href='http://x/a.css'?>" + svg("")},
        {"a script", false, svg("<script>alert(1)</script>")},
        {"an event handler", false, svg("<rect onload='alert(1)'/>")},
        {"a web page inside", false, svg("<foreignObject><body/></foreignObject>")},
        {"entities", false,
         "<!DOCTYPE svg [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]>" + svg("<text>&b;</text>")},
        {"parts that multiply", false, svg(nested)},
        {"deep nesting", false, svg(QByteArray("<g>").repeated(200) + QByteArray("</g>").repeated(200))},
        {"broken", false, "<svg xmlns='http://www.w3.org/2000/svg'><rect"},
    };
    for (const auto& [name, harmless, bytes] : cases) {
        EXPECT_EQ(isHarmlessDrawing(bytes), harmless) << name;
        EXPECT_EQ(decoded(bytes).isNull(), !harmless) << name;
    }
}

} // namespace
} // namespace guide
