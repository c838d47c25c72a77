#pragma once

#include "parsers/xmltv/WantedChannels.h"

#include <QByteArray>

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace guide {

/// Replaces unwanted programmes.
inline constexpr std::string_view kEmptyProgramme = "<programme/>";

/// A feed from which parts were left out.
struct FilteredFeed {
    QByteArray feed;
    /// The parts of `feed` in order. Those that were kept refer to the whole feed.
    std::vector<std::string_view> parts;

    /// The offset in the whole feed of a byte of `feed`.
    std::size_t offsetInWhole(const QByteArray& whole, std::size_t offset) const;
};

/// Replaces every run of programmes of unwanted channels by one empty programme, which leaves a reader in the
/// same state: a national feed contains hundreds of channels, and a user wants a dozen.
///
/// All other bytes are unchanged. A well-formed feed gives the same lists as the whole feed; for any other
/// feed, each list of the whole feed is a prefix of the list that this gives. Reads up to the first zero
/// byte; `feed` must end in one.
///
/// Nothing when the whole feed has to be read: when there is nothing to leave out, when the rest would exceed
/// `mostBytes`, or when it is uncertain where a programme ends or which channel it belongs to.
std::optional<FilteredFeed>
withoutUnwantedProgrammes(const QByteArray& feed, const WantedChannels& wanted,
                          std::uint64_t mostBytes = std::numeric_limits<std::uint64_t>::max());

} // namespace guide
