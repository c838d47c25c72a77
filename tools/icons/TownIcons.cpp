#include "ChannelIcons.h"

namespace {

const QColor kWhite(0xff, 0xff, 0xff);

QColor rgb(unsigned value) {
    return QColor::fromRgb(value);
}

/// An open gate.
void brana(Brush& b) {
    b.tile(rgb(0x8c1d40));
    b.box(30, 24, 22, 70, 3, rgb(0xf2c9a1));
    b.box(98, 24, 22, 70, 3, rgb(0xf2c9a1));
    b.arc(75, 50, 34, -90, 90, 12, rgb(0xf2c9a1));
    b.circle(75, 62, 12, rgb(0xffd34d));
}

/// A lit tube.
void zarivka(Brush& b) {
    b.tile(rgb(0x14304f));
    b.line(26, 54, 124, 54, 26, rgb(0x2f5f92));
    b.line(32, 54, 118, 54, 14, rgb(0xe9fbff));
    b.box(18, 44, 10, 20, 2, rgb(0xaab7c4));
    b.box(122, 44, 10, 20, 2, rgb(0xaab7c4));
}

/// A dome with its slit open to a star.
void hvezdarna(Brush& b) {
    b.tile(rgb(0x1b1f4b));
    b.circle(75, 76, 36, rgb(0xcfd6ea));
    b.box(30, 76, 90, 40, 0, rgb(0x7d88b5));
    b.shape({{70, 76}, {80, 76}, {92, 44}, {82, 40}}, rgb(0x1b1f4b));
    b.circle(104, 22, 6, rgb(0xffd34d));
    b.circle(40, 26, 3, kWhite);
}

/// A curtain just drawn.
void premiera(Brush& b) {
    b.tile(rgb(0x241418));
    b.circle(75, 60, 22, rgb(0xffe9a8));
    b.shape({{0, 0}, {58, 0}, {30, 56}, {36, 108}, {0, 108}}, rgb(0xb3202c));
    b.shape({{150, 0}, {92, 0}, {120, 56}, {114, 108}, {150, 108}}, rgb(0xb3202c));
}

/// Rows of seats.
void tribuna(Brush& b) {
    b.tile(rgb(0x0d5c3a));
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 5 - i; ++j) {
            b.box(22 + i * 11.0 + j * 22.0, 72 - i * 24.0, 16, 18, 4, i == 1 ? rgb(0xffd34d) : kWhite);
        }
    }
}

/// A smile.
void usmev(Brush& b) {
    b.tile(rgb(0xff8a1f));
    b.circle(52, 40, 7, rgb(0x4a2300));
    b.circle(98, 40, 7, rgb(0x4a2300));
    b.arc(75, 46, 36, 105, 255, 9, rgb(0x4a2300));
}

/// Three jumps into the sand.
void trojskok(Brush& b) {
    b.tile(rgb(0x1377a8));
    for (int i = 0; i < 3; ++i) {
        b.arc(34 + i * 38.0, 76, 17, -85, 85, 6, kWhite);
    }
    b.box(-4, 82, 160, 30, 0, rgb(0xe8c987));
}

/// A hall before its canvas.
void kinosal(Brush& b) {
    b.tile(rgb(0x2d2a55));
    b.box(28, 18, 94, 44, 3, rgb(0xdfe6ff));
    for (int i = 0; i < 5; ++i) {
        b.circle(27 + i * 24.0, 86, 11, rgb(0x5a54a4));
    }
}

/// Both hands up.
void polnoc(Brush& b) {
    b.tile(rgb(0x101018));
    b.ring(75, 54, 36, 6, rgb(0xb9c2ff));
    b.line(75, 54, 75, 28, 6, rgb(0xb9c2ff));
    b.line(71, 54, 71, 36, 4, rgb(0xb9c2ff));
    b.circle(118, 22, 8, rgb(0xffe9a8));
}

/// Waves and a shore.
void pobrezie(Brush& b) {
    b.tile(rgb(0x25a3b8));
    b.circle(112, 30, 13, rgb(0xffd34d));
    for (int i = 0; i < 4; ++i) {
        b.arc(20 + i * 36.0, 74, 18, 90, 270, 6, kWhite);
    }
    b.shape({{0, 108}, {0, 84}, {80, 96}, {150, 90}, {150, 108}}, rgb(0xe8c987));
}

/// An anchor.
void anchor(Brush& b) {
    b.tile(rgb(0x123a63));
    b.ring(75, 22, 8, 5, kWhite);
    b.line(75, 30, 75, 90, 7, kWhite);
    b.line(58, 40, 92, 40, 6, kWhite);
    b.arc(75, 58, 32, 95, 265, 7, kWhite);
}

/// A parasol over a table.
void terrace(Brush& b) {
    b.tile(rgb(0x5b8c3a));
    b.shape({{30, 46}, {120, 46}, {75, 18}}, rgb(0xfff2d6));
    b.line(75, 40, 75, 90, 5, rgb(0x5a3a1e));
    b.box(46, 68, 58, 7, 3, rgb(0xf1dfb8));
}

/// A bridge for walkers.
void passerelle(Brush& b) {
    b.tile(rgb(0x6a4c93));
    b.arc(75, 96, 58, -70, 70, 7, rgb(0xffd9a0));
    for (int i = 0; i < 5; ++i) {
        b.line(35 + i * 20.0, 62, 35 + i * 20.0, 90, 3, rgb(0xffd9a0));
    }
    b.line(10, 88, 140, 88, 7, kWhite);
}

} // namespace

const std::vector<ChannelIcon>& townIcons() {
    static const std::vector<ChannelIcon> icons = {
        {"brana", brana},           {"zarivka", zarivka},   {"hvezdarna", hvezdarna}, {"premiera", premiera},
        {"tribuna", tribuna},       {"usmev", usmev},       {"trojskok", trojskok},   {"kinosal", kinosal},
        {"polnoc", polnoc},         {"pobrezie", pobrezie}, {"anchor", anchor},       {"terrace", terrace},
        {"passerelle", passerelle},
    };
    return icons;
}
