#pragma once

#include "text/categories/TVListingsCategory.h"

#include <QString>

#include <span>

namespace guide {

/// A group of words of the classifier: any of them adds the bits.
struct ClassifierGroup {
    TVListingsCategory adds;
    std::span<const char16_t* const> words;
    /// Matches anywhere, also within a word; may be null.
    const char16_t* substring = nullptr;
    /// Matches unless `unless` matches too; may be null.
    const char16_t* conditional = nullptr;
    const char16_t* unless = nullptr;
    /// Bits to clear before `adds`.
    TVListingsCategory clears = 0;
};

/// The groups in the order in which they are tested.
std::span<const ClassifierGroup> classifierGroups();

} // namespace guide
