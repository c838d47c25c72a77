#include "screens/GuidePictures.h"

#include "core/ChannelInitials.h"

namespace guide {

QImage GuidePictures::picture(const PictureKey& key, const QSize& pixels) {
    switch (key.kind) {
    case PictureKey::Kind::ChannelIcon:
        return m_icons.iconNamed(key.name);
    case PictureKey::Kind::Show:
        return m_shows.image(key.name);
    case PictureKey::Kind::Initials:
        return channelInitialsIcon(key.name, pixels.isEmpty() ? QSize(100, 72) : pixels);
    case PictureKey::Kind::None:
    case PictureKey::Kind::Bundled:
    case PictureKey::Kind::QRCode:
        break;
    }
    return {};
}

} // namespace guide
