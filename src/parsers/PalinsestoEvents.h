#pragma once

#include "parsers/XMLSaxParser.h"
#include "parsers/ZoneClock.h"
#include "store/ShowItem.h"
#include "text/Alphabet.h"

#include <QByteArray>
#include <QLocale>

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace guide {

/// The codes of channels, in UTF-8.
using PalinsestoCodes = std::set<std::string, std::less<>>;

/// The rows of a Palinsesto document in its order, with the bare days and channels among them, which have no
/// title; nothing when it is not well-formed. Rows that carry all as attributes are left out unless their
/// channel is wanted. The entries have no channel.
std::optional<std::vector<ExtendedTVEntry>> palinsestoRows(const QByteArray& document,
                                                           const PalinsestoCodes& wanted,
                                                           const Alphabet& alphabet, const QLocale& locale);

} // namespace guide
