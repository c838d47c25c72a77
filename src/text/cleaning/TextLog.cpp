#include "text/cleaning/TextLog.h"

namespace guide {

Q_LOGGING_CATEGORY(textLog, "guide.text", QtInfoMsg)

} // namespace guide
