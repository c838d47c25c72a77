#include "text/facts/EpisodeWords.h"

#include "text/search/FoldedText.h"

#include <QHash>
#include <QString>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace guide {

namespace {

struct LabelWords {
    EpisodeLabel label;
    QStringView words;
};

constexpr std::array kLabels{
    LabelWords{EpisodeLabel::Season,
               u"s|season|staffel|saison|stagione|stag|sezon|sezona|sezone|sezonul|sez|evad|"
               u"temporada|t|seizoen|κυκλοσ|σεζον|сезон|сезона|сез"},
    LabelWords{EpisodeLabel::WeakSeason, u"serie|series|seria|rada"},
    LabelWords{EpisodeLabel::Episode,
               u"e|ep|eps|epis|episode|episodio|episodul|episod|puntata|folge|epizoda|epizode|"
               u"epizod|epiz|nastavak|nast|dil|diel|resz|odcinek|odc|bolum|capitulo|cap|"
               u"aflevering|afl|avsnitt|επεισοδιο|επεισοδια|επ|епизода|епизод|еп|серия"},
    LabelWords{EpisodeLabel::Part,
               u"part|pt|parte|partie|partea|teil|dio|deo|del|deel|cast|cz|czesc|kisim|μεροσ|дио|"
               u"део|дел|част"},
    LabelWords{EpisodeLabel::Of, u"of|von|di|de|z|zo|ze|od|sur|από|от|од"},
    LabelWords{EpisodeLabel::Ordinal, u"st|nd|rd|th|er|re|eme|a|o|os|oσ|ª|º|ο|οσ|η"},
};

/// Feeds write Greek and Cyrillic letters that look like Roman digits as well.
char latinLookAlike(QChar letter) {
    switch (letter.unicode()) {
    case u'Ι':
    case u'І':
        return 'I';
    case u'Χ':
    case u'Х':
        return 'X';
    default:
        return letter.unicode() < 0x80 ? static_cast<char>(letter.unicode()) : '\0';
    }
}

} // namespace

EpisodeLabel episodeLabel(QStringView word) {
    const QString folded = foldedText(word);
    static const QHash<QString, EpisodeLabel> kByWord = [] {
        QHash<QString, EpisodeLabel> labels;
        for (const LabelWords& each : kLabels) {
            for (const QStringView known : each.words.split(u'|')) {
                labels.insert(foldedText(known), each.label);
            }
        }
        return labels;
    }();
    const EpisodeLabel label = kByWord.value(folded, EpisodeLabel::None);
    if (label != EpisodeLabel::None ||
        !std::ranges::any_of(folded, [](QChar unit) { return unit.script() == QChar::Script_Greek; })) {
        return label;
    }
    // Feeds mix Greek letters with Latin ones that look alike.
    QString greek = folded;
    for (QChar& unit : greek) {
        constexpr std::u16string_view kLatin = u"aeiopu";
        constexpr std::u16string_view kGreek = u"αειορυ";
        const std::size_t place = kLatin.find(unit.unicode());
        unit = place == kLatin.npos ? unit : QChar(kGreek[place]);
    }
    return kByWord.value(greek, EpisodeLabel::None);
}

std::optional<int> romanNumber(QStringView text) {
    std::string roman;
    for (const QChar letter : text) {
        roman.push_back(latinLookAlike(letter));
    }
    if (roman.empty() || roman.size() > 8 || roman.find_first_not_of("IVXL") != std::string::npos) {
        return std::nullopt;
    }
    static constexpr std::array kTens{"", "X", "XX", "XXX", "XL", "L", "LX", "LXX", "LXXX"};
    static constexpr std::array kOnes{"", "I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX"};
    for (std::size_t tens = 0; tens < kTens.size(); ++tens) {
        for (std::size_t ones = 0; ones < kOnes.size(); ++ones) {
            if (roman == std::string(kTens[tens]) + kOnes[ones]) {
                return static_cast<int>(tens * 10 + ones);
            }
        }
    }
    return std::nullopt;
}

std::optional<int> greekNumber(QStringView text) {
    static constexpr std::u16string_view kDigits = u"ΑΒΓΔΕ?ΖΗΘ";
    if (text == u"ΣΤ") {
        return 6;
    }
    if (text == u"Ι") {
        return 10;
    }
    const QChar latin = text == u"A" ? u'Α' : text == u"B" ? u'Β' : text.isEmpty() ? u'?' : text.front();
    const std::size_t digit = text.size() == 1 ? kDigits.find(latin.unicode()) : kDigits.npos;
    return digit == kDigits.npos || kDigits[digit] == u'?' ? std::nullopt
                                                           : std::optional(static_cast<int>(digit) + 1);
}

} // namespace guide
