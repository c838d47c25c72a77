#include "parsers/markers/DateText.h"

namespace guide {

namespace {

constexpr std::size_t kMostDigits = 9;

std::optional<QDate> validDate(std::optional<int> year, std::optional<int> month, std::optional<int> day) {
    if (!year || !month || !day || !QDate::isValid(*year, *month, *day)) {
        return std::nullopt;
    }
    return QDate(*year, *month, *day);
}

} // namespace

std::optional<int> decimalNumber(std::string_view text) {
    if (text.empty() || text.size() > kMostDigits) {
        return std::nullopt;
    }
    int number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') {
            return std::nullopt;
        }
        number = number * 10 + (digit - '0');
    }
    return number;
}

std::optional<QDate> yearMonthDay(std::string_view text, char separator) {
    if (text.size() != 10 || text[4] != separator || text[7] != separator) {
        return std::nullopt;
    }
    return validDate(decimalNumber(text.substr(0, 4)), decimalNumber(text.substr(5, 2)),
                     decimalNumber(text.substr(8, 2)));
}

std::optional<QDate> dayMonthYear(std::string_view text) {
    const std::size_t first = text.find('.');
    const std::size_t second = first == std::string_view::npos ? first : text.find('.', first + 1);
    if (second == std::string_view::npos || first > 2 || second - first > 3 || text.size() != second + 5) {
        return std::nullopt;
    }
    return validDate(decimalNumber(text.substr(second + 1)),
                     decimalNumber(text.substr(first + 1, second - first - 1)),
                     decimalNumber(text.substr(0, first)));
}

std::optional<std::chrono::seconds> timeWithSeconds(std::string_view text) {
    if (text.size() < 6 || text[text.size() - 3] != ':') {
        return std::nullopt;
    }
    const auto minutes = timeOfDay(text.substr(0, text.size() - 3));
    const auto seconds = decimalNumber(text.substr(text.size() - 2));
    if (!minutes || !seconds || *seconds > 59) {
        return std::nullopt;
    }
    return *minutes + std::chrono::seconds(*seconds);
}

} // namespace guide
