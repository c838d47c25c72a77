#pragma once

#include "parsers/markers/ZoneClock.h"

#include <QDate>

#include <optional>
#include <string_view>

namespace guide {

/// One to nine decimal digits and nothing else.
std::optional<int> decimalNumber(std::string_view text);

/// "yyyy-MM-dd", or with another separator.
std::optional<QDate> yearMonthDay(std::string_view text, char separator = '-');

/// "dd.MM.yyyy", day and month with one or two digits.
std::optional<QDate> dayMonthYear(std::string_view text);

/// "HH:mm:ss" from midnight.
std::optional<std::chrono::seconds> timeWithSeconds(std::string_view text);

} // namespace guide
