#pragma once

#include "core/CatalogueRow.h"
#include "core/SupportedChannelTypes.h"

#include <functional>
#include <vector>

namespace guide {

/// Whether an icon of this name can be shown. Never called with an empty name.
using HasIcon = std::function<bool(const QString& iconName)>;

/// The channels of the supported pairs that have an icon, each identity once. Of two versions of a channel
/// the one closer to the home pair is kept, and the earlier one of two that are equally close. In the order
/// of the input, except that a version that replaces an earlier one moves to the end. The tally counts the
/// channels of other pairs and those without an icon.
std::vector<CatalogueRow> filteredChannels(std::vector<CatalogueRow> rows, const SupportedChannelTypes& types,
                                           const HasIcon& hasIcon, RowTally* tally = nullptr);

} // namespace guide
