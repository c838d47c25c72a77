#include "ui/look/Palette.h"

#include <cmath>
#include <gtest/gtest.h>

namespace guide::test {
namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(PaletteTest, EveryTextIsReadableOnEverySurface) {
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        const Palette& palette = paletteOf(scheme);
        const std::vector<std::pair<const char*, QColor>> texts{
            {"label", palette.label},         {"secondary label", palette.secondaryLabel},
            {"tint", palette.tint},           {"running", palette.running},
            {"favourite", palette.favourite}, {"alarm", palette.alarm},
            {"heading", palette.heading}};
        const std::vector<std::pair<const char*, QColor>> surfaces{
            {"background", palette.background},
            {"grouped background", palette.groupedBackground},
            {"pressed", palette.pressed},
            {"raised", palette.raised}};
        for (const auto& [text, color] : texts) {
            for (const auto& [surface, below] : surfaces) {
                EXPECT_GE(contrast(color, below), 4.5)
                    << text << " on " << surface << (scheme == ColorScheme::Dark ? ", dark" : ", light");
            }
        }
        for (const QColor& surface : {palette.background, palette.groupedBackground, palette.raised}) {
            EXPECT_GE(contrast(palette.fieldBorder, surface), 3) << "the outline of a field";
        }
        for (const QColor& action : {palette.tint, palette.favourite, palette.alarm}) {
            EXPECT_GE(contrast(palette.background, action), 4.5) << "the title of a swipe action";
        }
        EXPECT_GE(contrast(palette.tintOnLabel, palette.label), 4.5);
        EXPECT_GE(contrast(palette.onTint, palette.tint), 4.5);
        EXPECT_GE(contrast(palette.onAlarm, palette.alarm), 4.5);
        EXPECT_GE(contrast(palette.tint, palette.tintedFill), 4.5);
        EXPECT_GE(contrast(palette.running, palette.separator), 3) << "a bar against its track";
    }
}

TEST(PaletteTest, TilesOfEveryHueAreReadable) {
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        const Palette& palette = paletteOf(scheme);
        for (int hue = -10; hue < 370; hue += 5) {
            const TileColors tile = tileColors(hue, scheme);
            EXPECT_GE(contrast(palette.label, tile.fill), 4.5) << hue;
            EXPECT_GE(contrast(palette.secondaryLabel, tile.fill), 4.5) << hue;
            EXPECT_GE(contrast(tile.symbol, tile.fill), 4.5) << hue;
        }
    }
}

TEST(PaletteTest, ColoursKeepTheirHueInEitherScheme) {
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
        const Palette& palette = paletteOf(scheme);
        const auto near = [](const QColor& color, int hue) {
            const int distance = std::abs(color.hslHue() - hue) % 360;
            return std::min(distance, 360 - distance) <= 20;
        };
        EXPECT_TRUE(near(palette.running, 140)) << "green";
        EXPECT_TRUE(near(palette.favourite, 28)) << "orange";
        EXPECT_TRUE(near(palette.alarm, 0)) << "red";
        EXPECT_TRUE(near(palette.tint, 243)) << "indigo";
    }
}

} // namespace
} // namespace guide::test
