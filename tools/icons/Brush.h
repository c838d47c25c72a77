#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>

#include <initializer_list>

/// A painter on a tile of 150 by 108 with plain words for plain shapes. Angles are degrees, clockwise from
/// the top.
class Brush {
  public:
    explicit Brush(QPainter& painter)
        : m_painter(painter) {
        m_painter.setRenderHint(QPainter::Antialiasing);
    }

    QPainter& painter() { return m_painter; }

    /// The tile itself; whatever follows stays inside of it.
    void tile(const QColor& color);
    void circle(qreal x, qreal y, qreal radius, const QColor& color);
    void ellipse(qreal x, qreal y, qreal rx, qreal ry, const QColor& color);
    void ring(qreal x, qreal y, qreal radius, qreal width, const QColor& color);
    void arc(qreal x, qreal y, qreal radius, qreal from, qreal to, qreal width, const QColor& color);
    void line(qreal x1, qreal y1, qreal x2, qreal y2, qreal width, const QColor& color);
    void box(qreal x, qreal y, qreal w, qreal h, qreal radius, const QColor& color);
    void shape(std::initializer_list<QPointF> points, const QColor& color);
    void curve(const QPainterPath& path, const QColor& color);
    void stroke(const QPainterPath& path, qreal width, const QColor& color);
    /// A point at the distance and angle from the centre.
    static QPointF around(qreal x, qreal y, qreal distance, qreal angle);

  private:
    QPainter& m_painter;
};
