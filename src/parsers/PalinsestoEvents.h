#pragma once

#include "parsers/XMLSaxParser.h"
#include "parsers/ZoneClock.h"
#include "store/ShowItem.h"
#include "text/Alphabet.h"

#include <QByteArray>
#include <QLocale>

#include <optional>
#include <vector>

namespace guide {

/// The rows of a Palinsesto document in its order, with the bare days and channels among them, which have no
/// title; nothing when it is not well-formed. The entries have no channel.
std::optional<std::vector<ExtendedTVEntry>> palinsestoRows(const QByteArray& document,
                                                           const Alphabet& alphabet, const QLocale& locale);

} // namespace guide
