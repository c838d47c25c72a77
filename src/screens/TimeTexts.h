#pragma once

#include <QDate>
#include <QString>

#include <chrono>

namespace guide {

/// "45 min", "2 h", "1 h 30 min".
QString durationText(std::chrono::minutes duration);

/// "Yesterday", "Today" or "Tomorrow"; empty for any other day.
QString nearDayText(const QDate& day, const QDate& today);

} // namespace guide
