#pragma once

#include <QLoggingCategory>

namespace guide {

/// What the readers have to say; details of single shows only when debugging is asked for.
Q_DECLARE_LOGGING_CATEGORY(parsersLog)

} // namespace guide
