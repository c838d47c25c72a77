#pragma once

#include "demo/DemoChannel.h"
#include "demo/Programme.h"

#include <QDate>

#include <vector>

namespace guide {

/// The channel's programmes of so many days from the first one on, each from six in the morning to six in the
/// channel's zone: without gaps or overlaps, in order. A day is the same whenever and however it is asked
/// for.
std::vector<Programme> schedule(const DemoChannel& channel, const QDate& firstDay, int days);

/// The day, from six to six, to which the moment belongs in the zone.
QDate broadcastDay(Moment now, const QByteArray& zone);

} // namespace guide
