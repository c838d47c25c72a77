#include "core/ChannelInitials.h"

#include <QSet>

#include <cmath>
#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(ChannelInitialsTest, StandForTheTitle) {
    const std::pair<QString, QString> rows[] = {
        {u"ČT 1 HD"_s, u"ČT1"_s},
        {u"ČT24"_s, u"Č24"_s},
        {u"Nova"_s, u"N"_s},
        {u"Nova Cinema FHD"_s, u"NC"_s},
        {u"Nova +1"_s, u"N+1"_s},
        {u"HBO 2 (HD)"_s, u"HB2"_s},
        {u"TV JOJ"_s, u"JOJ"_s},
        {u"TV 2"_s, u"TV2"_s},
        {u"HU - RTL Klub"_s, u"RTK"_s},
        {u"SK: Markíza ᴴᴰ"_s, u"M"_s},
        {u"BBC One"_s, u"BBO"_s},
        {u"The History Channel of Europe"_s, u"THC"_s},
        {u"3sat"_s, u"3S"_s},
        {u"Первый канал"_s, u"ПК"_s},
        {u"ΕΡΤ3"_s, u"ΕΡ3"_s},
        {u"sıfır tv.tr"_s, u"S"_s},
        {u"C\u030Ct sport"_s, u"ČS"_s},
        {u"日本テレビ"_s, u"日"_s},
        {u"𐐨𐐩"_s, u"𐐀"_s},
        {u"HD"_s, u"HD"_s},
        {u"…"_s, u"TV"_s},
        {QString(), u"TV"_s},
        {QString(100'000, u'x'), u"X"_s},
    };
    for (const auto& [title, initials] : rows) {
        EXPECT_EQ(channelInitials(title), initials) << title.left(40).toStdString();
    }
}

double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

TEST(ChannelInitialsTest, EveryColourContrastsWithTextAndBackgrounds) {
    QSet<QRgb> colors;
    for (std::uint64_t seed = 0; seed < 400; ++seed) {
        const QColor color = channelColor(seed);
        EXPECT_GE(1.05 / (luminance(color) + 0.05), 4.5) << "white text on it; it on white";
        EXPECT_GE((luminance(color) + 0.05) / 0.05, 3.0) << "it on black";
        colors.insert(color.rgb());
    }
    EXPECT_GT(colors.size(), 300);
}

} // namespace
} // namespace guide
