#include "text/display/Transliteration.h"

#include "GeneratedText.h"
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

TEST(TransliterationTest, OnePassEqualsOnePassPerKey) {
    const std::pair<QString, QString> keys[] = {
        {u"dzh"_s, u"џ"_s},     {u"Dzh"_s, u"Џ"_s},     {u"lj"_s, u"љ"_s},      {u"Lj"_s, u"Љ"_s},
        {u"nj"_s, u"њ"_s},      {u"Nj"_s, u"Њ"_s},      {u"dž"_s, u"џ"_s},      {u"Dž"_s, u"Џ"_s},
        {u"gj"_s, u"ѓ"_s},      {u"Gj"_s, u"Ѓ"_s},      {u"zh"_s, u"ж"_s},      {u"Zh"_s, u"Ж"_s},
        {u"kj"_s, u"ќ"_s},      {u"Kj"_s, u"Ќ"_s},      {u"ch"_s, u"ч"_s},      {u"Ch"_s, u"Ч"_s},
        {u"sh"_s, u"ш"_s},      {u"Sh"_s, u"Ш"_s},      {u"l\u0302"_s, u"љ"_s}, {u"L\u0302"_s, u"Љ"_s},
        {u"n\u0302"_s, u"њ"_s}, {u"N\u0302"_s, u"Њ"_s}, {u"d\u0302"_s, u"џ"_s}, {u"D\u0302"_s, u"Џ"_s},
        {u"ź"_s, u"з\u0301"_s}, {u"Ź"_s, u"З\u0301"_s}, {u"ś"_s, u"ć"_s},       {u"Ś"_s, u"Ć"_s}};
    const QString latin = u"bcčćdđefgǵhiǰkḱlmnpqrsštuvwxyzžẑBCČĆDĐEFGǴHIKLMNPQRSŠTUVWYZŽẐ"_s;
    const QString cyrillic = u"бцчћдђeфгѓхијкќлмнпкрсштуввкизжѕБЦЧЋДЂEФГЃХИКЛMНПКРСШТУВВИЗЖЅ"_s;
    GeneratedText generated({u"d"_s, u"D"_s, u"z"_s,   u"Z"_s,  u"h"_s,      u"l"_s,      u"L"_s, u"n"_s,
                             u"N"_s, u"j"_s, u"J"_s,   u"ž"_s,  u"g"_s,      u"k"_s,      u"c"_s, u"s"_s,
                             u"S"_s, u"ź"_s, u"Ś"_s,   u"X"_s,  u"\u0302"_s, u"\u030C"_s, u"ǰ"_s, u"ẑ"_s,
                             u"Ẑ"_s, u" "_s, u"dzh"_s, u"😀"_s, latin});
    for (int i = 0; i < 20'000; ++i) {
        const QString text = generated.text(8);
        QString written = text;
        for (const auto& [from, to] : keys) {
            written.replace(from, to);
        }
        for (QChar& unit : written) {
            if (const qsizetype at = latin.indexOf(unit); at >= 0) {
                unit = cyrillic[at];
            }
        }
        written.replace(u"J\u030C"_s, u"Ј"_s);
        ASSERT_EQ(latin2Cyrillic(text, u"mk"_s, Alphabet()), written) << text.toStdString();
    }
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
