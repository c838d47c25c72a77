#pragma once

#include "text/categories/TVListingsCategory.h"

#include <QString>

#include <chrono>
#include <optional>
#include <vector>

namespace guide {

/// What the categories of a show are told by.
struct ShowText {
    /// Cleaned, as displayed.
    QString title;
    QString subtitle;
    QString description;
    /// The category elements, each, and genres that were found in other texts.
    std::vector<QString> categories;
    /// Of the channel, as an ISO 639-1 code; may be empty.
    QString language;
    /// Whether somebody plays in it.
    bool hasRoles = false;
    std::optional<std::chrono::seconds> length;
    /// Whether the show is an episode.
    bool hasEpisode = false;
    QString channelName;
};

/// The categories of a show of a feed that the user added.
TVListingsCategory feedCategories(const ShowText& show);

} // namespace guide
