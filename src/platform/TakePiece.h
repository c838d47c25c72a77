#pragma once

#include <QByteArrayView>

#include <functional>

namespace guide {

/// Receives the next piece of a byte sequence, in order. The bytes are valid only during the call. Returning
/// false stops the delivery.
using TakePiece = std::function<bool(QByteArrayView)>;

} // namespace guide
