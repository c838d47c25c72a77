#pragma once

#include "screens/kit/PictureKey.h"

#include <QImage>
#include <QSize>

namespace guide {

/// Resolves picture keys. Any thread.
class PictureProvider {
  public:
    virtual ~PictureProvider() = default;
    /// A null image when there is none. `pixels` is the size at which the picture will be drawn; the image
    /// may have another one.
    virtual QImage picture(const PictureKey& key, const QSize& pixels) = 0;
};

} // namespace guide
