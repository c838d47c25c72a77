#include "text/search/FoldTable.h"

#include "text/search/FoldedText.h"

#include <QList>

#include <gtest/gtest.h>
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
        {"letters that do not decompose", u"Đłßı"_s, u"đłßı"_s},
        {"a dotted capital I", u"İ"_s, u"i"_s},
        {"a lone mark", u"\u0301"_s, u""_s},
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

} // namespace
} // namespace guide
