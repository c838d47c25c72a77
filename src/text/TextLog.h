#pragma once

#include <QLoggingCategory>

namespace guide {

/// "guide.text": how texts were taken apart. Silent unless it is asked for.
Q_DECLARE_LOGGING_CATEGORY(textLog)

} // namespace guide
