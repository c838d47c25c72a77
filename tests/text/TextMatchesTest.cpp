#include "text/search/TextMatches.h"

#include "text/search/FoldedText.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

TEST(TextMatchesTest, FindsPartsOfTheOriginalText) {
    const struct {
        const char* name;
        QString text;
        QString typed;
        QStringList found;
    } cases[] = {
        {"case", u"Čarobna ČAROLIJA"_s, u"čar"_s, {u"Čar"_s, u"ČAR"_s}},
        {"without diacritics", u"Žena i šuma"_s, u"suma"_s, {u"šuma"_s}},
        {"with diacritics that the text lacks", u"Zena"_s, u"žena"_s, {u"Zena"_s}},
        {"decomposed text", u"Z\u030Cena v Z\u030Cenave\u030C"_s, u"že"_s, {u"Z\u030Ce"_s, u"Z\u030Ce"_s}},
        {"a mark after the match", u"cafe\u0301 noir"_s, u"cafe"_s, {u"cafe\u0301"_s}},
        {"decomposed pattern", u"Tőrök és török"_s, u"to\u0308r"_s, {u"Tőr"_s, u"tör"_s}},
        {"part of a syllable", u"한국"_s, u"하"_s, {u"한"_s}},
        {"outside the basic plane", u"a😀b😀"_s, u"😀"_s, {u"😀"_s, u"😀"_s}},
        {"no overlaps", u"aaaa a"_s, u"aa"_s, {u"aa"_s, u"aa"_s}},
        {"letters that do not decompose", u"Đorđe"_s, u"dorde"_s, {u"Đorđe"_s}},
        {"half of a letter", u"Fußball"_s, u"sball"_s, {u"ßball"_s}},
        {"a pattern of nothing but marks", u"cafe\u0301"_s, u"\u0301"_s, {}},
        {"no text", QString(), u"a"_s, {}},
    };
    for (const auto& each : cases) {
        QStringList found;
        for (const TextRange& range : textMatches(each.text, foldedText(each.typed))) {
            found << each.text.sliced(range.start, range.length);
        }
        EXPECT_EQ(found, each.found) << each.name;
    }
}

} // namespace
} // namespace guide::test
