#pragma once

#include "parsers/xmltv/FeedDetails.h"

#include <QString>

#include <optional>
#include <string_view>

namespace guide {

/// The texts that a show is made of.
struct FeedShowTexts {
    /// In UTF-8.
    std::string_view title;
    std::optional<QString> subtitle;
    std::optional<QString> description;
    std::optional<QString> roles;
    std::optional<QString> directedBy;
    /// In another language.
    std::optional<QString> otherTitle;
};

/// Of the elements of a programme: the texts in the language, otherwise the first ones, and the names of
/// people. Refers to the details.
FeedShowTexts chosenTexts(const FeedDetails& details, std::string_view language);

} // namespace guide
