#pragma once

#include <QByteArray>

namespace guide {

/// A channel's icon as it is kept: a small PNG, made of a picture in any format that decodedPicture reads. A
/// logo without a background that would vanish on a light or a dark screen gets a plate. Empty when the file
/// is no such picture, or one that shows nothing. Any thread.
QByteArray channelIconPicture(const QByteArray& file);

} // namespace guide
