#pragma once

#include "agent/RingSchedule.h"

#include <QLocale>
#include <QString>
#include <QTimeZone>

namespace guide {

/// What a notification says below the title of the show: when it is, on which channel, and how long that is
/// from now or ago.
QString ringText(const RingEvent& event, Moment now, const QLocale& locale, const QTimeZone& zone);

} // namespace guide
