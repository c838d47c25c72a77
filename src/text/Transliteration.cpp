#include "text/Transliteration.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

// Parallel: the character at a position of the first is written as the one at the same position of the
// second. The Latin "e", "E" and "M" in the second stay Latin.
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

/// In this order, each everywhere in the text before the next.
constexpr std::array kReplacements{
    Replacement{u"dzh", u"\u045F"},          Replacement{u"Dzh", u"\u040F"},
    Replacement{u"lj", u"\u0459"},           Replacement{u"Lj", u"\u0409"},
    Replacement{u"nj", u"\u045A"},           Replacement{u"Nj", u"\u040A"},
    Replacement{u"d\u017E", u"\u045F"},      Replacement{u"D\u017E", u"\u040F"},
    Replacement{u"gj", u"\u0453"},           Replacement{u"Gj", u"\u0403"},
    Replacement{u"zh", u"\u0436"},           Replacement{u"Zh", u"\u0416"},
    Replacement{u"kj", u"\u045C"},           Replacement{u"Kj", u"\u040C"},
    Replacement{u"ch", u"\u0447"},           Replacement{u"Ch", u"\u0427"},
    Replacement{u"sh", u"\u0448"},           Replacement{u"Sh", u"\u0428"},
    Replacement{u"l\u0302", u"\u0459"},      Replacement{u"L\u0302", u"\u0409"},
    Replacement{u"n\u0302", u"\u045A"},      Replacement{u"N\u0302", u"\u040A"},
    Replacement{u"d\u0302", u"\u045F"},      Replacement{u"D\u0302", u"\u040F"},
    Replacement{u"\u017A", u"\u0437\u0301"}, Replacement{u"\u0179", u"\u0417\u0301"},
    Replacement{u"\u015B", u"\u0107"},       Replacement{u"\u015A", u"\u0106"},
};

QString toQString(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

/// What each unit of the first pages becomes: the last Latin letter of the alphabet lies below U+1F00.
const std::array<char16_t, 0x1F00>& letters() {
    static const auto kLetters = [] {
        std::array<char16_t, 0x1F00> table{};
        for (std::size_t unit = 0; unit < table.size(); ++unit) {
            table[unit] = static_cast<char16_t>(unit);
        }
        for (std::size_t i = 0; i < kLatin.size(); ++i) {
            table[kLatin[i]] = kCyrillic[i];
        }
        return table;
    }();
    return kLetters;
}

QString transliterated(QString text) {
    for (const Replacement& replacement : kReplacements) {
        text.replace(toQString(replacement.from), toQString(replacement.to));
    }
    const auto& table = letters();
    for (QChar& unit : text) {
        if (unit.unicode() < table.size()) {
            unit = QChar(table[unit.unicode()]);
        }
    }
    return text.replace(u"J\u030C"_s, u"\u0408"_s);
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
