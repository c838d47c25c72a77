#include "text/MatchWord.h"

#include "GeneratedText.h"
#include "NaiveClassifier.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(MatchWordTest, LooksAtBothNeighboursOfTheFirstOccurrence) {
    const struct {
        const char* name;
        QString text;
        QString word;
        bool matches;
    } rows[] = {
        {"alone", u"film"_s, u"film"_s, true},
        {"a full stop behind", u"film."_s, u"film"_s, true},
        {"a sign beyond ASCII behind", u"film…"_s, u"film"_s, false},
        {"a no-break space behind", u"film\u00A0x"_s, u"film"_s, false},
        {"a letter behind", u"filmovi"_s, u"film"_s, false},
        {"a digit behind", u"film2"_s, u"film"_s, true},
        {"a digit before", u"2film"_s, u"film"_s, true},
        {"a letter before", u"telefilm"_s, u"film"_s, false},
        {"a letter beyond ASCII before", u"đfilm"_s, u"film"_s, false},
        {"a sign beyond ASCII before", u"…film"_s, u"film"_s, true},
        {"a letter beyond the basic plane before", u"𐐀film"_s, u"film"_s, false},
        {"an emoji before", u"😀film"_s, u"film"_s, true},
        {"a second occurrence does not help", u"filmovi, film"_s, u"film"_s, false},
        {"case and diacritics", u"SERIJÁL"_s, u"serijal"_s, true},
        {"a word with diacritics in a text without", u"muzicka"_s, u"muzička"_s, true},
        {"decomposed text", u"muzic\u030Cka!"_s, u"muzička"_s, true},
        {"a mark behind belongs to the match", u"rad\u0301"_s, u"rad"_s, true},
        {"a mark behind, and a letter", u"rad\u0301a"_s, u"rad"_s, false},
        {"a mark before stands for its letter", u"e\u0301film"_s, u"film"_s, false},
        {"a mark before stands for its sign", u"-\u0301film"_s, u"film"_s, true},
        {"a mark at the very front", u"\u0301film"_s, u"film"_s, true},
        {"letters that do not decompose", u"fuđbal"_s, u"fudbal"_s, false},
        {"a word that ends in a sign", u"kom.film"_s, u"kom."_s, false},
        {"an empty word", u"film"_s, u""_s, false},
        {"a word of marks", u"film"_s, u"\u0301"_s, false},
        {"an empty text", u""_s, u"film"_s, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(matchWord(row.text, row.word), row.matches) << row.name;
    }
}

TEST(MatchWordTest, AgreesWithPlainSearches) {
    GeneratedText generated({u"a"_s, u"A"_s, u"b"_s, u"á"_s, u"a\u0301"_s, u"ł"_s, u" "_s, u"."_s, u"…"_s,
                             u"\u030C"_s, u"1"_s, u"😀"_s, u"𐐀"_s, u"각"_s});
    for (int i = 0; i < 20'000; ++i) {
        const QString text = generated.text(9);
        const QString word = generated.text(3);
        ASSERT_EQ(matchWord(text, word), naiveMatchWord(NaiveFold(text), word))
            << text.toStdString() << '|' << word.toStdString();
    }
}

} // namespace
} // namespace guide
