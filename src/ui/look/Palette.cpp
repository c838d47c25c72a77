#include "ui/look/Palette.h"

namespace guide {

const QColor& Palette::operator[](ColorRole role) const {
    switch (role) {
    case ColorRole::Label:
        return label;
    case ColorRole::SecondaryLabel:
        return secondaryLabel;
    case ColorRole::Background:
        return background;
    case ColorRole::GroupedBackground:
        return groupedBackground;
    case ColorRole::Tint:
        return tint;
    case ColorRole::Running:
        return running;
    case ColorRole::Favourite:
        return favourite;
    case ColorRole::Alarm:
        return alarm;
    case ColorRole::Heading:
        return heading;
    }
    return label;
}

const Palette& paletteOf(ColorScheme scheme) {
    static const Palette light{
        .label = QColor(0x17, 0x17, 0x1f),
        .secondaryLabel = QColor(0x5d, 0x5e, 0x6c),
        .background = QColor(0xff, 0xff, 0xff),
        .groupedBackground = QColor(0xf4, 0xf4, 0xf9),
        .tint = QColor(0x49, 0x43, 0xc4),
        .running = QColor(0x0b, 0x78, 0x2f),
        .favourite = QColor(0xac, 0x4e, 0x00),
        .alarm = QColor(0xc4, 0x26, 0x2b),
        .heading = QColor(0x7d, 0x63, 0x00),
        .separator = QColor(0xe4, 0xe4, 0xec),
        .fieldBorder = QColor(0x8a, 0x8b, 0x98),
        .raised = QColor(0xff, 0xff, 0xff),
        .pressed = QColor(0xe9, 0xe9, 0xf4),
        .tintedFill = QColor(0xe3, 0xe2, 0xfa),
        .onTint = QColor(0xff, 0xff, 0xff),
        .onAlarm = QColor(0xff, 0xff, 0xff),
        .tintOnLabel = QColor(0xb9, 0xb6, 0xff),
        .dim = QColor(0x10, 0x10, 0x20, 0x66),
    };
    static const Palette dark{
        .label = QColor(0xf1, 0xf1, 0xf6),
        .secondaryLabel = QColor(0xa3, 0xa4, 0xb3),
        .background = QColor(0x11, 0x11, 0x17),
        .groupedBackground = QColor(0x1b, 0x1b, 0x23),
        .tint = QColor(0xa3, 0xa0, 0xff),
        .running = QColor(0x55, 0xc7, 0x72),
        .favourite = QColor(0xff, 0xa6, 0x52),
        .alarm = QColor(0xff, 0x7a, 0x75),
        .heading = QColor(0xd9, 0xb9, 0x52),
        .separator = QColor(0x2c, 0x2c, 0x37),
        .fieldBorder = QColor(0x72, 0x73, 0x82),
        .raised = QColor(0x20, 0x20, 0x2a),
        .pressed = QColor(0x26, 0x26, 0x31),
        .tintedFill = QColor(0x2f, 0x2d, 0x55),
        .onTint = QColor(0x14, 0x12, 0x3c),
        .onAlarm = QColor(0x3a, 0x05, 0x08),
        .tintOnLabel = QColor(0x49, 0x43, 0xc4),
        .dim = QColor(0x00, 0x00, 0x00, 0x99),
    };
    return scheme == ColorScheme::Dark ? dark : light;
}

TileColors tileColors(int hue, ColorScheme scheme) {
    const auto color = [hue](double saturation, double lightness) {
        return QColor::fromHslF(static_cast<float>(((hue % 360) + 360) % 360) / 360.F,
                                static_cast<float>(saturation), static_cast<float>(lightness))
            .toRgb();
    };
    return scheme == ColorScheme::Dark ? TileColors{color(0.28, 0.17), color(0.6, 0.74)}
                                       : TileColors{color(0.6, 0.94), color(0.7, 0.25)};
}

} // namespace guide
