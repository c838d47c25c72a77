#include "text/display/Transliteration.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

// Parallel strings: each character of the first maps to the one at the same position of the second. The Latin
// "e", "E" and "M" in the second stay Latin.
constexpr std::u16string_view kLatin =
    u"bcčćdđefg\u01F5hi\u01F0k\u1E31lmnpqrsštuvwxyzž\u1E91BCČĆDĐEFG\u01F4HIKLMNPQRSŠTUVWYZŽ\u1E90";
constexpr std::u16string_view kCyrillic =
    u"бцчћдђ\u0065фг\u0453хи\u0458к\u045Cлмнпкрсштув\u0432\u043A\u0438зж\u0455"
    u"БЦЧЋДЂ\u0045ФГ\u0403ХИКЛ\u004DНПКРСШТУВ\u0412\u0418ЗЖ\u0405";
static_assert(kLatin.size() == 61 && kCyrillic.size() == 61);

struct Replacement {
    std::u16string_view from;
    std::u16string_view to;
};

/// Replaced before single letters. No key begins inside another one except "zh" in "dzh", so one pass over
/// the text equals one pass per key. Keys with the same first unit are adjacent.
constexpr std::array kReplacements{
    Replacement{u"dzh", u"\u045F"},
    Replacement{u"d\u017E", u"\u045F"},
    Replacement{u"d\u0302", u"\u045F"},
    Replacement{u"Dzh", u"\u040F"},
    Replacement{u"D\u017E", u"\u040F"},
    Replacement{u"D\u0302", u"\u040F"},
    Replacement{u"lj", u"\u0459"},
    Replacement{u"l\u0302", u"\u0459"},
    Replacement{u"Lj", u"\u0409"},
    Replacement{u"L\u0302", u"\u0409"},
    Replacement{u"nj", u"\u045A"},
    Replacement{u"n\u0302", u"\u045A"},
    Replacement{u"Nj", u"\u040A"},
    Replacement{u"N\u0302", u"\u040A"},
    Replacement{u"gj", u"\u0453"},
    Replacement{u"Gj", u"\u0403"},
    Replacement{u"zh", u"\u0436"},
    Replacement{u"Zh", u"\u0416"},
    Replacement{u"kj", u"\u045C"},
    Replacement{u"Kj", u"\u040C"},
    Replacement{u"ch", u"\u0447"},
    Replacement{u"Ch", u"\u0427"},
    Replacement{u"sh", u"\u0448"},
    Replacement{u"Sh", u"\u0428"},
    Replacement{u"\u017A", u"\u0437\u0301"},
    Replacement{u"\u0179", u"\u0417\u0301"},
    // The same letters as for "ć" and "Ć".
    Replacement{u"\u015B", u"\u045B"},
    Replacement{u"\u015A", u"\u040B"},
    // Replaced last, but nothing before it affects it.
    Replacement{u"J\u030C", u"\u0408"},
};

/// The replacement of each unit and the keys that begin with it. Characters from U+1F00 on are unchanged: all
/// Latin letters of the alphabet are below it.
struct UnitTable {
    static constexpr std::size_t kUnits = 0x1F00;

    UnitTable() {
        for (std::size_t unit = 0; unit < kUnits; ++unit) {
            letters[unit] = static_cast<char16_t>(unit);
        }
        for (std::size_t i = 0; i < kLatin.size(); ++i) {
            letters[kLatin[i]] = kCyrillic[i];
        }
        for (std::size_t i = kReplacements.size(); i-- > 0;) {
            firstKeys[kReplacements[i].from.front()] = static_cast<std::uint8_t>(i + 1);
        }
    }

    std::array<char16_t, kUnits> letters;
    /// One more than the index of the first key that begins with the unit, or 0.
    std::array<std::uint8_t, kUnits> firstKeys{};
};

/// The first key that the rest of the text begins with, starting from an index among the keys with its first
/// unit.
const Replacement* replacementAt(std::u16string_view rest, std::size_t firstKey) {
    for (std::size_t i = firstKey; i < kReplacements.size(); ++i) {
        if (kReplacements[i].from.front() != rest.front()) {
            break;
        }
        if (rest.starts_with(kReplacements[i].from)) {
            return &kReplacements[i];
        }
    }
    return nullptr;
}

QString transliterated(const QString& text) {
    static const UnitTable kTable;
    const std::u16string_view view(QStringView(text).utf16(), static_cast<std::size_t>(text.size()));
    // A unit becomes at most two.
    QString result(text.size() * 2, Qt::Uninitialized);
    QChar* to = result.data();
    for (std::size_t i = 0; i < view.size();) {
        const char16_t unit = view[i];
        const std::size_t firstKey = unit < UnitTable::kUnits ? kTable.firstKeys[unit] : 0;
        const Replacement* const replacement =
            firstKey == 0 ? nullptr : replacementAt(view.substr(i), firstKey - 1);
        if (replacement != nullptr) {
            to = std::copy(replacement->to.begin(), replacement->to.end(), to);
            i += replacement->from.size();
        } else {
            *to++ = QChar(unit < UnitTable::kUnits ? kTable.letters[unit] : unit);
            ++i;
        }
    }
    result.truncate(to - result.constData());
    return result;
}

bool isWrittenInCyrillic(const QString& language, const Alphabet& alphabet) {
    if (language.contains("mk"_L1)) {
        return true;
    }
    constexpr std::array kWhereTheDeviceIs{"sr"_L1, "bs"_L1, "me"_L1, "ru"_L1};
    return alphabet.useCyrillic() && std::ranges::any_of(kWhereTheDeviceIs, [&](QLatin1StringView code) {
               return language.contains(code);
           });
}

} // namespace

void Alphabet::detectAlphabet(const QString& fullDateText) {
    if (useCyrillic()) {
        return;
    }
    const bool found = std::any_of(fullDateText.begin(), fullDateText.end(), [](QChar unit) {
        return kCyrillic.find(unit.unicode()) != kCyrillic.npos && kLatin.find(unit.unicode()) == kLatin.npos;
    });
    if (found) {
        m_useCyrillic.store(true, std::memory_order_relaxed);
    }
}

QString latin2Cyrillic(const QString& text, const QString& language, const Alphabet& alphabet) {
    return isWrittenInCyrillic(language, alphabet) ? transliterated(text) : text;
}

std::optional<QString> latin2Cyrillic(const std::optional<QString>& text, const QString& language,
                                      const Alphabet& alphabet) {
    return text ? std::optional(latin2Cyrillic(*text, language, alphabet)) : std::nullopt;
}

} // namespace guide
