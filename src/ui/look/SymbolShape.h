#pragma once

#include <QPainterPath>

#include <span>

namespace guide {

/// How a symbol is drawn, in a square with sides of 24.
struct SymbolShape {
    static constexpr double kSide = 24;

    /// A value of Glyph::Symbol.
    int symbol = 0;
    void (*addTo)(QPainterPath& path) = nullptr;
    bool filled = false;
};

/// The symbols of tabs, buttons and rows.
std::span<const SymbolShape> controlShapes();
/// The symbols of categories.
std::span<const SymbolShape> categoryShapes();

} // namespace guide
