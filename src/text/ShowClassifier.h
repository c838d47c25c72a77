#pragma once

#include "text/TVListingsCategory.h"

#include <QString>

#include <optional>

namespace guide {

/// The texts that a show is classified by; unset and empty ones are skipped.
struct ClassifiedTexts {
    std::optional<QString> instantDetails1;
    std::optional<QString> identificator;
    std::optional<QString> instantDescription1;
};

/// The categories that word lists in many languages, the number of the source and a pass of exclusions give a
/// show. 0 when nothing matches. Never a series beside a film. Any thread.
TVListingsCategory classifyEntry(const std::optional<QString>& sourceId, const ClassifiedTexts& texts);

} // namespace guide
