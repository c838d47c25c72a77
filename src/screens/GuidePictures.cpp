#include "screens/GuidePictures.h"

#include "core/ChannelInitials.h"
#include "core/QRCodePicture.h"

#include <algorithm>

namespace guide {

QImage GuidePictures::picture(const PictureKey& key, const QSize& pixels) {
    switch (key.kind) {
    case PictureKey::Kind::ChannelIcon:
        return m_icons.iconNamed(key.name);
    case PictureKey::Kind::Show:
        return m_shows.image(key.name);
    case PictureKey::Kind::Initials:
        return channelInitialsIcon(key.name, pixels.isEmpty() ? QSize(100, 72) : pixels);
    case PictureKey::Kind::QRCode:
        return qrCodePicture(key.name, pixels.isEmpty() ? 300 : std::min(pixels.width(), pixels.height()));
    case PictureKey::Kind::None:
    case PictureKey::Kind::Bundled:
        break;
    }
    return {};
}

} // namespace guide
