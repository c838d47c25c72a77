#pragma once

#include "screens/kit/StyledText.h"
#include "ui/GuideWindow.h"

#include <QColor>

namespace guide {

/// The roles of StyledText, and what only the drawing needs.
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
    /// Hairlines, and the part of a progress bar that is still to come.
    QColor separator;
    /// A row under the finger.
    QColor pressed;
    /// Behind the symbol of the selected tab.
    QColor tintedFill;
    /// Text on a surface of the tint or the alarm colour.
    QColor onTint;
    QColor onAlarm;
    /// What lies over the screen behind an alert.
    QColor dim;

    const QColor& operator[](ColorRole role) const;
};

const Palette& paletteOf(ColorScheme scheme);

} // namespace guide
