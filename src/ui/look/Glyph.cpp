#include "ui/look/Glyph.h"

#include "ui/look/CategoryStrokes.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace guide {

namespace {

// All symbols are drawn in a square of 24.
constexpr double kSide = 24;
constexpr double kStroke = 1.75;

void addRoundedRect(QPainterPath& path, double x, double y, double width, double height, double radius) {
    path.addRoundedRect(QRectF(x, y, width, height), radius, radius);
}

void addLine(QPainterPath& path, double x1, double y1, double x2, double y2) {
    path.moveTo(x1, y1);
    path.lineTo(x2, y2);
}

// Qt counts degrees counter-clockwise from three o'clock.
void addArc(QPainterPath& path, double radius, double from, double sweep) {
    const QRectF circle(kSide / 2 - radius, kSide / 2 - radius, 2 * radius, 2 * radius);
    path.arcMoveTo(circle, from);
    path.arcTo(circle, from, sweep);
}

void addStar(QPainterPath& path) {
    constexpr int kPoints = 5;
    for (int corner = 0; corner < 2 * kPoints; ++corner) {
        const double radius = corner % 2 == 0 ? 9.4 : 4.1;
        const double angle = std::numbers::pi * (corner / double(kPoints) - 0.5);
        const QPointF point(12 + radius * std::cos(angle), 12.6 + radius * std::sin(angle));
        corner == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    path.closeSubpath();
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
    case Glyph::Check:
        path.moveTo(4.5, 12.5);
        path.lineTo(9.8, 17.8);
        path.lineTo(19.5, 6.8);
        break;
    case Glyph::Close:
        addLine(path, 6, 6, 18, 18);
        addLine(path, 18, 6, 6, 18);
        break;
    case Glyph::Delete:
        addArc(path, 9, 0, 360);
        addLine(path, 7.8, 12, 16.2, 12);
        break;
    case Glyph::Reorder:
        for (const double y : {7.5, 12.0, 16.5}) {
            addLine(path, 4, y, 20, y);
        }
        break;
    case Glyph::Bell:
        path.moveTo(5, 17);
        path.cubicTo(6.6, 15.2, 6.6, 13.4, 6.6, 10.6);
        path.cubicTo(6.6, 7, 9, 4.8, 12, 4.8);
        path.cubicTo(15, 4.8, 17.4, 7, 17.4, 10.6);
        path.cubicTo(17.4, 13.4, 17.4, 15.2, 19, 17);
        path.closeSubpath();
        addLine(path, 12, 2.6, 12, 4.8);
        path.moveTo(9.8, 19.6);
        path.cubicTo(10.4, 21.2, 13.6, 21.2, 14.2, 19.6);
        break;
    case Glyph::Unfold:
        path.moveTo(7, 9.5);
        path.lineTo(12, 4.5);
        path.lineTo(17, 9.5);
        path.moveTo(7, 14.5);
        path.lineTo(12, 19.5);
        path.lineTo(17, 14.5);
        break;
    case Glyph::Warning:
        path.moveTo(12, 3.8);
        path.lineTo(21.4, 20);
        path.lineTo(2.6, 20);
        path.closeSubpath();
        addLine(path, 12, 9.6, 12, 14.2);
        addLine(path, 12, 17, 12, 17.1);
        break;
    case Glyph::Picture:
        addRoundedRect(path, 3, 4.5, 18, 15, 3);
        path.addEllipse(QPointF(8.6, 9.8), 1.7, 1.7);
        path.moveTo(4, 17.4);
        path.lineTo(9.4, 13.2);
        path.lineTo(12.6, 15.8);
        path.lineTo(16.4, 11.4);
        path.lineTo(20.4, 15.2);
        break;
    case Glyph::StarOutline:
        addStar(path);
        break;
    case Glyph::Film:
        addRoundedRect(path, 3, 4.5, 18, 15, 2.5);
        addLine(path, 7.5, 4.5, 7.5, 19.5);
        addLine(path, 16.5, 4.5, 16.5, 19.5);
        for (const double y : {9.5, 14.5}) {
            addLine(path, 3, y, 7.5, y);
            addLine(path, 16.5, y, 21, y);
        }
        break;
    case Glyph::Globe:
        addArc(path, 9, 0, 360);
        path.addEllipse(QPointF(12, 12), 4, 9);
        addLine(path, 3, 12, 21, 12);
        break;
    case Glyph::Past:
        addArc(path, 8.5, 150, -300);
        path.moveTo(3.2, 4.2);
        path.lineTo(4, 8.6);
        path.lineTo(8.4, 7.8);
        path.moveTo(12, 7.2);
        path.lineTo(12, 12);
        path.lineTo(15.4, 14);
        break;
    case Glyph::Link:
        path.moveTo(10, 14);
        path.cubicTo(7.6, 11.6, 8.6, 9.6, 10, 8.2);
        path.lineTo(13.4, 4.8);
        path.cubicTo(16, 2.4, 21.6, 8, 19.2, 10.6);
        path.lineTo(17, 12.8);
        path.moveTo(14, 10);
        path.cubicTo(16.4, 12.4, 15.4, 14.4, 14, 15.8);
        path.lineTo(10.6, 19.2);
        path.cubicTo(8, 21.6, 2.4, 16, 4.8, 13.4);
        path.lineTo(7, 11.2);
        break;
    case Glyph::Info:
        addArc(path, 9, 0, 360);
        addLine(path, 12, 11, 12, 16.4);
        addLine(path, 12, 7.6, 12, 7.7);
        break;
    case Glyph::Recent:
        addArc(path, 8.5, 170, -300);
        path.moveTo(2.6, 8.2);
        path.lineTo(3.6, 11.6);
        path.lineTo(7, 10.6);
        path.moveTo(12, 7.5);
        path.lineTo(12, 12.2);
        path.lineTo(15.2, 14.2);
        break;
    case Glyph::Pause:
        addLine(path, 8.5, 5, 8.5, 19);
        addLine(path, 15.5, 5, 15.5, 19);
        break;
    case Glyph::Sound:
    case Glyph::NoSound:
        path.moveTo(3.5, 9.5);
        path.lineTo(7, 9.5);
        path.lineTo(11.5, 5.5);
        path.lineTo(11.5, 18.5);
        path.lineTo(7, 14.5);
        path.lineTo(3.5, 14.5);
        path.closeSubpath();
        if (symbol == Glyph::NoSound) {
            addLine(path, 15.5, 9.5, 20.5, 14.5);
            addLine(path, 20.5, 9.5, 15.5, 14.5);
        } else {
            addArc(path, 3.6, -40, 80);
            addArc(path, 7.4, -42, 84);
        }
        break;
    case Glyph::FullScreen:
    case Glyph::Window: {
        // The corners of a screen point outwards, or inwards.
        const double tip = symbol == Glyph::FullScreen ? 4 : 9.5;
        const double end = symbol == Glyph::FullScreen ? 9.5 : 4;
        for (const auto& [x, y] : {std::pair(0, 0), std::pair(0, 1), std::pair(1, 0), std::pair(1, 1)}) {
            const auto at = [](double distance, int side) { return side == 0 ? distance : kSide - distance; };
            path.moveTo(at(end, x), at(tip, y));
            path.lineTo(at(tip, x), at(tip, y));
            path.lineTo(at(tip, x), at(end, y));
        }
        break;
    }
    case Glyph::Previous:
        path.moveTo(5, 15.3);
        path.lineTo(12, 8.5);
        path.lineTo(19, 15.3);
        break;
    case Glyph::Next:
        path.moveTo(5, 8.7);
        path.lineTo(12, 15.5);
        path.lineTo(19, 8.7);
        break;
    case Glyph::Play:
    case Glyph::Heart:
    case Glyph::Star:
        break;
    default:
        return categoryStrokes(static_cast<Symbol>(symbol));
    }
    return path;
}

/// Symbols that are filled; empty for one that is stroked.
QPainterPath fillOf(Glyph::Symbol symbol) {
    QPainterPath path;
    if (symbol == Glyph::Play) {
        path.moveTo(8, 5.5);
        path.lineTo(18.5, 12);
        path.lineTo(8, 18.5);
        path.closeSubpath();
    } else if (symbol == Glyph::Heart) {
        path.moveTo(12, 20.5);
        path.cubicTo(5, 15.4, 2.8, 12.2, 2.8, 8.8);
        path.cubicTo(2.8, 5.9, 5, 3.9, 7.5, 3.9);
        path.cubicTo(9.4, 3.9, 11.1, 4.9, 12, 6.6);
        path.cubicTo(12.9, 4.9, 14.6, 3.9, 16.5, 3.9);
        path.cubicTo(19, 3.9, 21.2, 5.9, 21.2, 8.8);
        path.cubicTo(21.2, 12.2, 19, 15.4, 12, 20.5);
        path.closeSubpath();
    } else if (symbol == Glyph::Star) {
        addStar(path);
    }
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
    const QPainterPath fill = fillOf(m_symbol);
    if (fill.isEmpty()) {
        painter->drawPath(strokesOf(m_symbol));
    } else {
        painter->setBrush(m_color);
        painter->drawPath(fill);
    }
}

} // namespace guide
