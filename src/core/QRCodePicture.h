#pragma once

#include <QImage>
#include <QString>

namespace guide {

/// The QR code of the text, black on white with the margin that readers need, at most as large as the side in
/// pixels and larger only where its squares would get smaller than one pixel. Null for a text that is too
/// long.
QImage qrCodePicture(const QString& text, int side);

} // namespace guide
