#pragma once

#include "core/ObjectId.h"

#include <QString>

namespace guide {

/// The name of a channel's listing file in the caches folder: its digits and ".plist".
QString listingsFileFromChannelIdentificator(const ObjectId& channel);

} // namespace guide
