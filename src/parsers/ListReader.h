#pragma once

#include "parsers/MarkerWalk.h"
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

/// What a reader of a page format is given; all of it outlives the call.
struct ListReaderInput {
    /// Every item is of the same family and waits for the same pages.
    const std::vector<LoadItem>& items;
    /// UTF-8, in the order of the planned URLs; fewer than planned when some could not be fetched.
    const std::vector<QByteArray>& pages;
    /// The moment of parsing.
    Moment now;
    const Clock& clock;
    const Alphabet& alphabet;
    const SourceHostTable& hosts;
    /// The device's.
    QLocale locale;
    QTimeZone deviceZone;
    /// Told of what is looked for in vain.
    MarkerTrace& trace;
};

/// Adds the shows that the pages hold to the lists of the items' channels, in the order of reading. What it
/// cannot read it leaves out; what it has added before it gave up stays.
using ListReader = void (*)(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
