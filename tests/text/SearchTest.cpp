#include "GeneratedText.h"
#include "text/search/FoldTable.h"
#include "text/search/FoldedText.h"
#include "text/search/MatchWord.h"
#include "text/search/WordAutomaton.h"

#include <QList>
#include <QString>

#include <gtest/gtest.h>
#include <set>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

QString fromCodePoint(char32_t character) {
    return QString::fromUcs4(&character, 1);
}

TEST(FoldTableTest, FoldsEveryCharacterToItsDecompositionWithoutMarks) {
    for (const FoldMode mode : {FoldMode::Diacritics, FoldMode::CaseAndDiacritics}) {
        for (char32_t character = 0; character <= 0x10FFFF; ++character) {
            if (QChar::isSurrogate(character)) {
                continue;
            }
            QString wanted;
            const QString text = fromCodePoint(character);
            for (const char32_t part : text.normalized(QString::NormalizationForm_D).toUcs4()) {
                if (!QChar::isMark(part)) {
                    wanted += fromCodePoint(mode == FoldMode::Diacritics ? part : QChar::toCaseFolded(part));
                }
            }
            ASSERT_EQ(FoldTable::of(mode).folded(text), wanted) << std::hex << uint(character);
        }
    }
}

TEST(FoldTableTest, FoldsTexts) {
    const std::tuple<const char*, QString, QString> rows[] = {
        {"composed", u"ŽLUŤOUČKÝ Kůň"_s, u"zlutoucky kun"_s},
        {"decomposed", u"Z\u030Clut\u030C"_s, u"zlut"_s},
        {"letters that do not decompose", u"FUẞBALL Fußball Đorđe Łódź Ærø Œuvre Þór ışık İ"_s,
         u"fussball fussball dorde lodz aero oeuvre thor isik i"_s},
        {"lone surrogates", QString(QChar(0xD83D)) + u'A' + QChar(0xDE00),
         QString(QChar(0xD83D)) + u'a' + QChar(0xDE00)},
        {"characters that become longer, in the middle", u"É각😀각Ö𐐀É"_s,
         u"e"_s + u"각"_s.normalized(QString::NormalizationForm_D) + u"😀"_s +
             u"각"_s.normalized(QString::NormalizationForm_D) + u"o𐐨e"_s},
    };
    for (const auto& [name, text, folded] : rows) {
        EXPECT_EQ(foldedText(text), folded) << name;
    }
}

TEST(MatchWordTest, TestsBothNeighboursOfTheFirstOccurrence) {
    const std::tuple<const char*, QString, QString, bool> rows[] = {
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
    for (const auto& [name, text, word, matches] : rows) {
        EXPECT_EQ(matchWord(text, word), matches) << name;
    }
}

using Found = std::set<std::tuple<int, qsizetype, qsizetype>>;

/// Every range of whole characters that folds to a word and neither begins nor ends with a character that
/// folds to nothing.
Found naiveOccurrences(const std::vector<QString>& words, FoldMode mode, const QString& text) {
    const FoldTable& table = FoldTable::of(mode);
    std::vector<std::pair<qsizetype, qsizetype>> characters;
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype begin = i;
        if (table.fold(takeCodePoint(text, i)).size() > 0) {
            characters.emplace_back(begin, i);
        }
    }
    Found found;
    for (int word = 0; word < static_cast<int>(words.size()); ++word) {
        const QString wanted = table.folded(words[static_cast<std::size_t>(word)]);
        for (std::size_t first = 0; first < characters.size(); ++first) {
            for (std::size_t last = first; last < characters.size(); ++last) {
                const qsizetype begin = characters[first].first;
                const qsizetype end = characters[last].second;
                if (table.folded(QStringView(text).sliced(begin, end - begin)) == wanted) {
                    found.emplace(word, begin, end);
                }
            }
        }
    }
    return found;
}

TEST(WordAutomatonTest, FindsWhatPlainSearchesFind) {
    const std::vector<QString> words{u"a"_s,     u"ab"_s, u"bab"_s, u"č"_s,   u"čč"_s,      u"Ba"_s,
                                     u"abcab"_s, u"đ"_s,  u"ß."_s,  u"i"_s,   u"\u0301"_s,  u""_s,
                                     u"ab"_s,    u"각"_s, u"😀a"_s, u"Éáb"_s, u"e\u0301a"_s};
    GeneratedText generated({u"a"_s, u"b"_s, u"A"_s,       u"B"_s,  u"á"_s,      u"a\u0301\u0327"_s,
                             u"c"_s, u"č"_s, u"C\u030C"_s, u"đ"_s,  u"ß"_s,      u"."_s,
                             u"İ"_s, u"ı"_s, u"각"_s,      u"😀"_s, u"\xD83D"_s, u"\u030C"_s,
                             u"e"_s, u"É"_s});
    for (const FoldMode mode :
         {FoldMode::None, FoldMode::Case, FoldMode::Diacritics, FoldMode::CaseAndDiacritics}) {
        const WordAutomaton automaton(words, mode);
        for (int i = 0; i < 3000; ++i) {
            const QString text = generated.text(12);
            Found found;
            automaton.walk(text, [&](const WordAutomaton::Occurrence& occurrence) {
                found.emplace(occurrence.word, automaton.beginOf(text, occurrence), occurrence.end);
            });
            ASSERT_EQ(found, naiveOccurrences(words, mode, text))
                << "mode " << int(mode) << ": " << text.toStdString();
        }
    }
}

} // namespace
} // namespace guide
