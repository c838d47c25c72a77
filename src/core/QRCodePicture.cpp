#include "core/QRCodePicture.h"

#include <qrencode.h>

#include <algorithm>
#include <memory>

namespace guide {

namespace {

/// In squares on each side.
constexpr int kMargin = 4;

} // namespace

QImage qrCodePicture(const QString& text, int side) {
    const QByteArray utf8 = text.toUtf8();
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeData(static_cast<int>(utf8.size()),
                          // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the library's bytes
                          reinterpret_cast<const unsigned char*>(utf8.constData()), 0, QR_ECLEVEL_M),
        &QRcode_free);
    if (!code) {
        return {};
    }
    const int squares = code->width + 2 * kMargin;
    QImage small(squares, squares, QImage::Format_Grayscale8);
    small.fill(Qt::white);
    for (int y = 0; y < code->width; ++y) {
        uchar* line = small.scanLine(y + kMargin);
        for (int x = 0; x < code->width; ++x) {
            if ((code->data[y * code->width + x] & 1) != 0) {
                line[x + kMargin] = 0;
            }
        }
    }
    const int scale = std::max(side / squares, 1);
    return small.scaled(squares * scale, squares * scale);
}

} // namespace guide
