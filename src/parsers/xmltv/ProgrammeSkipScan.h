#pragma once

#include "parsers/xmltv/WantedChannels.h"

#include <QByteArray>

#include <optional>

namespace guide {

/// Replaces every run of programmes of unwanted channels by one empty programme, which leaves a reader in the
/// same state: a national feed contains hundreds of channels, and a user wants a dozen.
///
/// All other bytes are unchanged. A well-formed feed gives the same lists as the whole feed; for any other
/// feed, each list of the whole feed is a prefix of the list that this gives. Reads up to the first zero
/// byte; `feed` must end in one.
///
/// Nothing when the whole feed has to be read: when there is nothing to leave out, or when it is uncertain
/// where a programme ends or which channel it belongs to.
std::optional<QByteArray> withoutUnwantedProgrammes(const QByteArray& feed, const WantedChannels& wanted);

} // namespace guide
