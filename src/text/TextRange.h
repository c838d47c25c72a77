#pragma once

#include <QtGlobal>

namespace guide {

/// A part of a text, in UTF-16 units.
struct TextRange {
    qsizetype start = 0;
    qsizetype length = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

} // namespace guide
