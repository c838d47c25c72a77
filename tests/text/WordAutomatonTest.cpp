#include "text/search/WordAutomaton.h"

#include "GeneratedText.h"

#include <gtest/gtest.h>
#include <set>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

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
