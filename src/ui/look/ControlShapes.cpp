#include "ui/look/Glyph.h"
#include "ui/look/Strokes.h"
#include "ui/look/SymbolShape.h"

namespace guide {

using namespace strokes;

namespace {

void allShows(QPainterPath& path) {
    box(path, 3, 6.5, 18, 12.5, 2.5);
    line(path, {{8.5, 22}, {15.5, 22}});
    line(path, {{8, 2.5}, {12, 6.5}});
    line(path, {{16, 2.5}, {12, 6.5}});
}

void currently(QPainterPath& path) {
    circle(path, 12, 12, 9);
    line(path, {{12, 6.5}, {12, 12}, {15.8, 14.4}});
}

void categories(QPainterPath& path) {
    box(path, 3.5, 3.5, 7, 7, 2);
    box(path, 13.5, 3.5, 7, 7, 2);
    box(path, 3.5, 13.5, 7, 7, 2);
    box(path, 13.5, 13.5, 7, 7, 2);
}

void search(QPainterPath& path) {
    circle(path, 10.5, 10.5, 6.7);
    line(path, {{15.5, 15.5}, {20.8, 20.8}});
}

void schedule(QPainterPath& path) {
    box(path, 3.5, 5, 17, 15.5, 3);
    line(path, {{3.5, 10}, {20.5, 10}});
    line(path, {{8, 2.8}, {8, 6.5}});
    line(path, {{16, 2.8}, {16, 6.5}});
}

void selectedChannels(QPainterPath& path) {
    for (const double y : {6.0, 12.0, 18.0}) {
        line(path, {{10.5, y}, {21, y}});
        line(path, {{2.8, y}, {4.6, y + 1.8}, {7.4, y - 2}});
    }
}

void refresh(QPainterPath& path) {
    arc(path, 8, 60, 290);
    line(path, {{16.4, 9.2}, {20.6, 9.0}, {20.6, 4.8}});
}

void back(QPainterPath& path) {
    line(path, {{14.8, 4.5}, {7.5, 12}, {14.8, 19.5}});
}

void disclosure(QPainterPath& path) {
    line(path, {{9, 5.5}, {15.3, 12}, {9, 18.5}});
}

void activity(QPainterPath& path) {
    arc(path, 8.5, 90, -270);
}

void check(QPainterPath& path) {
    line(path, {{4.5, 12.5}, {9.8, 17.8}, {19.5, 6.8}});
}

void close(QPainterPath& path) {
    line(path, {{6, 6}, {18, 18}});
    line(path, {{18, 6}, {6, 18}});
}

void remove(QPainterPath& path) {
    circle(path, 12, 12, 9);
    line(path, {{7.8, 12}, {16.2, 12}});
}

void reorder(QPainterPath& path) {
    for (const double y : {7.5, 12.0, 16.5}) {
        line(path, {{4, y}, {20, y}});
    }
}

void bell(QPainterPath& path) {
    path.moveTo(5, 17);
    path.cubicTo(6.6, 15.2, 6.6, 13.4, 6.6, 10.6);
    path.cubicTo(6.6, 7, 9, 4.8, 12, 4.8);
    path.cubicTo(15, 4.8, 17.4, 7, 17.4, 10.6);
    path.cubicTo(17.4, 13.4, 17.4, 15.2, 19, 17);
    path.closeSubpath();
    line(path, {{12, 2.6}, {12, 4.8}});
    curve(path, {{9.8, 19.6}, {10.4, 21.2}, {13.6, 21.2}, {14.2, 19.6}});
}

void unfold(QPainterPath& path) {
    line(path, {{7, 9.5}, {12, 4.5}, {17, 9.5}});
    line(path, {{7, 14.5}, {12, 19.5}, {17, 14.5}});
}

void warning(QPainterPath& path) {
    polygon(path, {{12, 3.8}, {21.4, 20}, {2.6, 20}});
    line(path, {{12, 9.6}, {12, 14.2}});
    dot(path, 12, 17);
}

void picture(QPainterPath& path) {
    box(path, 3, 4.5, 18, 15, 3);
    circle(path, 8.6, 9.8, 1.7);
    line(path, {{4, 17.4}, {9.4, 13.2}, {12.6, 15.8}, {16.4, 11.4}, {20.4, 15.2}});
}

void link(QPainterPath& path) {
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
}

void info(QPainterPath& path) {
    circle(path, 12, 12, 9);
    line(path, {{12, 11}, {12, 16.4}});
    dot(path, 12, 7.6);
}

void pause(QPainterPath& path) {
    line(path, {{8.5, 5}, {8.5, 19}});
    line(path, {{15.5, 5}, {15.5, 19}});
}

void previous(QPainterPath& path) {
    line(path, {{5, 15.3}, {12, 8.5}, {19, 15.3}});
}

void next(QPainterPath& path) {
    line(path, {{5, 8.7}, {12, 15.5}, {19, 8.7}});
}

void past(QPainterPath& path) {
    arc(path, 8.5, 150, -300);
    line(path, {{3.2, 4.2}, {4, 8.6}, {8.4, 7.8}});
    line(path, {{12, 7.2}, {12, 12}, {15.4, 14}});
}

void loudspeaker(QPainterPath& path) {
    polygon(path, {{3.5, 9.5}, {7, 9.5}, {11.5, 5.5}, {11.5, 18.5}, {7, 14.5}, {3.5, 14.5}});
}

void sound(QPainterPath& path) {
    loudspeaker(path);
    arc(path, 3.6, -40, 80);
    arc(path, 7.4, -42, 84);
}

void noSound(QPainterPath& path) {
    loudspeaker(path);
    line(path, {{15.5, 9.5}, {20.5, 14.5}});
    line(path, {{20.5, 9.5}, {15.5, 14.5}});
}

/// The corners of a screen, with their tips and ends at these distances from its edges.
void corners(QPainterPath& path, double tip, double end) {
    const auto at = [](double distance, bool far) { return far ? SymbolShape::kSide - distance : distance; };
    for (const bool right : {false, true}) {
        for (const bool low : {false, true}) {
            line(path, {{at(end, right), at(tip, low)},
                        {at(tip, right), at(tip, low)},
                        {at(tip, right), at(end, low)}});
        }
    }
}

void fullScreen(QPainterPath& path) {
    corners(path, 4, 9.5);
}

void window(QPainterPath& path) {
    corners(path, 9.5, 4);
}

void play(QPainterPath& path) {
    polygon(path, {{8, 5.5}, {18.5, 12}, {8, 18.5}});
}

void moved(QPainterPath& path) {
    line(path, {{3.5, 12}, {20, 12}});
    line(path, {{13.5, 5.5}, {20, 12}, {13.5, 18.5}});
}

void removed(QPainterPath& path) {
    circle(path, 12, 12, 9);
    line(path, {{8.6, 8.6}, {15.4, 15.4}});
    line(path, {{15.4, 8.6}, {8.6, 15.4}});
}

/// Three sliders.
void options(QPainterPath& path) {
    for (const auto& [y, knob] : {std::pair(6.0, 15.5), std::pair(12.0, 8.5), std::pair(18.0, 15.5)}) {
        circle(path, knob, y, 2.3);
        line(path, {{3, y}, {knob - 2.3, y}});
        line(path, {{knob + 2.3, y}, {21, y}});
    }
}

void eye(QPainterPath& path) {
    curve(path, {{2.5, 12}, {6.5, 3.5}, {17.5, 3.5}, {21.5, 12}});
    curve(path, {{2.5, 12}, {6.5, 20.5}, {17.5, 20.5}, {21.5, 12}});
    circle(path, 12, 12, 3);
}

void eyeCrossed(QPainterPath& path) {
    eye(path);
    line(path, {{4, 20}, {20, 4}});
}

constexpr SymbolShape kShapes[]{
    {Glyph::AllShows, allShows},
    {Glyph::Currently, currently},
    {Glyph::Categories, categories},
    {Glyph::Search, search},
    {Glyph::Schedule, schedule},
    {Glyph::SelectedChannels, selectedChannels},
    {Glyph::Refresh, refresh},
    {Glyph::Back, back},
    {Glyph::Disclosure, disclosure},
    {Glyph::Activity, activity},
    {Glyph::Check, check},
    {Glyph::Close, close},
    {Glyph::Delete, remove},
    {Glyph::Reorder, reorder},
    {Glyph::Bell, bell},
    {Glyph::Unfold, unfold},
    {Glyph::Warning, warning},
    {Glyph::Picture, picture},
    {Glyph::Link, link},
    {Glyph::Info, info},
    {Glyph::Pause, pause},
    {Glyph::Previous, previous},
    {Glyph::Next, next},
    {Glyph::Past, past},
    {Glyph::Recent, past},
    {Glyph::Moved, moved},
    {Glyph::Removed, removed},
    {Glyph::Options, options},
    {Glyph::Eye, eye},
    {Glyph::EyeCrossed, eyeCrossed},
    {Glyph::Sound, sound},
    {Glyph::NoSound, noSound},
    {Glyph::FullScreen, fullScreen},
    {Glyph::Window, window},
    {Glyph::Film, filmStrip},
    {Glyph::Globe, globe},
    {Glyph::StarOutline, star},
    {Glyph::Star, star, true},
    {Glyph::Heart, heart, true},
    {Glyph::Play, play, true},
};

} // namespace

std::span<const SymbolShape> controlShapes() {
    return kShapes;
}

} // namespace guide
