#include "text/search/MatchWord.h"

#include <QString>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(MatchWordTest, TestsBothNeighboursOfTheFirstOccurrence) {
    const struct {
        const char* name;
        QString text;
        QString word;
        bool matches;
    } rows[] = {
        {"alone", u"film"_s, u"film"_s, true},
        {"followed by a full stop", u"film."_s, u"film"_s, true},
        {"followed by a non-ASCII character", u"film…"_s, u"film"_s, false},
        {"followed by a no-break space", u"film\u00A0x"_s, u"film"_s, false},
        {"followed by a letter", u"filmovi"_s, u"film"_s, false},
        {"followed by a digit", u"film2"_s, u"film"_s, true},
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
        {"a mark after the match belongs to it", u"rad\u0301"_s, u"rad"_s, true},
        {"followed by a mark and a letter", u"rad\u0301a"_s, u"rad"_s, false},
        {"after a letter with a mark", u"e\u0301film"_s, u"film"_s, false},
        {"after a sign with a mark", u"-\u0301film"_s, u"film"_s, true},
        {"a mark at the start of the text", u"\u0301film"_s, u"film"_s, true},
        {"letters that do not decompose", u"fuđbal"_s, u"fudbal"_s, false},
        {"a word that ends in a sign", u"kom.film"_s, u"kom."_s, false},
        {"after a pair of surrogates", u"😀film 각"_s, u"film"_s, true},
        {"after a letter of two units", u"𐐀film"_s, u"film"_s, false},
        {"after a letter that folds to three units", u"각film"_s, u"film"_s, false},
        {"after a character that folds to three units", u"각 Film"_s, u"film"_s, true},
        {"in the middle, decomposed", u"A pr\u0069c\u030Ca."_s, u"priča"_s, true},
        {"an empty word", u"film"_s, u""_s, false},
        {"a word of marks", u"film"_s, u"\u0301"_s, false},
        {"an empty text", u""_s, u"film"_s, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(matchWord(row.text, row.word), row.matches) << row.name;
    }
}

} // namespace
} // namespace guide
