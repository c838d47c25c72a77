#pragma once

#include "parsers/ReadControl.h"
#include "parsers/markers/MarkerWalk.h"
#include "platform/Clock.h"
#include "platform/Moment.h"
#include "sources/SourceHostTable.h"
#include "store/ShowItem.h"
#include "text/display/Alphabet.h"

#include <QByteArray>
#include <QLocale>
#include <QTimeZone>

#include <vector>

namespace guide {

/// The input of a reader; everything referred to must outlive the call.
struct ListReaderInput {
    /// All items have the same URLs.
    const std::vector<LoadItem>& items;
    /// UTF-8, in the order of the planned URLs; fewer than planned when some could not be fetched.
    const std::vector<QByteArray>& pages;
    /// The moment of parsing.
    Moment now;
    const Clock& clock;
    const Alphabet& alphabet;
    const SourceHostTable& hosts;
    /// The device's locale and zone.
    QLocale locale;
    QTimeZone deviceZone;
    /// Records markers that were not found.
    MarkerTrace& trace;
    /// Limits the reading and records how complete it was.
    ReadControl& control;
};

/// Adds the shows of the pages to the lists of the items' channels, in the order of reading. Skips what it
/// cannot read, and keeps what it has added when it stops early.
using ListReader = void (*)(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
