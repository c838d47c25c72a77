#include "ui/look/Strokes.h"

#include "ui/look/SymbolShape.h"

#include <cmath>
#include <numbers>

namespace guide::strokes {

void line(QPainterPath& path, std::initializer_list<QPointF> points) {
    const QPointF* each = points.begin();
    path.moveTo(*each);
    while (++each != points.end()) {
        path.lineTo(*each);
    }
}

void polygon(QPainterPath& path, std::initializer_list<QPointF> corners) {
    line(path, corners);
    path.closeSubpath();
}

void curve(QPainterPath& path, std::initializer_list<QPointF> points) {
    const QPointF* each = points.begin();
    path.moveTo(*each++);
    for (; points.end() - each >= 3; each += 3) {
        path.cubicTo(each[0], each[1], each[2]);
    }
}

void dot(QPainterPath& path, double x, double y) {
    line(path, {{x, y}, {x, y + 0.1}});
}

void circle(QPainterPath& path, double x, double y, double radius) {
    path.addEllipse(QPointF(x, y), radius, radius);
}

void arc(QPainterPath& path, double radius, double from, double sweep) {
    constexpr double kCentre = SymbolShape::kSide / 2;
    const QRectF circle(kCentre - radius, kCentre - radius, 2 * radius, 2 * radius);
    path.arcMoveTo(circle, from);
    path.arcTo(circle, from, sweep);
}

void box(QPainterPath& path, double x, double y, double width, double height, double radius) {
    path.addRoundedRect(QRectF(x, y, width, height), radius, radius);
}

void heart(QPainterPath& path) {
    path.moveTo(12, 20.5);
    path.cubicTo(5, 15.4, 2.8, 12.2, 2.8, 8.8);
    path.cubicTo(2.8, 5.9, 5, 3.9, 7.5, 3.9);
    path.cubicTo(9.4, 3.9, 11.1, 4.9, 12, 6.6);
    path.cubicTo(12.9, 4.9, 14.6, 3.9, 16.5, 3.9);
    path.cubicTo(19, 3.9, 21.2, 5.9, 21.2, 8.8);
    path.cubicTo(21.2, 12.2, 19, 15.4, 12, 20.5);
    path.closeSubpath();
}

void star(QPainterPath& path) {
    constexpr int kPoints = 5;
    for (int corner = 0; corner < 2 * kPoints; ++corner) {
        const double radius = corner % 2 == 0 ? 9.4 : 4.1;
        const double angle = std::numbers::pi * (corner / double(kPoints) - 0.5);
        const QPointF point(12 + radius * std::cos(angle), 12.6 + radius * std::sin(angle));
        corner == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    path.closeSubpath();
}

void globe(QPainterPath& path) {
    circle(path, 12, 12, 9);
    path.addEllipse(QPointF(12, 12), 4, 9);
    line(path, {{3, 12}, {21, 12}});
}

void filmStrip(QPainterPath& path) {
    box(path, 3, 4.5, 18, 15, 2.5);
    line(path, {{7.5, 4.5}, {7.5, 19.5}});
    line(path, {{16.5, 4.5}, {16.5, 19.5}});
    line(path, {{7.5, 12}, {16.5, 12}});
    for (const double y : {8.25, 12.0, 15.75}) {
        line(path, {{3, y}, {7.5, y}});
        line(path, {{16.5, y}, {21, y}});
    }
}

} // namespace guide::strokes
