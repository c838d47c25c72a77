#pragma once

#include <QByteArrayView>
#include <QString>

#include <array>
#include <optional>

namespace guide {

/// The colour of calendars that the guide creates.
inline constexpr QByteArrayView kNewCalendarColor("#3584e4");

/// Red, green, blue and alpha of "#RGB", "#RRGGBB" or "#RRGGBBAA".
inline std::optional<std::array<double, 4>> calendarColor(const QString& text) {
    QByteArray digits = text.trimmed().toLatin1();
    if (!digits.startsWith('#')) {
        return std::nullopt;
    }
    digits.remove(0, 1);
    if (digits.size() == 3) {
        digits = QByteArray(2, digits[0]) + QByteArray(2, digits[1]) + QByteArray(2, digits[2]);
    }
    if (digits.size() == 6) {
        digits += "ff";
    }
    bool isNumber = false;
    const quint32 value = digits.toUInt(&isNumber, 16);
    if (digits.size() != 8 || !isNumber) {
        return std::nullopt;
    }
    const auto part = [value](int shift) { return double((value >> shift) & 0xFF) / 255; };
    return std::array{part(24), part(16), part(8), part(0)};
}

} // namespace guide
