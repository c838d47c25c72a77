#pragma once

#include "text/categories/TVListingsCategory.h"

#include <QString>

#include <optional>

namespace guide {

// Maps the words by which feeds describe a show, in many languages, to category bits. Unknown words add none.
// Keys match as substrings, every row of a table is tested, and composed and decomposed input are equivalent.

/// The value of a category's "desc" attribute, compared as a whole.
TVListingsCategory mapCategoryAttribute(const QString& value);

/// A bracketed part of a subtitle, brackets included.
TVListingsCategory mapBracketCategories(const QString& text);

struct SubtitleCategories {
    TVListingsCategory categories = 0;
    /// Whether a word was known, even if its bits were already set.
    bool recognised = false;
};

/// The subtitle, and the names of some producers in the title.
SubtitleCategories mapSubtitleWords(const std::optional<QString>& subtitle,
                                    const std::optional<QString>& title);

/// A cleaned description.
TVListingsCategory mapDescriptionWords(const QString& description);

/// The instant description of a title.
TVListingsCategory mapInstantDescriptionWords(const QString& instantDescription);

/// The joined text of a show's categories.
TVListingsCategory mapCategoryText(const QString& text);

} // namespace guide
