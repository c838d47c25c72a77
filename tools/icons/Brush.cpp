#include "Brush.h"

#include <QPolygonF>

#include <cmath>
#include <numbers>

void Brush::tile(const QColor& color) {
    QPainterPath edge;
    edge.addRoundedRect(0, 0, 150, 108, 22, 22);
    m_painter.setClipPath(edge);
    curve(edge, color);
}

void Brush::circle(qreal x, qreal y, qreal radius, const QColor& color) {
    ellipse(x, y, radius, radius, color);
}

void Brush::ellipse(qreal x, qreal y, qreal rx, qreal ry, const QColor& color) {
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawEllipse(QPointF(x, y), rx, ry);
}

void Brush::ring(qreal x, qreal y, qreal radius, qreal width, const QColor& color) {
    m_painter.setPen(QPen(color, width));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawEllipse(QPointF(x, y), radius, radius);
}

void Brush::arc(qreal x, qreal y, qreal radius, qreal from, qreal to, qreal width, const QColor& color) {
    QPainterPath path;
    const QRectF box(x - radius, y - radius, 2 * radius, 2 * radius);
    path.arcMoveTo(box, 90 - from);
    path.arcTo(box, 90 - from, from - to);
    stroke(path, width, color);
}

void Brush::line(qreal x1, qreal y1, qreal x2, qreal y2, qreal width, const QColor& color) {
    m_painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    m_painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void Brush::box(qreal x, qreal y, qreal w, qreal h, qreal radius, const QColor& color) {
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawRoundedRect(QRectF(x, y, w, h), radius, radius);
}

void Brush::shape(std::initializer_list<QPointF> points, const QColor& color) {
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawPolygon(QPolygonF(QList<QPointF>(points)));
}

void Brush::curve(const QPainterPath& path, const QColor& color) {
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawPath(path);
}

void Brush::stroke(const QPainterPath& path, qreal width, const QColor& color) {
    m_painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawPath(path);
}

QPointF Brush::around(qreal x, qreal y, qreal distance, qreal angle) {
    const qreal radians = angle * std::numbers::pi / 180;
    return {x + distance * std::sin(radians), y - distance * std::cos(radians)};
}
