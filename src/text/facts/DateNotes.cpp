#include "text/facts/DateNotes.h"

#include "text/search/FoldedText.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestNote = 60;
/// "01/01/26" and the longest with a full year.
constexpr qsizetype kShortestDate = 8;
constexpr qsizetype kLongestDate = 10;

/// Names of months or days in the languages of the guide, folded and without full stops.
QSet<QString> names(QString (QLocale::*name)(int, QLocale::FormatType) const, int count) {
    QSet<QString> set;
    for (const char* language : {"bg", "bs", "cs", "de", "el", "en", "es", "fr", "hr", "hu", "it", "lv",
                                 "mk", "nl", "pl", "pt", "ro", "ru", "sk", "sl", "sr", "tr", "uk"}) {
        const QLocale locale{QLatin1StringView(language)};
        for (int number = 1; number <= count; ++number) {
            for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
                set.insert(foldedText((locale.*name)(number, format)).remove(u'.'));
            }
        }
    }
    return set;
}

const QSet<QString>& months() {
    static const QSet<QString> kMonths =
        names(&QLocale::monthName, 12) | names(&QLocale::standaloneMonthName, 12);
    return kMonths;
}

const QSet<QString>& days() {
    static const QSet<QString> kDays = names(&QLocale::dayName, 7);
    return kDays;
}

/// What stands in front of a date.
bool isDateWord(const QString& word) {
    static const QSet<QString> kWords{
        u"puntata"_s, u"edizione"_s, u"del"_s, u"dell"_s, u"vom"_s,     u"sendung"_s, u"ze"_s,
        u"z"_s,       u"zo"_s,       u"dne"_s, u"dna"_s,  u"dnia"_s,    u"du"_s,      u"emission"_s,
        u"of"_s,      u"from"_s,     u"de"_s,  u"din"_s,  u"od"_s,      u"iz"_s,      u"της"_s,
        u"th"_s,      u"st"_s,       u"nd"_s,  u"rd"_s,   u"emisija"_s, u"episode"_s, u"diretta"_s};
    return kWords.contains(word);
}

bool isDigits(QStringView word, qsizetype most) {
    return !word.isEmpty() && word.size() <= most &&
           std::ranges::all_of(word, [](QChar unit) { return unit >= u'0' && unit <= u'9'; });
}

std::optional<int> yearOf(QStringView word) {
    return word.size() == 4 && isDigits(word, 4) ? std::optional(word.toInt()) : std::nullopt;
}

/// The year of "31/12/2025", "1.1.2026", "2026-01-01", "01/01/26".
std::optional<int> yearOfNumericDate(QStringView word) {
    if (word.size() < kShortestDate || word.size() > kLongestDate) {
        return std::nullopt;
    }
    for (const QChar sign : {u'/', u'.', u'-'}) {
        const QList<QStringView> parts = word.split(sign);
        if (parts.size() != 3) {
            continue;
        }
        const bool isShort = sign == u'/' && isDigits(parts[2], 2);
        const std::optional<int> first = yearOf(parts[0]);
        const std::optional<int> year = isShort ? std::optional(2000 + parts[2].toInt())
                                        : first ? first
                                                : yearOf(parts[2]);
        const QStringView day = first ? parts[2] : parts[0];
        const auto isDay = [](QStringView number) {
            return isDigits(number, 2) && number.toInt() >= 1 && number.toInt() <= 31;
        };
        return isDay(day) && isDay(parts[1]) ? year : std::nullopt;
    }
    return std::nullopt;
}

bool isNear(std::optional<int> year, int broadcastIn) {
    return year && std::abs(*year - broadcastIn) <= 1;
}

bool isTime(const QString& word) {
    static const QRegularExpression kTime(u"^\\d{1,2}(?:[:.]\\d{2})?(?:am|pm|h|hod|uhr)?$"_s);
    return kTime.match(word).hasMatch();
}

} // namespace

bool isDateNote(QStringView text, int broadcastIn) {
    if (text.size() < kShortestDate || text.size() > kLongestNote) {
        return false;
    }
    bool hasDay = false;
    bool hasMonth = false;
    std::optional<int> year;
    for (QStringView part : text.split(u' ', Qt::SkipEmptyParts)) {
        while (!part.isEmpty() && (part.back() == u',' || part.back() == u'.')) {
            part.chop(1);
        }
        const QString word = foldedText(part);
        if (const auto whole = yearOfNumericDate(word)) {
            hasDay = hasMonth = true;
            year = whole;
        } else if (const auto alone = yearOf(word)) {
            year = alone;
        } else if (isDigits(word, 2) && !hasDay) {
            hasDay = true;
        } else if (months().contains(word)) {
            hasMonth = true;
        } else if (!isDateWord(word) && !days().contains(word) && !isTime(word)) {
            return false;
        }
    }
    return hasDay && hasMonth && isNear(year, broadcastIn);
}

qsizetype dateAtEnd(QStringView text, int broadcastIn) {
    const qsizetype blank = text.lastIndexOf(u' ');
    return blank > 0 && isNear(yearOfNumericDate(text.sliced(blank + 1)), broadcastIn) ? blank + 1 : -1;
}

} // namespace guide
