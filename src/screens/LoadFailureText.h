#pragma once

#include "core/LoadFailure.h"

#include <QString>

namespace guide {

/// One line on why a load stored nothing: "No answer from feeds.example".
QString loadFailureText(const LoadFailure& failure);

} // namespace guide
