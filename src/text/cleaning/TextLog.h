#pragma once

#include <QLoggingCategory>

namespace guide {

/// "guide.text": logs how texts were split. Off by default.
Q_DECLARE_LOGGING_CATEGORY(textLog)

} // namespace guide
