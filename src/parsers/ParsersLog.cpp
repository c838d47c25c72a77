#include "parsers/ParsersLog.h"

namespace guide {

Q_LOGGING_CATEGORY(parsersLog, "guide.parsers", QtInfoMsg)

} // namespace guide
