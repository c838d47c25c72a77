#pragma once

#include "parsers/xmltv/WantedChannels.h"

#include <QByteArray>

#include <optional>

namespace guide {

/// The feed with every run of programmes of unwanted channels replaced by one empty programme, which leaves a
/// reader in the state that they would have left: a national feed holds hundreds of channels, and a user
/// wants a dozen.
///
/// All bytes outside programmes and all wanted programmes stand as they stood, so that the rest of the feed
/// is read as if nothing was left out: a well-formed feed gives equal lists, and of any other one each list
/// that the whole feed gives is the beginning of the list that this gives. Reads up to the first zero byte,
/// with which `feed` ends at the latest.
///
/// Nothing when the feed is to be read whole: when there is nothing to leave out, and wherever the bytes
/// leave a doubt of where a programme ends or whose it is.
std::optional<QByteArray> withoutUnwantedProgrammes(const QByteArray& feed, const WantedChannels& wanted);

} // namespace guide
