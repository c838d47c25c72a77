#pragma once

#include "demo/feeds/Packing.h"

namespace guide {

inline constexpr int kZlibWindow = 15;

/// The packed bytes with a damaged middle.
inline QByteArray damaged(QByteArray packed) {
    for (qsizetype i = packed.size() / 2; i < packed.size() / 2 + 64 && i < packed.size(); ++i) {
        packed[i] = static_cast<char>(~packed[i]);
    }
    return packed;
}

} // namespace guide
