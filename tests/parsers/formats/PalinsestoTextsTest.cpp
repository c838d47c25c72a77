#include "parsers/formats/PalinsestoEvents.h"
#include "text/cleaning/Capitalisation.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

// Capitalising and caching word by word must equal capitalising the whole text.
TEST(PalinsestoTexts, CapitaliseLikeTheWholeText) {
    const char* const texts[] = {
        "",
        " ",
        "  due  blank  ",
        "L'ULTIMO DEI MOHICANI",
        "e.r. - medici IN PRIMA linea (3ª parte) ",
        "dell\u2019arte\u00a0nuova\tE\nvecchia",
        "ΟΔΥΣΣΕΥΣ ΚΑΙ ΣΙΡΗΝΕΣ",
        "ijsland STRASSE straße \u0301a \u200db ǆ 3d x_y",
        "日本 アニメ 👩‍👧 tv",
    };
    for (const char* locale : {"it_IT", "nl_NL", "tr_TR"}) {
        PalinsestoTexts made{QLocale(QLatin1String(locale))};
        for (int pass = 0; pass < 2; ++pass) {
            for (const char* text : texts) {
                EXPECT_EQ(made.capitalizedWords(text),
                          capitalizedWords(QString::fromUtf8(text), QLocale(QLatin1String(locale))))
                    << locale << ": " << text;
            }
        }
    }
}

} // namespace
} // namespace guide
