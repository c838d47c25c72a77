#pragma once

#include "text/categories/TVListingsCategory.h"

#include <QString>

#include <optional>

namespace guide {

/// The texts that a show is classified by; unset and empty ones are skipped. Holds views, so it must not
/// outlive the texts.
struct ClassifiedTexts {
    ClassifiedTexts(const std::optional<QString>& details, const std::optional<QString>& title,
                    const std::optional<QString>& description)
        : instantDetails1(details ? QStringView(*details) : QStringView())
        , identificator(title ? QStringView(*title) : QStringView())
        , instantDescription1(description ? QStringView(*description) : QStringView()) {}

    QStringView instantDetails1;
    QStringView identificator;
    QStringView instantDescription1;
};

/// Classifies a show by word lists in many languages, the number of its source and a series of exclusions. 0
/// when nothing matches. Never both a series and a film. Any thread.
TVListingsCategory classifyEntry(const std::optional<QString>& sourceId, const ClassifiedTexts& texts);

/// The categories without those that others exclude: a series is no film, and so on.
TVListingsCategory withoutExcluded(TVListingsCategory categories);

} // namespace guide
