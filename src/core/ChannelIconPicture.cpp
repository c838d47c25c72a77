#include "core/ChannelIconPicture.h"

#include "core/PictureDecoding.h"

#include <QBuffer>
#include <QPainter>

#include <algorithm>

namespace guide {

namespace {

/// Four times the icon's size in points, for the sharpest screens.
constexpr QSize kLargest(200, 144);
/// Smaller ones only count their readers.
constexpr int kSmallestSide = 8;
constexpr int kVisible = 128;
/// Grey levels beyond which a logo needs a plate, and the plates.
constexpr int kVeryLight = 200;
constexpr int kVeryDark = 50;
constexpr QRgb kDarkPlate = qRgb(0x2c, 0x2c, 0x2e);
constexpr QRgb kLightPlate = qRgb(0xf2, 0xf2, 0xf7);

struct Visible {
    qint64 pixels = 0;
    qint64 gray = 0;

    int meanGray() const { return static_cast<int>(gray / std::max(pixels, qint64{1})); }
};

Visible visiblePart(const QImage& picture) {
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    Visible visible;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) >= kVisible) {
                ++visible.pixels;
                visible.gray += qGray(line[x]);
            }
        }
    }
    return visible;
}

QImage onPlate(const QImage& logo, QRgb color) {
    QImage plate(kLargest, QImage::Format_ARGB32_Premultiplied);
    plate.fill(Qt::transparent);
    QPainter painter(&plate);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    const double radius = kLargest.height() / 6.0;
    painter.drawRoundedRect(plate.rect(), radius, radius);
    QRectF place(QPointF(), QSizeF(logo.size()).scaled(QSizeF(kLargest) * 0.84, Qt::KeepAspectRatio));
    place.moveCenter(QRectF(plate.rect()).center());
    painter.drawImage(place, logo);
    painter.end();
    return plate;
}

} // namespace

QByteArray channelIconPicture(const QByteArray& file) {
    QSize own;
    QImage picture = decodedPicture(file, kChannelIconLimits, [&own](const QSize& size, bool isDrawing) {
        own = size;
        const bool isSmall = size.width() <= kLargest.width() && size.height() <= kLargest.height();
        return isSmall && !isDrawing ? size : size.scaled(kLargest, Qt::KeepAspectRatio).expandedTo({1, 1});
    });
    if (picture.isNull() || std::max(own.width(), own.height()) < kSmallestSide) {
        return {};
    }
    const Visible visible = visiblePart(picture);
    if (visible.pixels == 0) {
        return {};
    }
    const qint64 pixels = qint64(picture.width()) * picture.height();
    if (visible.pixels < pixels * 19 / 20) {
        if (visible.meanGray() > kVeryLight) {
            picture = onPlate(picture, kDarkPlate);
        } else if (visible.meanGray() < kVeryDark) {
            picture = onPlate(picture, kLightPlate);
        }
    }
    QByteArray png;
    QBuffer buffer(&png);
    return buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, "PNG") ? png : QByteArray();
}

} // namespace guide
