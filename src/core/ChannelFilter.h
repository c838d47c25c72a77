#pragma once

#include "core/ChannelDictionary.h"
#include "core/SupportedChannelTypes.h"

#include <functional>
#include <vector>

namespace guide {

/// Whether an icon of this name can be shown. Never asked with an empty name.
using HasIcon = std::function<bool(const QString& iconName)>;

/// The channels of the supported pairs that have an icon and a title, each identity once. Of two versions of
/// a channel the one nearer to the home pair stays, of equal ones the earlier. In the order of the input,
/// except that a version that replaces an earlier one goes to the end.
std::vector<ChannelDictionary> filteredChannels(const std::vector<ChannelDictionary>& channels,
                                                const SupportedChannelTypes& types, const HasIcon& hasIcon);

} // namespace guide
