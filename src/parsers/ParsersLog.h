#pragma once

#include <QLoggingCategory>

namespace guide {

/// The log of the readers; details of single shows are debug messages.
Q_DECLARE_LOGGING_CATEGORY(parsersLog)

} // namespace guide
