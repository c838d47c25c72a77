#include "text/language/LanguageGuess.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(LanguageGuess, ReadsScriptLettersAndCommonWords) {
    const struct {
        const char* language;
        QString text;
    } rows[] = {
        {"cs",
         u"Případ pro dva. Detektiv se vrací domů, ale v bytě ho čeká překvapení, které nečekal. Jeho klient "
         u"je podle policie vrahem své ženy."_s},
        {"sk",
         u"Prípad pre dvoch. Detektív sa vracia domov, ale v byte ho čaká prekvapenie, ktoré nečakal. Jeho "
         u"klient je podľa polície vrahom svojej ženy."_s},
        {"pl",
         u"Sprawa dla dwojga. Detektyw wraca do domu, ale w mieszkaniu czeka na niego niespodzianka, której "
         u"się nie spodziewał. Jego klient jest podejrzany."_s},
        {"hu", u"Két ember ügye. A nyomozó hazatér, de a lakásban olyan meglepetés várja, amelyre nem "
               u"számított. Az "
               u"ügyfele a rendőrség szerint megölte a feleségét."_s},
        {"ro", u"Un caz pentru doi. Detectivul se întoarce acasă, dar în apartament îl așteaptă o surpriză "
               u"la care nu "
               u"se aștepta. Clientul său este suspect."_s},
        {"it", u"Un caso per due. Il detective torna a casa, ma nell'appartamento lo aspetta una sorpresa "
               u"che non si "
               u"aspettava. Il suo cliente è accusato della morte della moglie."_s},
        {"de", u"Ein Fall für zwei. Der Detektiv kehrt nach Hause zurück, aber in der Wohnung wartet eine "
               u"Überraschung "
               u"auf ihn. Sein Klient wird von der Polizei gesucht."_s},
        {"fr", u"Une affaire pour deux. Le détective rentre chez lui, mais une surprise l'attend dans "
               u"l'appartement. "
               u"Son client est accusé du meurtre de sa femme."_s},
        {"en", u"A case for two. The detective comes home, but in the flat there is a surprise that he did "
               u"not expect. "
               u"His client is wanted by the police."_s},
        {"tr",
         u"İki kişilik dava. Dedektif eve döner ama dairede onu beklemediği bir sürpriz karşılar. Müvekkili "
         u"karısını öldürmekle suçlanan bir adamdır ve çok zengindir."_s},
        {"sl",
         u"Primer za dva. Detektiv se vrne domov, a v stanovanju ga čaka presenečenje, ki ga ni pričakoval. "
         u"Njegova stranka je po mnenju policije tudi morilec."_s},
        {"hr", u"Slučaj za dvoje. Detektiv se vraća kući, ali u stanu ga čeka iznenađenje koje nije "
               u"očekivao. Njegov "
               u"klijent je, kako kaže policija, ubojica."_s},
        {"el", u"Υπόθεση για δύο. Ο ντετέκτιβ επιστρέφει στο σπίτι."_s},
        {"bg", u"Случай за двама. Детективът се връща у дома, но в апартамента го чака изненада."_s},
        {"mk",
         u"Случај за двајца. Детективот се враќа дома, но во станот го чека изненадување, ѕвезда и куќа."_s},
        {"sr", u"Случај за двоје. Детектив се враћа кући, али га у стану чека изненађење."_s},
        {"uk", u"Справа для двох. Детектив повертається додому, але у квартирі на нього чекає їжа."_s},
    };
    for (const auto& [language, text] : rows) {
        EXPECT_EQ(guessedLanguage(text), QString::fromLatin1(language));
        EXPECT_EQ(guessedLanguage(text.normalized(QString::NormalizationForm_D), u"en"_s),
                  QString::fromLatin1(language))
            << "whatever the feed's country";
    }
}

TEST(LanguageGuess, TheCountryDecidesWhatTheTextDoesNot) {
    const QString south =
        u"Dnevnik. Pregled dana i sve što se dogodilo u zemlji i u svijetu, kao i koji su gosti."_s;
    EXPECT_EQ(guessedLanguage(south, u"bs"_s), u"bs"_s);
    EXPECT_EQ(guessedLanguage(south, u"sr"_s), u"sr"_s);
    EXPECT_EQ(guessedLanguage(u"NCIS. CSI: Miami. Top Gear."_s, u"hu"_s), u"hu"_s);
    EXPECT_EQ(guessedLanguage(u"NCIS 12"_s), QString());
    EXPECT_EQ(guessedLanguage({}, u"sk"_s), u"sk"_s);
}

} // namespace
} // namespace guide
