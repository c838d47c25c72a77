#pragma once

#include <QByteArrayView>

#include <functional>

namespace guide {

/// Takes the next piece of something that arrives in order. The bytes are valid during the call only. False
/// ends it: no further piece comes.
using TakePiece = std::function<bool(QByteArrayView)>;

} // namespace guide
