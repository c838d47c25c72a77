#include "demo/pages/Pictures.h"

#include <QColor>
#include <QUrl>

namespace guide {

using namespace Qt::StringLiterals;

QByteArray showPicturePath(const QString& title) {
    return "/pictures/" + QUrl::toPercentEncoding(title) + ".svg";
}

QByteArray showPicture(const QByteArray& path) {
    // FNV-1a, because qHash differs from run to run.
    quint32 seed = 2'166'136'261U;
    for (const char c : path) {
        seed = (seed ^ static_cast<unsigned char>(c)) * 16'777'619U;
    }
    const auto next = [&seed](int bound) {
        seed = seed * 1'664'525U + 1'013'904'223U;
        return static_cast<int>((seed >> 16) % static_cast<quint32>(bound));
    };
    const auto color = [](int hue, int lightness) {
        return QColor::fromHsl(hue % 360, 110, lightness).name();
    };
    const int hue = next(360);
    QString svg = u"<svg xmlns='http://www.w3.org/2000/svg' width='640' height='360' viewBox='0 0 640 360'>"
                  "<defs><linearGradient id='s' x2='0' y2='1'><stop stop-color='%1'/><stop offset='1' "
                  "stop-color='%2'/></linearGradient></defs><rect width='640' height='360' fill='url(#s)'/>"
                  "<circle cx='%3' cy='%4' r='%5' fill='%6'/>"_s.arg(color(hue, 70), color(hue + 40, 190))
                      .arg(80 + next(480))
                      .arg(70 + next(90))
                      .arg(26 + next(40))
                      .arg(color(hue + 60, 225));
    for (int hill = 0; hill < 3; ++hill) {
        const int top = 170 + 55 * hill;
        svg += u"<path d='M0 %1C160 %2 220 %3 330 %4S560 %5 640 %6V360H0Z' fill='%7'/>"_s.arg(top + next(50))
                   .arg(top - next(70))
                   .arg(top + next(60))
                   .arg(top + next(40))
                   .arg(top - next(60))
                   .arg(top + next(50))
                   .arg(color(hue + 15 * hill, 95 - 26 * hill));
    }
    return (svg + u"</svg>"_s).toUtf8();
}

} // namespace guide
