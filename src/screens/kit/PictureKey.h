#pragma once

#include <QString>

namespace guide {

/// Names a picture without holding its pixels. ui/ resolves keys through an image provider, so that comparing
/// two rows never compares pictures.
struct PictureKey {
    enum class Kind {
        None,
        /// A channel's icon, 50 by 36 points; `name` is the icon's name.
        ChannelIcon,
        /// A show's picture; `name` is the key under which ShowPictureCache holds it.
        Show,
        /// A picture that is part of the program; `name` is its file name.
        Bundled,
        /// A QR code; `name` is the encoded text.
        QRCode,
        /// The initials of a channel, at the size of its icon; `name` is its title.
        Initials,
    };

    Kind kind = Kind::None;
    QString name;

    bool empty() const { return kind == Kind::None; }

    friend bool operator==(const PictureKey&, const PictureKey&) = default;
};

} // namespace guide
