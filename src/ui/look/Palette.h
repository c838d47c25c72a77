#pragma once

#include "screens/kit/ColorRole.h"
#include "ui/GuideWindow.h"

#include <QColor>

namespace guide {

/// A colour for each role of the kit, and those that only ui/ uses.
struct Palette {
    QColor label;
    QColor secondaryLabel;
    QColor background;
    QColor groupedBackground;
    QColor tint;
    QColor running;
    QColor favourite;
    QColor alarm;
    QColor heading;
    /// Hairlines, and the track of a progress bar.
    QColor separator;
    /// The outline of a field.
    QColor fieldBorder;
    /// Panels over a screen.
    QColor raised;
    /// A row while it is pressed.
    QColor pressed;
    /// Behind a symbol of the tint colour.
    QColor tintedFill;
    /// Text on a surface of the tint or the alarm colour.
    QColor onTint;
    QColor onAlarm;
    /// A button on a surface of the label colour.
    QColor tintOnLabel;
    /// Over the screen behind an alert.
    QColor dim;

    const QColor& operator[](ColorRole role) const;
};

const Palette& paletteOf(ColorScheme scheme);

/// Of a tile, whose title has the label colour.
struct TileColors {
    QColor fill;
    QColor symbol;
};

/// The hue in degrees.
TileColors tileColors(int hue, ColorScheme scheme);

} // namespace guide
