#pragma once

#include "text/TVListingsCategory.h"

#include <QString>

#include <optional>

namespace guide {

// The words by which feeds say what a show is, in many languages. Each answers the bits to be added; unknown
// words add none. Keys are searched as substrings, every row of a table is tested, and composed and
// decomposed input are alike.

/// The value of a category's "desc" attribute, compared as a whole.
TVListingsCategory mapCategoryAttribute(const QString& value);

/// A bracketed stretch of a subtitle, brackets included.
TVListingsCategory mapBracketCategories(const QString& text);

struct SubtitleCategories {
    TVListingsCategory categories = 0;
    /// Whether a word was known, also one that adds what is there already.
    bool recognised = false;
};

/// The subtitle, and some makers' names in the title.
SubtitleCategories mapSubtitleWords(const std::optional<QString>& subtitle,
                                    const std::optional<QString>& title);

/// A cleaned description.
TVListingsCategory mapDescriptionWords(const QString& description);

/// The instant description of a title.
TVListingsCategory mapInstantDescriptionWords(const QString& instantDescription);

/// The joined text of a show's categories.
TVListingsCategory mapCategoryText(const QString& text);

} // namespace guide
