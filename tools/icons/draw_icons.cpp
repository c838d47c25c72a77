// Draws the icons of the demo's channels and the application's own into the data folder:
//
//     draw-icons DATA_FOLDER [CONTACT_SHEET.png]
//
// A contact sheet shows them all as the guide does, on a light and on a dark ground.
#include "ChannelIcons.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kIcon(150, 108);

QImage drawn(const ChannelIcon& icon) {
    QImage image(kIcon, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Brush brush(painter);
    icon.draw(brush);
    return image;
}

/// The Q of the guide: a ring around what plays, with the running show's green for its tail. The same drawing
/// as quellin-guide.svg.
QImage applicationIcon(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 256.0, side / 256.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x43, 0x3f, 0xc9));
    painter.drawRoundedRect(QRectF(0, 0, 256, 256), 58, 58);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 26));
    painter.drawEllipse(QPointF(122, 122), 70, 70);
    painter.setPen(QPen(QColor(0x43, 0x3f, 0xc9), 50, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(150, 150), QPointF(202, 202));
    painter.setPen(QPen(QColor(0x4a, 0xde, 0x80), 28, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(150, 150), QPointF(202, 202));
    painter.setPen(QPen(Qt::white, 10, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::white);
    painter.drawPolygon(QPolygonF({QPointF(107, 95), QPointF(107, 149), QPointF(151, 122)}));
    return image;
}

QImage contactSheet() {
    constexpr int kColumns = 7;
    constexpr QSize kCell(kIcon.width() + 24, kIcon.height() + 24);
    const int count = int(channelIcons().size()) + 1;
    const int rows = (count + kColumns - 1) / kColumns;
    QImage sheet(kCell.width() * kColumns, kCell.height() * rows * 2, QImage::Format_RGB32);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int half = 0; half < 2; ++half) {
        const int top = half * rows * kCell.height();
        painter.fillRect(0, top, sheet.width(), rows * kCell.height(),
                         half == 0 ? Qt::white : QColor(0x1c, 0x1c, 0x1e));
        for (int i = 0; i < count; ++i) {
            const QPoint at(i % kColumns * kCell.width() + 12, top + i / kColumns * kCell.height() + 12);
            if (i + 1 < count) {
                painter.drawImage(at, drawn(channelIcons()[std::size_t(i)]));
            } else {
                painter.drawImage(QRect(at, QSize(108, 108)), applicationIcon(256));
            }
        }
    }
    return sheet;
}

bool save(const QImage& image, const QString& path) {
    return image.save(path, "PNG", 0);
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() < 2 || arguments.size() > 3) {
        errors << "usage: draw-icons DATA_FOLDER [CONTACT_SHEET.png]\n";
        return 2;
    }
    const QDir data(arguments[1]);
    bool good = data.mkpath(u"icons"_s);
    for (const ChannelIcon& icon : channelIcons()) {
        good = good && save(drawn(icon), data.filePath(u"icons/%1.png"_s.arg(QLatin1StringView(icon.name))));
    }
    good = good && save(applicationIcon(256), data.filePath(u"quellin-guide.png"_s));
    if (arguments.size() == 3) {
        good = good && save(contactSheet(), arguments[2]);
    }
    if (!good) {
        errors << "draw-icons: cannot write below " << data.absolutePath() << '\n';
    }
    return good ? 0 : 1;
}
