#include "core/PictureDecoding.h"

#include "core/HarmlessDrawing.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace guide {

namespace {

constexpr QByteArrayView kDrawing = "svg";

bool isKnownFormat(const QByteArray& format) {
    static constexpr std::array<QByteArrayView, 5> kFormats{"png", "jpeg", "gif", "webp", kDrawing};
    return std::ranges::find(kFormats, QByteArrayView(format)) != kFormats.end();
}

/// Enough for the largest picture that is decoded, which Qt's own limit is not.
constexpr int kMegabytes = 256;

int pixels(double points, double scale) {
    return std::max(1, static_cast<int>(std::lround(points * scale)));
}

} // namespace

QSize scaledPictureSize(const QSize& own, const QSizeF& most, double screenScale) {
    const QSizeF size = own.toSizeF() / screenScale;
    const double maxWidth = std::min(most.width(), size.width());
    const double maxHeight = std::min(most.height(), size.height());
    double width = maxWidth;
    double height = size.height() * width / size.width();
    if (height > maxHeight) {
        height = maxHeight;
        width = size.width() * maxHeight / size.height();
    }
    return {pixels(width, screenScale), pixels(height, screenScale)};
}

QImage decodedPicture(const QByteArray& bytes, const PictureLimits& limits, const PictureScaling& scaling) {
    if (bytes.isEmpty() || bytes.size() > limits.bytes) {
        return {};
    }
    [[maybe_unused]] static const bool isLimitSet = [] {
        QImageReader::setAllocationLimit(kMegabytes);
        return true;
    }();
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    const bool isDrawing = format == kDrawing;
    if (!isKnownFormat(format) || (isDrawing && !isHarmlessDrawing(bytes))) {
        return {};
    }
    const QSize own = reader.size();
    if (own.isEmpty() || (!isDrawing && (qint64(own.width()) * own.height() > limits.pixels ||
                                         std::max(own.width(), own.height()) > limits.side))) {
        return {};
    }
    // The reader scales before it turns the picture.
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize shown = scaling(isTurned ? own.transposed() : own, isDrawing);
    const QSize stored = isTurned ? shown.transposed() : shown;
    if (stored != own) {
        reader.setScaledSize(stored);
    }
    QImage image = reader.read();
    if (image.isNull()) {
        return {};
    }
    return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                    : QImage::Format_RGB32);
}

} // namespace guide
