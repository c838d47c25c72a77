#pragma once

#include "text/TVListingsCategory.h"

#include <QString>

#include <span>

namespace guide {

/// A group of the classifier: any of its words adds its bits.
struct ClassifierGroup {
    TVListingsCategory adds;
    std::span<const char16_t* const> words;
    /// Counts where it occurs at all, as part of a word too; null when there is none.
    const char16_t* substring = nullptr;
    /// Counts unless the other one matches; null when there is none.
    const char16_t* conditional = nullptr;
    const char16_t* unless = nullptr;
    /// Clears these bits before it adds its own.
    TVListingsCategory clears = 0;
};

/// In the order in which they are tested.
std::span<const ClassifierGroup> classifierGroups();

} // namespace guide
