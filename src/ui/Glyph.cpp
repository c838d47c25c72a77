#include "ui/Glyph.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace guide {

namespace {

// All symbols are drawn in a square of 24.
constexpr double kSide = 24;
constexpr double kStroke = 1.9;

void addRoundedRect(QPainterPath& path, double x, double y, double width, double height, double radius) {
    path.addRoundedRect(QRectF(x, y, width, height), radius, radius);
}

void addLine(QPainterPath& path, double x1, double y1, double x2, double y2) {
    path.moveTo(x1, y1);
    path.lineTo(x2, y2);
}

// Qt counts degrees against the clock from three o'clock.
void addArc(QPainterPath& path, double radius, double from, double sweep) {
    const QRectF circle(kSide / 2 - radius, kSide / 2 - radius, 2 * radius, 2 * radius);
    path.arcMoveTo(circle, from);
    path.arcTo(circle, from, sweep);
}

QPainterPath strokesOf(Glyph::Symbol symbol) {
    QPainterPath path;
    switch (symbol) {
    case Glyph::AllShows:
        addRoundedRect(path, 3, 6.5, 18, 12.5, 2.5);
        addLine(path, 8.5, 22, 15.5, 22);
        addLine(path, 8, 2.5, 12, 6.5);
        addLine(path, 16, 2.5, 12, 6.5);
        break;
    case Glyph::Currently:
        addArc(path, 9, 0, 360);
        path.moveTo(12, 6.5);
        path.lineTo(12, 12);
        path.lineTo(15.8, 14.4);
        break;
    case Glyph::Categories:
        addRoundedRect(path, 3.5, 3.5, 7, 7, 2);
        addRoundedRect(path, 13.5, 3.5, 7, 7, 2);
        addRoundedRect(path, 3.5, 13.5, 7, 7, 2);
        addRoundedRect(path, 13.5, 13.5, 7, 7, 2);
        break;
    case Glyph::Search:
        path.addEllipse(QPointF(10.5, 10.5), 6.7, 6.7);
        addLine(path, 15.5, 15.5, 20.8, 20.8);
        break;
    case Glyph::Schedule:
        addRoundedRect(path, 3.5, 5, 17, 15.5, 3);
        addLine(path, 3.5, 10, 20.5, 10);
        addLine(path, 8, 2.8, 8, 6.5);
        addLine(path, 16, 2.8, 16, 6.5);
        break;
    case Glyph::SelectedChannels:
        for (const double y : {6.0, 12.0, 18.0}) {
            addLine(path, 10.5, y, 21, y);
            path.moveTo(2.8, y);
            path.lineTo(4.6, y + 1.8);
            path.lineTo(7.4, y - 2);
        }
        break;
    case Glyph::Refresh:
        addArc(path, 8, 60, 290);
        path.moveTo(16.4, 9.2);
        path.lineTo(20.6, 9.0);
        path.lineTo(20.6, 4.8);
        break;
    case Glyph::Back:
        path.moveTo(14.8, 4.5);
        path.lineTo(7.5, 12);
        path.lineTo(14.8, 19.5);
        break;
    case Glyph::Disclosure:
        path.moveTo(9, 5.5);
        path.lineTo(15.3, 12);
        path.lineTo(9, 18.5);
        break;
    case Glyph::Activity:
        addArc(path, 8.5, 90, -270);
        break;
    case Glyph::Play:
        break;
    }
    return path;
}

QPainterPath playTriangle() {
    QPainterPath path;
    path.moveTo(8, 5.5);
    path.lineTo(18.5, 12);
    path.lineTo(8, 18.5);
    path.closeSubpath();
    return path;
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
    const double side = std::min(width(), height());
    painter->translate((width() - side) / 2, (height() - side) / 2);
    painter->scale(side / kSide, side / kSide);
    painter->setPen(QPen(m_color, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (m_symbol == Play) {
        painter->setBrush(m_color);
        painter->drawPath(playTriangle());
    } else {
        painter->drawPath(strokesOf(m_symbol));
    }
}

} // namespace guide
