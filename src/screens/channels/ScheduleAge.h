#pragma once

#include "platform/Moment.h"

#include <QString>

namespace guide {

/// How long ago a schedule was loaded: "updated 5 min ago".
QString scheduleAgeText(Moment loaded, Moment now);

} // namespace guide
