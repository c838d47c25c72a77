#pragma once

#include "parsers/playlists/ChannelMatching.h"

#include <QByteArray>

#include <vector>

namespace guide {

/// The channels that a feed names, in its order, each id once, with all its names. Keeps what precedes the
/// first error. `document` is UTF-8 and owns its bytes; `feed` is the place that the channels get.
std::vector<FeedChannel> feedChannels(const QByteArray& document, int feed);

} // namespace guide
