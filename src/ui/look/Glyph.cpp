#include "ui/look/Glyph.h"

#include "ui/look/SymbolShape.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace guide {

namespace {

constexpr double kStroke = 1.75;

SymbolShape shapeOf(Glyph::Symbol symbol) {
    for (const std::span<const SymbolShape> shapes : {controlShapes(), categoryShapes()}) {
        if (const auto found = std::ranges::find(shapes, symbol, &SymbolShape::symbol);
            found != shapes.end()) {
            return *found;
        }
    }
    return {};
}

} // namespace

Glyph::Glyph(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void Glyph::setSymbol(Symbol symbol) {
    if (symbol != m_symbol) {
        m_symbol = symbol;
        update();
        Q_EMIT symbolChanged();
    }
}

void Glyph::setColor(const QColor& color) {
    if (color != m_color) {
        m_color = color;
        update();
        Q_EMIT colorChanged();
    }
}

void Glyph::paint(QPainter* painter) {
    const SymbolShape shape = shapeOf(m_symbol);
    QPainterPath path;
    if (shape.addTo) {
        shape.addTo(path);
    }
    const double side = std::min(width(), height());
    painter->translate((width() - side) / 2, (height() - side) / 2);
    painter->scale(side / SymbolShape::kSide, side / SymbolShape::kSide);
    painter->setPen(QPen(m_color, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (shape.filled) {
        painter->setBrush(m_color);
    }
    painter->drawPath(path);
}

} // namespace guide
