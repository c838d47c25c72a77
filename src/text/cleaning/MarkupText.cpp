#include "text/cleaning/MarkupText.h"

#include <algorithm>
#include <cstdint>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSectionStart = "<![CDATA["_L1;
constexpr auto kSectionEnd = "]]>"_L1;
constexpr qsizetype kMostUnits = 10'000;

/// A range in which references are not decoded.
struct ProtectedSpan {
    std::uint64_t start = 0;
    std::uint64_t end = 0;

    bool covers(qsizetype position) const {
        return static_cast<std::uint64_t>(position) >= start && static_cast<std::uint64_t>(position) < end;
    }
};

/// Removes the wrapper of the first CDATA section. The end of the span is not the position of the closing
/// marker: it is its start plus the number of units after the marker, less three, as an unsigned number.
ProtectedSpan unwrapSection(QString& text) {
    const qsizetype start = text.indexOf(kSectionStart);
    if (start < 0) {
        return {};
    }
    text.remove(start, kSectionStart.size());
    const qsizetype from = start + kSectionStart.size();
    const qsizetype closing = from <= text.size() ? text.indexOf(kSectionEnd, from) : -1;
    const auto first = static_cast<std::uint64_t>(start);
    if (closing < 0) {
        return {first, static_cast<std::uint64_t>(text.size())};
    }
    text.remove(closing, kSectionEnd.size());
    return {first, first + static_cast<std::uint64_t>(text.size()) - static_cast<std::uint64_t>(closing + 3)};
}

/// Searches the text for the key and replaces it outside the protected range. `replacement(rest, unit)`
/// receives the rest of the text, which begins with the key, sets `unit`, and returns how many units it
/// replaces, or 0 to end the pass. The search continues at the replacement.
template <class Replacement>
void decode(QString& text, QLatin1StringView key, const ProtectedSpan& span, Replacement&& replacement) {
    if (!text.contains(key)) {
        return;
    }
    // One buffer holds the finished text before `written` and the remaining text from `read` on.
    QChar* const units = text.data();
    const qsizetype size = text.size();
    qsizetype written = 0;
    qsizetype read = 0;
    while (read < size) {
        const QStringView rest(units + read, size - read);
        if (rest.startsWith(key) && !span.covers(written)) {
            QChar unit;
            const qsizetype taken = replacement(rest, unit);
            if (taken == 0) {
                break;
            }
            read += taken - 1;
            units[read] = unit;
            // A unit that cannot begin the key is finished.
            if (unit != key[0]) {
                units[written++] = units[read++];
            }
            continue;
        }
        units[written++] = units[read++];
    }
    while (read < size) {
        units[written++] = units[read++];
    }
    text.truncate(written);
}

int digitValue(QChar unit, int base) {
    const char16_t code = unit.unicode();
    const int value = code >= u'0' && code <= u'9'   ? code - u'0'
                      : code >= u'a' && code <= u'f' ? code - u'a' + 10
                      : code >= u'A' && code <= u'F' ? code - u'A' + 10
                                                     : base;
    return value < base ? value : -1;
}

/// The low 16 bits of the number at the start of the text; 0 if there is none.
char16_t codeUnit(QStringView text, int base) {
    std::uint32_t number = 0;
    for (const QChar unit : text) {
        const int digit = digitValue(unit, base);
        if (digit < 0) {
            break;
        }
        number = (number * static_cast<std::uint32_t>(base) + static_cast<std::uint32_t>(digit)) & 0xFFFF;
    }
    return static_cast<char16_t>(number);
}

/// Decodes a numeric reference whose digits begin after the given number of units. It is replaced up to its
/// ";", which stays.
auto numericReference(qsizetype digitsAt, int base) {
    return [digitsAt, base](QStringView rest, QChar& unit) -> qsizetype {
        const qsizetype end = rest.indexOf(u';');
        if (end < 0) {
            return 0;
        }
        unit = QChar(codeUnit(rest.sliced(std::min(digitsAt, end), end - std::min(digitsAt, end)), base));
        return end;
    };
}

bool isPunctuation(QChar unit) {
    const char16_t code = unit.unicode();
    if (code < 0x80) {
        return code > 0x20 && code < 0x7f && !unit.isLetterOrNumber();
    }
    return unit.isPunct();
}

} // namespace

QString decodeMarkup(const QString& text) {
    QString decoded = text;
    const ProtectedSpan span = unwrapSection(decoded);
    if (!decoded.contains(u'&')) {
        decoded.truncate(kMostUnits);
        return decoded;
    }
    struct Named {
        QLatin1StringView key;
        char16_t unit;
    };
    for (const Named& named : {Named{"&amp;"_L1, u'&'}, Named{"&lt;"_L1, u'<'}, Named{"&gt;"_L1, u'>'},
                               Named{"&apos;"_L1, u'\''}, Named{"&quot"_L1, u'"'}}) {
        decode(decoded, named.key, span, [&](QStringView, QChar& unit) {
            unit = QChar(named.unit);
            return named.key.size();
        });
    }
    decode(decoded, "&#x"_L1, span, numericReference(3, 16));
    decode(decoded, "&#"_L1, span, numericReference(3, 10));
    decoded.truncate(kMostUnits);
    return decoded;
}

std::optional<QString> trimmedListingText(const QString& text) {
    QStringView view(text);
    const auto* const begin = std::find_if_not(
        view.begin(), view.end(), [](QChar unit) { return unit.isSpace() || isPunctuation(unit); });
    view = view.sliced(begin - view.begin());
    while (!view.isEmpty() && view.back().isSpace()) {
        view.chop(1);
    }
    if (view.isEmpty()) {
        return std::nullopt;
    }
    return view.toString().replace("  "_L1, " "_L1);
}

} // namespace guide
