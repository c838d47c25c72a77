#pragma once

#include <QPainterPath>
#include <QPointF>

#include <initializer_list>

/// What symbols are made of, in the square of SymbolShape.
namespace guide::strokes {

void line(QPainterPath& path, std::initializer_list<QPointF> points);
void polygon(QPainterPath& path, std::initializer_list<QPointF> corners);
/// The start, then two control points and the end of each piece.
void curve(QPainterPath& path, std::initializer_list<QPointF> points);
void dot(QPainterPath& path, double x, double y);
void circle(QPainterPath& path, double x, double y, double radius);
/// Around the centre, in degrees counter-clockwise from three o'clock.
void arc(QPainterPath& path, double radius, double from, double sweep);
void box(QPainterPath& path, double x, double y, double width, double height, double radius);

void heart(QPainterPath& path);
void star(QPainterPath& path);
void globe(QPainterPath& path);
void filmStrip(QPainterPath& path);

} // namespace guide::strokes
