#include "text/Capitalisation.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <unicode/ucasemap.h>
#include <vector>

namespace guide {
namespace {

/// What the Unicode library makes of the whole text.
QString byLibrary(const QString& text, const char* locale) {
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UCaseMap, decltype(&ucasemap_close)> map(ucasemap_open(locale, 0, &error),
                                                                   ucasemap_close);
    std::vector<char16_t> title(static_cast<std::size_t>(text.size()) * 3 + 1);
    const auto size = ucasemap_toTitle(map.get(), title.data(), static_cast<std::int32_t>(title.size()),
                                       reinterpret_cast<const UChar*>(text.utf16()),
                                       static_cast<std::int32_t>(text.size()), &error);
    EXPECT_TRUE(U_SUCCESS(error));
    return QStringView(title.data(), size).toString();
}

// Also where the words are so plain that the library is not asked.
TEST(Capitalisation, MakesOfWordsWhatTheLibraryMakes) {
    // Each piece as often as the others: letters of all kinds, what joins words and what parts them.
    const QStringList pieces =
        QStringLiteral("a|B|é|Č|ß|İ|ı|ŉ|ij|IJ|ſ|ÿ|ŀ|ª|º|µ|ǆ|σ|Σ|ж|Я|日|ア|3|_|-|'|’|.|:|,|;|!|?|(|)|"
                       "\"|·|\u00ad|\u0301|\u200d|\u00a0|\t|\n| | | | |the|L'ULTIMO|don't|STRASSE|e.g.")
            .split(u'|');
    std::mt19937 random(20261121);
    for (const char* locale : {"en_US", "it_IT", "cs_CZ", "de_DE", "el_GR", "nl_NL", "tr_TR", "lt_LT"}) {
        const QLocale given{QLatin1StringView(locale)};
        for (int i = 0; i < 4'000; ++i) {
            QString text;
            for (auto length = random() % 12; length > 0; --length) {
                text += pieces[static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size()))];
            }
            ASSERT_EQ(capitalizedWords(text, given), byLibrary(text, locale))
                << locale << ": " << qPrintable(text);
        }
        for (char16_t unit = 1; unit < 0x250; ++unit) {
            const QString text = QString(QChar(unit)) + u'x' + QChar(unit) + u' ' + QChar(unit) + u'A';
            ASSERT_EQ(capitalizedWords(text, given), byLibrary(text, locale)) << locale << ": " << int(unit);
        }
    }
}

} // namespace
} // namespace guide
