#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QSizeF>

#include <functional>

namespace guide {

/// How large a picture may be.
struct PictureLimits {
    /// Of the file.
    qint64 bytes = 0;
    qint64 pixels = 0;
    /// Of the longer side, in pixels.
    int side = 0;
};

inline constexpr PictureLimits kShowPictureLimits{qint64(16) << 20, 50'000'000, 65'535};
inline constexpr PictureLimits kChannelIconLimits{qint64(2) << 20, qint64(4096) * 4096, 4096};

/// The size in pixels at which a picture is drawn within `most`, in points: a picture is made smaller, never
/// larger, and keeps its proportions.
QSize scaledPictureSize(const QSize& pixels, const QSizeF& most, double screenScale);

/// The size at which to decode a picture, from its own size and whether it is a drawing without pixels.
using PictureScaling = std::function<QSize(const QSize& own, bool isDrawing)>;

/// Decodes a PNG, JPEG, GIF, WebP or SVG at the size that `scaling` chooses. Null when the bytes are no such
/// picture or the limits are exceeded, which is found out before memory is taken, and for an SVG that refers
/// to anything outside itself, contains a script, or is too complex. Any thread.
QImage decodedPicture(const QByteArray& bytes, const PictureLimits& limits, const PictureScaling& scaling);

} // namespace guide
