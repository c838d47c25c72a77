#pragma once

#include "screens/ShowMarks.h"
#include "screens/ShowRowText.h"
#include "screens/kit/Table.h"
#include "screens/shell/ScreenEnvironment.h"
#include "store/ShowItem.h"

#include <QDateTime>

#include <optional>

namespace guide {

/// The part of the show that is over at the moment: below 0 before it, above 1 behind it, nothing for a show
/// without a span.
std::optional<double> showProgress(const TVEntry& entry, Moment now);

/// The row of a show, less its picture and what stands at its edge. `running` is the screen's own judgement;
/// it brings the bar of how far the show is.
Row showRow(const ScreenEnvironment& environment, const ShowMarks& marks, const ShowRowText& text,
            const ShowItem& show, bool running, Moment now);

/// The moment as the device's zone has it.
QDateTime localTime(const Device& device, Moment moment);

/// The channel's live stream; nothing for a channel without one.
std::optional<QUrl> streamURLOf(const CatalogueSnapshot& channels, const ObjectId& channel);

} // namespace guide
