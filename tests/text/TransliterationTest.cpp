#include "text/display/Transliteration.h"

#include "text/display/ShortTimeFormat.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(TransliterationTest, WritesMacedonianInCyrillic) {
    const std::pair<QString, QString> rows[] = {
        {u"Vesti"_s, u"В\u0065сти"_s},
        {u"Ljubav"_s, u"Љубaв"_s},
        {u"LJUBAV"_s, u"Л\u004AУБ\u0041В"_s},
        {u"Njujork"_s, u"Њу\u006A\u006Fрк"_s},
        {u"Zhivko"_s, u"Живк\u006F"_s},
        {u"dzhez Dzhez"_s, u"џ\u0065з Џ\u0065з"_s},
        {u"dz dž"_s, u"дз џ"_s},
        {u"Ś ś"_s, u"Ћ ћ"_s},
        {u"ź"_s, u"з\u0301"_s},
        {u"n\u0302 J\u030C ǰ"_s, u"њ Ј ј"_s},
        {u"c\u030C"_s, u"ц\u030C"_s},
        {u"Xx Mm"_s, u"Xк \u004Dм"_s},
        {u"č 12, …😀"_s, u"ч 12, …😀"_s},
        {u"bcčćdđefgǵhiǰkḱlmnpqrsštuvwxyzžẑ"_s, u"бцчћдђeфгѓхијкќлмнпкрсштуввкизжѕ"_s},
        {u"BCČĆDĐEFGǴHIKLMNPQRSŠTUVWYZŽẐ"_s, u"БЦЧЋДЂEФГЃХИКЛMНПКРСШТУВВИЗЖЅ"_s},
        {u"dzh Dzh lj Lj nj Nj dž Dž gj Gj zh Zh kj Kj"_s, u"џ Џ љ Љ њ Њ џ Џ ѓ Ѓ ж Ж ќ Ќ"_s},
        {u"ch Ch sh Sh l\u0302 L\u0302 n\u0302 N\u0302 d\u0302 D\u0302"_s, u"ч Ч ш Ш љ Љ њ Њ џ Џ"_s},
        {u"ź Ź ś Ś"_s, u"з\u0301 З\u0301 ћ Ћ"_s},
        // Keys that begin within others.
        {u"ddzhz lnj sch d\u0302zh kdžj nljj"_s, u"дџз лњ сч џж кџj нљj"_s},
        {u""_s, u""_s},
    };
    for (const auto& [text, written] : rows) {
        EXPECT_EQ(latin2Cyrillic(text, u"mk"_s, Alphabet()), written) << text.toStdString();
    }
}

TEST(TransliterationTest, DependsOnLanguageAndDevice) {
    Alphabet alphabet;
    for (const QString& language : {u"sr"_s, u"bs"_s, u"me"_s, u"ru"_s, u"en"_s, u""_s}) {
        EXPECT_EQ(latin2Cyrillic(u"b"_s, language, alphabet), u"b"_s) << language.toStdString();
    }
    EXPECT_EQ(latin2Cyrillic(u"b"_s, u"x-mk-x"_s, alphabet), u"б"_s);
    alphabet.detectAlphabet(u"nedelja, 21. novembar 2026."_s);
    EXPECT_FALSE(alphabet.useCyrillic());
    alphabet.detectAlphabet(u"Κυριακή, 日曜日, ї"_s);
    EXPECT_FALSE(alphabet.useCyrillic()) << "letters of other alphabets do not count";
    alphabet.detectAlphabet(u"субота"_s);
    alphabet.detectAlphabet(u"Saturday"_s);
    EXPECT_TRUE(alphabet.useCyrillic()) << "once true, it stays true";
    for (const QString& language : {u"sr"_s, u"bs-BA"_s, u"me"_s, u"ru"_s}) {
        EXPECT_EQ(latin2Cyrillic(u"b"_s, language, alphabet), u"б"_s) << language.toStdString();
    }
    EXPECT_EQ(latin2Cyrillic(u"b"_s, u"en"_s, alphabet), u"b"_s);
    EXPECT_EQ(latin2Cyrillic(std::nullopt, u"mk"_s, alphabet), std::nullopt);
}

TEST(ShortTimeFormatTest, WritesHoursWithTwoDigits) {
    const std::pair<QString, QString> rows[] = {
        {u"H:mm"_s, u"HH:mm"_s},        {u"HH:mm"_s, u"HH:mm"_s},
        {u"h:mm a"_s, u"hh:mma"_s},     {u"h:mm\u202Fa"_s, u"hh:mma"_s},
        {u"hh:mm a"_s, u"hh:mma"_s},    {u"H.mm"_s, u"HH.mm"_s},
        {u"H 'h' mm"_s, u"HH'h' mm"_s}, {u"H:m"_s, u"H:m"_s},
        {u"a h:mm"_s, u"ah:mm"_s},      {u""_s, u""_s},
    };
    for (const auto& [format, wanted] : rows) {
        EXPECT_EQ(rowTimeFormat(format), wanted) << format.toStdString();
    }
}

} // namespace
} // namespace guide
