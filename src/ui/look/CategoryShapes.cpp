#include "screens/kit/Symbol.h"
#include "ui/look/Strokes.h"
#include "ui/look/SymbolShape.h"

#include <QTransform>

namespace guide {

using namespace strokes;

namespace {

void moon(QPainterPath& path) {
    path.moveTo(20.4, 14.2);
    path.cubicTo(19.4, 14.6, 18.2, 14.8, 17, 14.8);
    path.cubicTo(12.4, 14.8, 9, 11.4, 9, 7);
    path.cubicTo(9, 5.8, 9.3, 4.6, 9.8, 3.6);
    path.cubicTo(6, 4.6, 3.4, 8, 3.4, 12);
    path.cubicTo(3.4, 16.8, 7.2, 20.6, 12, 20.6);
    path.cubicTo(16, 20.6, 19.4, 18, 20.4, 14.2);
    path.closeSubpath();
}

void stack(QPainterPath& path) {
    box(path, 3, 9, 18, 11.5, 2.5);
    line(path, {{5, 6}, {19, 6}});
    line(path, {{7.5, 3}, {16.5, 3}});
    line(path, {{10.4, 12.2}, {14.8, 14.8}, {10.4, 17.4}, {10.4, 12.2}});
}

void balloon(QPainterPath& path) {
    path.addEllipse(QPointF(12, 9), 6, 6.6);
    line(path, {{10.8, 17.2}, {12, 15.6}, {13.2, 17.2}, {10.8, 17.2}});
    curve(path, {{12, 17.2}, {10.6, 19}, {13.4, 20}, {12, 22}});
    curve(path, {{9, 8.6}, {9.2, 7}, {10.2, 6}, {11.6, 5.7}});
}

void newspaper(QPainterPath& path) {
    box(path, 3, 4.5, 15, 15, 2);
    path.moveTo(18, 8.5);
    path.lineTo(21, 8.5);
    path.lineTo(21, 17);
    path.cubicTo(21, 18.6, 20, 19.5, 18.6, 19.5);
    path.lineTo(16, 19.5);
    path.addRect(QRectF(6.2, 8, 4, 4));
    line(path, {{13, 8.4}, {15, 8.4}});
    line(path, {{13, 11.6}, {15, 11.6}});
    line(path, {{6.2, 15.6}, {15, 15.6}});
}

void notes(QPainterPath& path) {
    path.addEllipse(QPointF(6.6, 17.6), 2.9, 2.5);
    path.addEllipse(QPointF(16.6, 15.6), 2.9, 2.5);
    line(path, {{9.5, 17.6}, {9.5, 6}, {19.5, 4}, {19.5, 15.6}});
    line(path, {{9.5, 9.6}, {19.5, 7.6}});
}

void basketball(QPainterPath& path) {
    circle(path, 12, 12, 9);
    line(path, {{12, 3}, {12, 21}});
    line(path, {{3, 12}, {21, 12}});
    curve(path, {{5.8, 5.6}, {9.4, 9.2}, {9.4, 14.8}, {5.8, 18.4}});
    curve(path, {{18.2, 5.6}, {14.6, 9.2}, {14.6, 14.8}, {18.2, 18.4}});
}

void smile(QPainterPath& path) {
    circle(path, 12, 12, 9);
    line(path, {{9, 8.8}, {9, 10}});
    line(path, {{15, 8.8}, {15, 10}});
    path.moveTo(7.2, 13.8);
    path.lineTo(16.8, 13.8);
    path.cubicTo(16.2, 16.6, 14.4, 18, 12, 18);
    path.cubicTo(9.6, 18, 7.8, 16.6, 7.2, 13.8);
}

void compass(QPainterPath& path) {
    circle(path, 12, 12, 9);
    line(path, {{16, 8}, {13.6, 13.6}, {8, 16}, {10.4, 10.4}, {16, 8}});
}

/// A ridge of a fingerprint: half a circle whose ends go on downwards.
void ridge(QPainterPath& path, double radius, double leftEnd, double rightEnd) {
    constexpr double kMiddle = 12;
    path.moveTo(kMiddle - radius - 0.8, leftEnd);
    path.quadTo(kMiddle - radius, (leftEnd + kMiddle) / 2, kMiddle - radius, kMiddle);
    path.arcTo(QRectF(kMiddle - radius, kMiddle - radius, 2 * radius, 2 * radius), 180, -180);
    path.quadTo(kMiddle + radius, (rightEnd + kMiddle) / 2, kMiddle + radius - 0.6, rightEnd);
}

void fingerprint(QPainterPath& path) {
    path.moveTo(12, 11.6);
    path.quadTo(12.1, 17, 10.6, 21);
    ridge(path, 3.2, 19, 21.4);
    ridge(path, 6.4, 16.8, 19.4);
    // The outermost ridge is broken.
    arc(path, 9.6, 190, -62);
    arc(path, 9.6, 98, -114);
}

void hat(QPainterPath& path) {
    path.moveTo(2.6, 13);
    path.cubicTo(5, 14.6, 6.4, 15.2, 7.2, 14.2);
    path.cubicTo(7.4, 10, 8, 6, 10, 5.6);
    path.cubicTo(11, 5.4, 11.4, 6.4, 12, 6.4);
    path.cubicTo(12.6, 6.4, 13, 5.4, 14, 5.6);
    path.cubicTo(16, 6, 16.6, 10, 16.8, 14.2);
    path.cubicTo(17.6, 15.2, 19, 14.6, 21.4, 13);
    path.cubicTo(20.4, 17, 16.4, 18.8, 12, 18.8);
    path.cubicTo(7.6, 18.8, 3.6, 17, 2.6, 13);
    path.closeSubpath();
    curve(path, {{7.2, 14.2}, {10, 15.4}, {14, 15.4}, {16.8, 14.2}});
}

void mask(QPainterPath& path) {
    path.moveTo(4.2, 4.6);
    path.cubicTo(9, 6.4, 15, 6.4, 19.8, 4.6);
    path.lineTo(19.8, 11);
    path.cubicTo(19.8, 16.6, 15.6, 20.6, 12, 20.6);
    path.cubicTo(8.4, 20.6, 4.2, 16.6, 4.2, 11);
    path.closeSubpath();
    line(path, {{7.8, 10.6}, {10, 10}});
    line(path, {{16.2, 10.6}, {14, 10}});
    curve(path, {{8.8, 16.4}, {10, 14.4}, {14, 14.4}, {15.2, 16.4}});
}

void eye(QPainterPath& path) {
    path.moveTo(2.4, 12);
    path.cubicTo(5, 7.6, 8.4, 5.4, 12, 5.4);
    path.cubicTo(15.6, 5.4, 19, 7.6, 21.6, 12);
    path.cubicTo(19, 16.4, 15.6, 18.6, 12, 18.6);
    path.cubicTo(8.4, 18.6, 5, 16.4, 2.4, 12);
    path.closeSubpath();
    circle(path, 12, 12, 3.2);
}

void planet(QPainterPath& path) {
    const QRectF bounds(-10.4, -3.4, 20.8, 6.8);
    QPainterPath ring;
    ring.arcMoveTo(bounds, 122);
    ring.arcTo(bounds, 122, 296);
    path.addPath(QTransform().translate(12, 12).rotate(-24).map(ring));
    circle(path, 12, 12, 6);
}

void wand(QPainterPath& path) {
    line(path, {{3.6, 20.4}, {12.4, 11.6}});
    path.moveTo(15.6, 2.8);
    path.cubicTo(16, 7, 17, 8, 21.2, 8.4);
    path.cubicTo(17, 8.8, 16, 9.8, 15.6, 14);
    path.cubicTo(15.2, 9.8, 14.2, 8.8, 10, 8.4);
    path.cubicTo(14.2, 8, 15.2, 7, 15.6, 2.8);
    path.closeSubpath();
    line(path, {{6.4, 3.6}, {6.4, 6.4}});
    line(path, {{5, 5}, {7.8, 5}});
    line(path, {{19.2, 16.4}, {19.2, 19.2}});
    line(path, {{17.8, 17.8}, {20.6, 17.8}});
}

void ghost(QPainterPath& path) {
    path.moveTo(5, 20.4);
    path.lineTo(5, 10.6);
    path.cubicTo(5, 6.4, 8, 3.4, 12, 3.4);
    path.cubicTo(16, 3.4, 19, 6.4, 19, 10.6);
    path.lineTo(19, 20.4);
    path.lineTo(16.6, 18.2);
    path.lineTo(14.3, 20.4);
    path.lineTo(12, 18.2);
    path.lineTo(9.7, 20.4);
    path.lineTo(7.4, 18.2);
    path.closeSubpath();
    dot(path, 9.4, 10);
    dot(path, 14.6, 10);
    path.addEllipse(QPointF(12, 13.6), 1.3, 1.5);
}

constexpr SymbolShape kShapes[]{
    {int(Symbol::MostWatched), heart},     {int(Symbol::Evening), moon},
    {int(Symbol::Films), filmStrip},       {int(Symbol::Series), stack},
    {int(Symbol::Documentaries), globe},   {int(Symbol::Children), balloon},
    {int(Symbol::News), newspaper},        {int(Symbol::Entertainment), star},
    {int(Symbol::Music), notes},           {int(Symbol::Sports), basketball},
    {int(Symbol::Comedies), smile},        {int(Symbol::Adventure), compass},
    {int(Symbol::Crime), fingerprint},     {int(Symbol::Westerns), hat},
    {int(Symbol::Dramas), mask},           {int(Symbol::Thrillers), eye},
    {int(Symbol::ScienceFiction), planet}, {int(Symbol::Fantasy), wand},
    {int(Symbol::Horrors), ghost},
};

} // namespace

std::span<const SymbolShape> categoryShapes() {
    return kShapes;
}

} // namespace guide
