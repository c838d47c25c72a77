#include "ChannelIcons.h"

#include <QtMath>

namespace {

const QColor kWhite(0xff, 0xff, 0xff);

QColor rgb(unsigned value) {
    return QColor::fromRgb(value);
}

/// A path through points by smooth bends: start, then control, control, end again and again.
QPainterPath bend(QPointF start, std::initializer_list<QPointF> points) {
    QPainterPath path(start);
    const QPointF* at = points.begin();
    for (; at + 2 < points.end(); at += 3) {
        path.cubicTo(at[0], at[1], at[2]);
    }
    return path;
}

/// A hilltop view: the sun over two ridges.
void vyhled(Brush& b) {
    b.tile(rgb(0x2f6fde));
    b.circle(75, 58, 27, rgb(0xffd34d));
    QPainterPath far = bend({-6, 82}, {{20, 52}, {44, 54}, {72, 74}, {98, 54}, {128, 50}, {156, 70}});
    far.lineTo(156, 110);
    far.lineTo(-6, 110);
    b.curve(far, rgb(0x1f4fae));
    QPainterPath near = bend({-6, 98}, {{40, 74}, {86, 78}, {156, 100}});
    near.lineTo(156, 112);
    near.lineTo(-6, 112);
    b.curve(near, rgb(0x16377c));
}

/// One minute to the hour.
void minuta(Brush& b) {
    b.tile(rgb(0xd32638));
    b.ring(75, 54, 34, 9, kWhite);
    const QPointF minute = Brush::around(75, 54, 26, -10);
    const QPointF hour = Brush::around(75, 54, 17, 105);
    b.line(75, 54, minute.x(), minute.y(), 8, kWhite);
    b.line(75, 54, hour.x(), hour.y(), 8, rgb(0xffc9ce));
    b.circle(75, 54, 5, rgb(0xd32638));
}

/// The beam on the canvas.
void platno(Brush& b) {
    b.tile(rgb(0x4a2c82));
    b.shape({{26, 54}, {98, 20}, {98, 88}}, rgb(0x7d5cc0));
    b.box(92, 16, 34, 76, 5, kWhite);
    b.circle(28, 54, 10, rgb(0xffd34d));
}

/// A reel.
void pametnik(Brush& b) {
    b.tile(rgb(0x7a5637));
    b.circle(75, 54, 38, rgb(0xf4e3c4));
    for (int i = 0; i < 5; ++i) {
        const QPointF hole = Brush::around(75, 54, 22.5, i * 72.0);
        b.circle(hole.x(), hole.y(), 9, rgb(0x7a5637));
    }
    b.circle(75, 54, 5, rgb(0x7a5637));
    b.box(75, 84, 62, 8, 3, rgb(0xf4e3c4));
}

/// The centre of the pitch.
void polocas(Brush& b) {
    b.tile(rgb(0x1e8a4b));
    b.box(0, 0, 37, 108, 0, rgb(0x23984f));
    b.box(75, 0, 37, 108, 0, rgb(0x23984f));
    b.line(75, -4, 75, 112, 6, kWhite);
    b.ring(75, 54, 30, 6, kWhite);
    b.circle(75, 54, 8, kWhite);
    b.stroke(bend({-4, 22}, {{34, 22}, {34, 86}, {-4, 86}}), 6, kWhite);
    b.stroke(bend({154, 22}, {{116, 22}, {116, 86}, {154, 86}}), 6, kWhite);
}

/// A button, and the thread that holds it.
void knoflik(Brush& b) {
    b.tile(rgb(0xffc83a));
    b.circle(75, 54, 40, rgb(0xe8504a));
    b.ring(75, 54, 31, 4, rgb(0xb93531));
    for (const QPointF hole : {QPointF(64, 43), QPointF(86, 43), QPointF(64, 65), QPointF(86, 65)}) {
        b.circle(hole.x(), hole.y(), 6.5, rgb(0x7d1f1d));
    }
    b.line(64, 43, 86, 65, 5, kWhite);
    b.line(86, 43, 64, 65, 5, kWhite);
}

/// A sound and what comes back.
void ozvena(Brush& b) {
    b.tile(rgb(0xb92d76));
    b.circle(38, 54, 12, kWhite);
    b.arc(38, 54, 30, 45, 135, 9, rgb(0xffffff));
    b.arc(38, 54, 52, 45, 135, 9, rgb(0xf7c6de));
    b.arc(38, 54, 74, 48, 132, 9, rgb(0xe58ab6));
}

/// The globe with its noon line.
void polednik(Brush& b) {
    b.tile(rgb(0x0d7380));
    b.circle(75, 54, 38, rgb(0xd7f3ef));
    b.painter().setBrush(Qt::NoBrush);
    b.painter().setPen(QPen(rgb(0x0d7380), 4));
    b.painter().drawEllipse(QPointF(75, 54), 17, 38);
    b.line(38, 54, 112, 54, 4, rgb(0x0d7380));
    b.painter().drawEllipse(QPointF(75, 54), 38, 38);
    b.line(75, 12, 75, 96, 7, rgb(0xf2663b));
}

/// To be continued.
void pokracovani(Brush& b) {
    b.tile(rgb(0xef6a1f));
    b.circle(34, 56, 9, kWhite);
    b.circle(60, 56, 9, kWhite);
    b.circle(86, 56, 9, kWhite);
    b.shape({{106, 36}, {134, 56}, {106, 76}}, rgb(0xffe08a));
}

/// A fingerprint.
void stopa(Brush& b) {
    b.tile(rgb(0x23262d));
    const QColor amber = rgb(0xf4b63f);
    for (int i = 0; i < 4; ++i) {
        const qreal r = 9 + i * 10.0;
        QPainterPath loop;
        loop.moveTo(75 - r, 60 + r * 0.9);
        loop.lineTo(75 - r, 54);
        loop.arcTo(QRectF(75 - r, 54 - r, 2 * r, 2 * r), 180, -180);
        loop.lineTo(75 + r, 60 + r * (i % 2 == 0 ? 1.05 : 0.6));
        b.stroke(loop, 5, amber);
    }
    b.line(75, 54, 75, 78, 5, amber);
}

/// A seedling in its pot.
void zahradka(Brush& b) {
    b.tile(rgb(0xcfe8a6));
    b.line(75, 74, 75, 42, 6, rgb(0x3f7d2b));
    b.curve(bend({75, 48}, {{50, 52}, {38, 34}, {40, 16}, {62, 16}, {76, 28}, {75, 48}}), rgb(0x58a33a));
    b.curve(bend({75, 58}, {{98, 62}, {114, 48}, {114, 30}, {92, 28}, {76, 40}, {75, 58}}), rgb(0x3f8a2d));
    b.shape({{50, 72}, {100, 72}, {93, 104}, {57, 104}}, rgb(0xb9552f));
    b.box(45, 68, 60, 12, 4, rgb(0xd16a3f));
}

/// Two who speak together.
void dvojhlas(Brush& b) {
    b.tile(rgb(0x2f3f9e));
    b.box(24, 20, 64, 46, 16, rgb(0xf7d154));
    b.shape({{36, 58}, {56, 60}, {32, 80}}, rgb(0xf7d154));
    b.box(64, 40, 64, 44, 16, kWhite);
    b.shape({{116, 76}, {96, 80}, {122, 98}}, kWhite);
    for (const qreal x : {82.0, 96.0, 110.0}) {
        b.circle(x, 62, 4.5, rgb(0x2f3f9e));
    }
}

/// A stick and the puck.
void hokejka(Brush& b) {
    b.tile(rgb(0xbfe2f5));
    b.line(-4, 88, 154, 88, 5, rgb(0x8fc4e4));
    QPainterPath stick(QPointF(112, 14));
    stick.lineTo(72, 78);
    stick.quadTo(70, 82, 64, 82);
    stick.lineTo(34, 82);
    b.stroke(stick, 11, rgb(0x1d2c4c));
    b.line(62, 82, 36, 82, 11, rgb(0xd32638));
    b.ellipse(116, 80, 17, 6, rgb(0x101827));
    b.box(99, 80, 34, 9, 2, rgb(0x101827));
    b.ellipse(116, 89, 17, 6, rgb(0x101827));
}

/// A bonfire.
void vatra(Brush& b) {
    b.tile(rgb(0x3a1a1c));
    b.curve(bend({75, 10}, {{82, 34},
                            {108, 42},
                            {106, 68},
                            {104, 90},
                            {88, 94},
                            {75, 94},
                            {60, 94},
                            {44, 88},
                            {44, 66},
                            {44, 52},
                            {54, 50},
                            {56, 36},
                            {62, 44},
                            {66, 46},
                            {68, 50},
                            {72, 40},
                            {70, 26},
                            {75, 10}}),
            rgb(0xf26a21));
    b.curve(bend({77, 48}, {{82, 60},
                            {94, 64},
                            {92, 78},
                            {90, 90},
                            {82, 92},
                            {75, 92},
                            {66, 92},
                            {58, 88},
                            {59, 76},
                            {60, 66},
                            {74, 64},
                            {77, 48}}),
            rgb(0xffcf4a));
    b.line(46, 100, 104, 88, 8, rgb(0x8a5a33));
    b.line(46, 88, 104, 100, 8, rgb(0xa36c3f));
}

/// Sand that runs.
void hodina(Brush& b) {
    b.tile(rgb(0x12355b));
    b.curve(bend({52, 20}, {{52, 44},
                            {70, 46},
                            {71, 54},
                            {70, 62},
                            {52, 64},
                            {52, 88},
                            {66, 88},
                            {84, 88},
                            {98, 88},
                            {98, 64},
                            {80, 62},
                            {79, 54},
                            {80, 46},
                            {98, 44},
                            {98, 20},
                            {84, 20},
                            {66, 20},
                            {52, 20}}),
            rgb(0xdcebf7));
    b.curve(bend({58, 34},
                 {{60, 44}, {72, 46}, {75, 54}, {78, 46}, {90, 44}, {92, 34}, {84, 34}, {66, 34}, {58, 34}}),
            rgb(0xf2b134));
    b.curve(bend({56, 87},
                 {{58, 74}, {70, 72}, {75, 70}, {80, 72}, {92, 74}, {94, 87}, {84, 87}, {66, 87}, {56, 87}}),
            rgb(0xf2b134));
    b.line(75, 52, 75, 74, 3, rgb(0xf2b134));
    b.box(44, 12, 62, 10, 5, rgb(0xf26d5b));
    b.box(44, 86, 62, 10, 5, rgb(0xf26d5b));
}

/// The projector.
void premietaren(Brush& b) {
    b.tile(rgb(0x64285a));
    b.shape({{92, 66}, {150, 42}, {150, 104}, {92, 78}}, rgb(0x9c5a90));
    b.circle(44, 34, 20, rgb(0xf6e7f2));
    b.circle(80, 36, 15, rgb(0xf6e7f2));
    b.circle(44, 34, 7, rgb(0x64285a));
    b.circle(80, 36, 5.5, rgb(0x64285a));
    b.box(28, 54, 60, 36, 7, rgb(0xf6e7f2));
    b.shape({{86, 64}, {102, 58}, {102, 86}, {86, 80}}, rgb(0xffd34d));
}

/// A twig.
void haluzka(Brush& b) {
    b.tile(rgb(0xffd9c7));
    b.stroke(bend({20, 92}, {{52, 84}, {88, 66}, {128, 20}}), 7, rgb(0x7a4a2c));
    const auto leaf = [&b](qreal x, qreal y, qreal angle, const QColor& color) {
        b.painter().save();
        b.painter().translate(x, y);
        b.painter().rotate(angle);
        b.curve(bend({0, 0}, {{8, -18}, {26, -18}, {38, 0}, {26, 16}, {8, 16}, {0, 0}}), color);
        b.painter().restore();
    };
    leaf(58, 78, -110, rgb(0x3f9b52));
    leaf(76, 68, 10, rgb(0x2c7d40));
    leaf(90, 58, -125, rgb(0x55b066));
    leaf(106, 44, 5, rgb(0x3f9b52));
    b.circle(46, 84, 7, rgb(0xe0433d));
}

/// The lighthouse.
void harbour(Brush& b) {
    b.tile(rgb(0x0b3c5d));
    b.shape({{75, 30}, {150, 8}, {150, 52}}, rgb(0x3a6f93));
    b.shape({{75, 30}, {0, 8}, {0, 52}}, rgb(0x3a6f93));
    b.shape({{64, 38}, {86, 38}, {92, 92}, {58, 92}}, kWhite);
    b.shape({{62.5, 52}, {87.5, 52}, {89, 66}, {61, 66}}, rgb(0xd9473c));
    b.shape({{59.5, 80}, {90.5, 80}, {92, 92}, {58, 92}}, rgb(0xd9473c));
    b.box(64, 22, 22, 16, 3, rgb(0xffd34d));
    b.shape({{60, 23}, {90, 23}, {75, 10}}, rgb(0xd9473c));
    b.stroke(bend({-6, 98}, {{20, 86}, {40, 110}, {64, 98}, {88, 86}, {110, 110}, {156, 94}}), 12,
             rgb(0x1f6f9f));
}

/// A lantern.
void lantern(Brush& b) {
    b.tile(rgb(0x241d2e));
    b.circle(75, 58, 46, rgb(0x3f3340));
    b.arc(75, 26, 14, -90, 90, 5, rgb(0xd9b36c));
    b.shape({{56, 34}, {94, 34}, {86, 24}, {64, 24}}, rgb(0xd9b36c));
    b.box(56, 36, 38, 48, 4, rgb(0xffe7a3));
    b.curve(bend({75, 46},
                 {{80, 56}, {88, 60}, {86, 70}, {84, 80}, {66, 80}, {64, 70}, {62, 60}, {72, 56}, {75, 46}}),
            rgb(0xf28b2b));
    b.box(52, 84, 46, 9, 3, rgb(0xd9b36c));
    b.line(56, 38, 56, 84, 4, rgb(0xd9b36c));
    b.line(94, 38, 94, 84, 4, rgb(0xd9b36c));
}

/// A road that leads away.
void wayfarer(Brush& b) {
    b.tile(rgb(0xf2c879));
    b.circle(108, 34, 15, rgb(0xf26b3a));
    b.shape({{-4, 66}, {36, 28}, {70, 66}}, rgb(0x9a6a4a));
    b.shape({{40, 66}, {84, 38}, {128, 66}}, rgb(0x7d5238));
    b.box(-4, 62, 160, 50, 0, rgb(0x4d7a53));
    b.curve(bend({74, 62}, {{66, 74},
                            {96, 78},
                            {58, 112},
                            {70, 112},
                            {90, 112},
                            {104, 112},
                            {116, 84},
                            {74, 74},
                            {80, 62},
                            {78, 62},
                            {76, 62},
                            {74, 62}}),
            rgb(0xfbeed3));
}

/// A garden pavilion.
void belvedere(Brush& b) {
    b.tile(rgb(0x6c4fb8));
    b.curve(
        bend({34, 42},
             {{36, 20}, {58, 12}, {75, 12}, {92, 12}, {114, 20}, {116, 42}, {100, 42}, {50, 42}, {34, 42}}),
        rgb(0xf3ecff));
    b.circle(75, 10, 5, rgb(0xffd34d));
    for (const qreal x : {42.0, 63.0, 81.0, 102.0}) {
        b.box(x, 48, 7, 38, 2, rgb(0xf3ecff));
    }
    b.box(34, 43, 82, 7, 2, rgb(0xd6c7f4));
    b.box(28, 86, 94, 10, 3, rgb(0xf3ecff));
}

/// The spot.
void projecteur(Brush& b) {
    b.tile(rgb(0x14213d));
    b.shape({{58, 34}, {128, 84}, {64, 98}, {40, 56}}, rgb(0x3b4d7a));
    b.ellipse(97, 90, 34, 10, rgb(0xffe28a));
    b.painter().save();
    b.painter().translate(46, 38);
    b.painter().rotate(40);
    b.box(-22, -17, 40, 34, 8, kWhite);
    b.box(14, -20, 12, 40, 4, rgb(0xfca311));
    b.painter().restore();
    b.line(36, 18, 36, -6, 6, kWhite);
}

/// A judas-tree blossom.
void erguvan(Brush& b) {
    b.tile(rgb(0x8b2a80));
    for (int i = 0; i < 5; ++i) {
        b.painter().save();
        b.painter().translate(75, 56);
        b.painter().rotate(i * 72.0);
        b.curve(bend({0, -4}, {{-22, -14}, {-18, -44}, {0, -42}, {18, -44}, {22, -14}, {0, -4}}),
                rgb(0xf6b3dd));
        b.line(0, -12, 0, -26, 3, rgb(0xd86ab4));
        b.painter().restore();
    }
    b.circle(75, 56, 9, rgb(0xffd34d));
}

/// The curtain.
void perde(Brush& b) {
    b.tile(rgb(0x2b1014));
    b.circle(75, 92, 40, rgb(0x6e2a2f));
    for (int side = -1; side <= 1; side += 2) {
        const auto x = [side](qreal from) { return 75 + side * from; };
        b.curve(bend({x(78), -4}, {{x(50), -4},
                                   {x(30), -4},
                                   {x(12), -4},
                                   {x(18), 40},
                                   {x(50), 56},
                                   {x(54), 66},
                                   {x(48), 80},
                                   {x(50), 96},
                                   {x(50), 112},
                                   {x(60), 112},
                                   {x(70), 112},
                                   {x(78), 112}}),
                rgb(0xc22b3a));
        b.stroke(bend({x(34), -4}, {{x(40), 36}, {x(58), 48}, {x(60), 64}}), 4, rgb(0x98202d));
        b.stroke(bend({x(56), -4}, {{x(60), 34}, {x(66), 46}, {x(66), 64}}), 4, rgb(0x98202d));
        b.line(x(50), 68, x(80), 62, 8, rgb(0xf2c14e));
    }
}

/// The last house of the village.
void okolitsa(Brush& b) {
    b.tile(rgb(0x2f7f73));
    b.circle(116, 30, 14, rgb(0xffd34d));
    b.box(48, 50, 54, 42, 2, rgb(0xd9a566));
    for (const qreal y : {60.0, 70.0, 80.0}) {
        b.line(50, y, 100, y, 2.5, rgb(0xb98345));
    }
    b.shape({{38, 54}, {112, 54}, {75, 20}}, rgb(0x8a3324));
    b.box(64, 60, 22, 20, 2, kWhite);
    b.box(67, 63, 16, 14, 1, rgb(0x4fb3d9));
    b.line(75, 62, 75, 78, 3, kWhite);
    b.box(-4, 90, 160, 22, 0, rgb(0x1f5c4f));
    for (int i = 0; i < 4; ++i) {
        b.box(6 + i * 11.0, 72, 6, 26, 3, rgb(0xf1dfb8));
        b.box(105 + i * 11.0, 72, 6, 26, 3, rgb(0xf1dfb8));
    }
    b.line(4, 82, 44, 82, 4, rgb(0xf1dfb8));
    b.line(105, 82, 146, 82, 4, rgb(0xf1dfb8));
}

/// Film in cinnabar.
void kinovar(Brush& b) {
    b.tile(rgb(0xe03d2f));
    b.box(28, 42, 94, 52, 6, kWhite);
    b.painter().save();
    b.painter().translate(28, 40);
    b.painter().rotate(-12);
    b.box(0, -18, 96, 18, 4, rgb(0x2b2b33));
    for (int i = 0; i < 4; ++i) {
        const qreal x = 8 + i * 24.0;
        b.shape({{x, -18}, {x + 12, -18}, {x + 4, 0}, {x - 8, 0}}, kWhite);
    }
    b.painter().restore();
    for (int i = 0; i < 5; ++i) {
        b.box(36 + i * 17.0, 48, 9, 8, 2, rgb(0xe03d2f));
        b.box(36 + i * 17.0, 80, 9, 8, 2, rgb(0xe03d2f));
    }
    b.line(40, 68, 110, 68, 4, rgb(0xf3b5ae));
}

} // namespace

const std::vector<ChannelIcon>& channelIcons() {
    static const std::vector<ChannelIcon> icons = [] {
        std::vector<ChannelIcon> all = {
            {"vyhled", vyhled},           {"minuta", minuta},
            {"platno", platno},           {"pametnik", pametnik},
            {"polocas", polocas},         {"knoflik", knoflik},
            {"ozvena", ozvena},           {"polednik", polednik},
            {"pokracovani", pokracovani}, {"stopa", stopa},
            {"zahradka", zahradka},       {"dvojhlas", dvojhlas},
            {"hokejka", hokejka},         {"vatra", vatra},
            {"hodina", hodina},           {"premietaren", premietaren},
            {"haluzka", haluzka},         {"harbour", harbour},
            {"lantern", lantern},         {"wayfarer", wayfarer},
            {"belvedere", belvedere},     {"projecteur", projecteur},
            {"erguvan", erguvan},         {"perde", perde},
            {"okolitsa", okolitsa},       {"kinovar", kinovar},
        };
        all.insert(all.end(), townIcons().begin(), townIcons().end());
        return all;
    }();
    return icons;
}
