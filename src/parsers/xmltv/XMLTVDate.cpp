#include "parsers/xmltv/XMLTVDate.h"

namespace guide {

namespace {

constexpr int kNoNumber = -1;

/// The value of `count` ASCII digits, or kNoNumber.
int digits(std::string_view text, std::size_t from, std::size_t count) {
    if (text.size() < from + count) {
        return kNoNumber;
    }
    int number = 0;
    for (const char digit : text.substr(from, count)) {
        if (digit < '0' || digit > '9') {
            return kNoNumber;
        }
        number = number * 10 + (digit - '0');
    }
    return number;
}

bool within(int number, int most) {
    return number >= 0 && number <= most;
}

std::optional<std::chrono::minutes> offsetFromUTC(std::string_view text) {
    if (text == "Z" || text == "z") {
        return std::chrono::minutes{0};
    }
    if (text.empty() || (text[0] != '+' && text[0] != '-')) {
        return std::nullopt;
    }
    const int hours = digits(text, 1, 2);
    int minutes = 0;
    if (text.size() == 5) {
        minutes = digits(text, 3, 2);
    } else if (text.size() == 6 && text[3] == ':') {
        minutes = digits(text, 4, 2);
    } else if (text.size() != 3) {
        return std::nullopt;
    }
    if (!within(hours, 23) || !within(minutes, 59)) {
        return std::nullopt;
    }
    const std::chrono::minutes offset = std::chrono::hours{hours} + std::chrono::minutes{minutes};
    return text[0] == '-' ? -offset : offset;
}

} // namespace

std::optional<Moment> parseXMLTVDate(std::string_view text, ZoneClock* withoutOffset) {
    using namespace std::chrono;
    constexpr std::size_t kDigits = 14;
    const bool hasOffset = text.size() > kDigits;
    if (!hasOffset && (text.size() < kDigits || !withoutOffset)) {
        return std::nullopt;
    }
    const int yearNumber = digits(text, 0, 4);
    const int monthNumber = digits(text, 4, 2);
    const int dayNumber = digits(text, 6, 2);
    const int hour = digits(text, 8, 2);
    const int minute = digits(text, 10, 2);
    const int second = digits(text, 12, 2);
    if (yearNumber < 1 || monthNumber < 1 || dayNumber < 1 || !within(hour, 23) || !within(minute, 59) ||
        !within(second, 59)) {
        return std::nullopt;
    }
    const year_month_day date{year{yearNumber}, month{static_cast<unsigned>(monthNumber)},
                              day{static_cast<unsigned>(dayNumber)}};
    if (!date.ok()) {
        return std::nullopt;
    }
    const seconds time = hours{hour} + minutes{minute} + seconds{second};
    if (!hasOffset) {
        return withoutOffset->momentAt(QDate(yearNumber, monthNumber, dayNumber), time);
    }
    const auto offset = offsetFromUTC(text.substr(text[kDigits] == ' ' ? kDigits + 1 : kDigits));
    return offset ? std::optional<Moment>(sys_days{date} + time - *offset) : std::nullopt;
}

} // namespace guide
