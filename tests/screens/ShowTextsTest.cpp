#include "screens/ShowTexts.h"

#include "ScreenWorld.h"
#include "screens/TextTidying.h"

namespace guide::test {
namespace {

TEST(ShowTexts, SortsWhatAFeedPacksIntoTheSubtitle) {
    const struct {
        const char* name;
        QString title;
        QString subtitle;
        QString subheading;
        QString facts;
        QString row;
    } cases[] = {
        {"all kinds", u"Affari al buio"_s, u"S15E11 ║ Gioco al rialzo ║ Reality, Auktion ║ US ║ 2023 ║ 12"_s,
         u"Gioco al rialzo"_s, u"S15E11|Reality, Auktion|US|2023|12+"_s,
         u"Gioco al rialzo · S15E11 · Reality, Auktion · US · 2023 · 12+"_s},
        {"stars, no title of its own", u"Una vita"_s,
         u"S20E3 ║ Serie Tv, Dramma Soap ║ 2015 ║ 2,3 ║ Spagna"_s, QString(),
         u"S20E3|Serie Tv, Dramma Soap|2015|★~2,3|Spagna"_s,
         u"S20E3 · Serie Tv, Dramma Soap · 2015 · ★~2,3 · Spagna"_s},
        {"the show's title", u"Wolf Man"_s, u"Wolf man ║ Horror ║ 2025 ║ USA"_s, QString(),
         u"Horror|2025|USA"_s, u"Horror · 2025 · USA"_s},
        {"one text", u"Il mistero"_s, u"Documentari ║ 2023 ║ 18+"_s, QString(), u"Documentari|2023|18+"_s,
         u"Documentari · 2023 · 18+"_s},
        {"numbers that say nothing", u"Skyline"_s, u"E0 ║ S2025 ║ ║ News ║ 2025 ║ 2025"_s, QString(),
         u"News|2025"_s, u"News · 2025"_s},
        {"words that begin like an episode", u"Krimi"_s, u"S8 Gnadenlos ║ SE ║ EXATLON ║ E"_s,
         u"S8 Gnadenlos"_s, u"SE|EXATLON|E"_s, u"S8 Gnadenlos · SE · EXATLON · E"_s},
        {"many decimals, whole stars", u"Lupin"_s, u"S1E0 ║ 3,839 ║ 4 ║ 16"_s, QString(),
         u"S1|★~3,8|★~4|16+"_s, u"S1 · ★~3,8 · ★~4 · 16+"_s},
        {"an episode only", u"Iris"_s, u"S0E13"_s, QString(), u"E13"_s, u"S0E13"_s},
        {"a number", u"Lost"_s, u"12"_s, u"12"_s, QString(), u"12"_s},
        {"no parts", u"Mentalist"_s, u"Kleopatras  Ring, Teil 2"_s, u"Kleopatras Ring, Teil 2"_s, QString(),
         u"Kleopatras  Ring, Teil 2"_s},
        {"within the title", u"LIVE: TG24 Preview"_s, u"TG24 Preview ║ Informazione ║ IT"_s, QString(),
         u"Informazione|IT"_s, u"Informazione · IT"_s},
        {"the title behind the subheading", u"Henry Danger"_s,
         u"Danger Games-Henry Danger ║ S4E1 ║ Bambini"_s, u"Danger Games"_s, u"S4E1|Bambini"_s,
         u"Danger Games · S4E1 · Bambini"_s},
        {"only begins like the title", u"Tatort"_s, u"Tat"_s, u"Tat"_s, QString(), u"Tat"_s},
        {"repeated", u"TELESHOPPING"_s, u"Teleshopping"_s, QString(), QString(), QString()},
    };
    Alphabet alphabet;
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        TVEntry entry(alphabet);
        entry.setIdentificator(each.title);
        entry.setSubtitle1(each.subtitle);
        const ShowTexts texts = showTexts(entry);
        const auto plain = [](QString text) { return text.replace(QChar(QChar::Nbsp), u'~'); };
        EXPECT_EQ(texts.subheading, each.subheading);
        EXPECT_EQ(plain(texts.facts.join(u'|')), each.facts);
        EXPECT_EQ(plain(rowDetails(entry)).replace(u"~·"_s, u" ·"_s), each.row);
    }
}

TEST(ShowTexts, ARowSaysWhatIsNewAndWhichEpisodeItIs) {
    const struct {
        const char* name;
        QString subtitle;
        EpisodeNumber episode;
        Newness newness;
        QString row;
    } cases[] = {
        {"both", u"Gioco"_s, {2, 5, 10, {}, {}}, Newness::New, u"New · S2E5 · Gioco"_s},
        {"no text", {}, {{}, 5, {}, {}, {}}, Newness::Repeat, u"Replay · E5"_s},
        {"the text has it", u"05. díl: Hra"_s, {2, 5, {}, {}, {}}, Newness::Unknown, u"05. díl: Hra"_s},
        {"another number", u"15. díl"_s, {{}, 5, {}, {}, {}}, Newness::Unknown, u"E5 · 15. díl"_s},
        {"nothing of the kind", u"Hra"_s, {}, Newness::Unknown, u"Hra"_s},
    };
    Alphabet alphabet;
    for (const auto& each : cases) {
        TVEntry entry(alphabet);
        entry.setIdentificator(u"Show"_s);
        entry.setSubtitle1(each.subtitle);
        ShowFacts facts;
        facts.year = 2016;
        facts.episode = each.episode;
        facts.newness = each.newness;
        entry.setFacts(std::make_shared<const ShowFacts>(facts));
        EXPECT_EQ(rowDetails(entry).replace(QChar(QChar::Nbsp), u' '), each.row) << each.name;
    }
}

TEST(ShowTexts, LongPartsAreDetails) {
    Alphabet alphabet;
    TVEntry entry(alphabet);
    const QString sentence = u"Wer hat Angst? "_s.repeated(8).trimmed();
    entry.setIdentificator(u"Film"_s);
    entry.setSubtitle1(u"Der Anfang"_s);
    entry.setInstantDetails1(u"Krimi ║ D ║ "_s + sentence);
    entry.setInstantDescription1(sentence);
    const ShowTexts texts = showTexts(entry);
    EXPECT_EQ(texts.subheading, u"Der Anfang"_s);
    EXPECT_EQ(texts.facts, QStringList({u"Krimi"_s, u"D"_s}));
    EXPECT_EQ(texts.details, QStringList({sentence, sentence}));
}

TEST(TextTidying, Texts) {
    const std::pair<QString, QString> cases[] = {
        {u"04:05 \t \t Agymenő\u00a0 kávézó \n"_s, u"04:05 Agymenő kávézó"_s},
        {u"\n\nA.\n \n\n\nB.\nC."_s, u"A.\n\nB.\nC."_s},
        {u"Co skrývají?."_s, u"Co skrývají?"_s},
        {u"…und dann….\n"_s, u"…und dann…"_s},
        {u"vijesti sa estrade,."_s, u"vijesti sa estrade."_s},
        {u"mafiánsky sitkom ."_s, u"mafiánsky sitkom."_s},
        {u"- Il gufetto.. - Di P. Szcz"_s, u"Il gufetto. - Di P. Szcz"_s},
        {u"gondjaival...Főszereplők: Tony Shalhoub,Jason Gray , Ted"_s,
         u"gondjaival... Főszereplők: Tony Shalhoub, Jason Gray, Ted"_s},
        {u"A vége.Rendező: T"_s, u"A vége. Rendező: T"_s},
        {u"RaiCultura.it, S.H.I.E.L.D., 1.000"_s, u"RaiCultura.it, S.H.I.E.L.D., 1.000"_s},
        {u"E poi..."_s, u"E poi..."_s},
        {u"."_s, u"."_s},
        {QString(), QString()},
    };
    for (const auto& [text, tidy] : cases) {
        EXPECT_EQ(tidied(text), tidy);
    }
}

TEST(TextTidying, DescriptionsDoNotRepeatThemselvesOrTheirHeadings) {
    const QString peppa = u"A casa di Suzy Peppa si sorprende dell'esistenza di altre regole: niente scarpe "
                          "all'interno e non saltare sui letti. Poi vanno da Emily."_s;
    const QString kat =
        u"Kat élete nagy vállalkozásába vág bele, amikor nyit egy kávéházat, amiben kedvencei is "
        "kiveszik a részüket, k"_s;
    const std::pair<QString, QString> cases[] = {
        {peppa + u' ' + peppa.first(70) + u"...\nMatt Tea."_s, peppa + u"\nMatt Tea."_s},
        {peppa + u"\nKurz.\n"_s + peppa + u"\nKurz."_s, peppa + u"\nKurz.\nKurz."_s},
        {u"04:05 Kávézó, 2022 "_s + kat + u' ' + kat + u'.', u"04:05 Kávézó, 2022 "_s + kat},
        {peppa.first(50) + u" ... "_s + peppa.first(50), peppa.first(50) + u" ... "_s + peppa.first(50)},
        {u"L'amico Steve - Billy vorrebbe un partner."_s, u"Billy vorrebbe un partner."_s},
        {u"L'AMICO STEVE."_s, {}},
        {u"L'amico Stevenson: un uomo."_s, u"L'amico Stevenson: un uomo."_s},
        {u"I Thunderman sono qui."_s, u"I Thunderman sono qui."_s},
    };
    for (const auto& [text, tidy] : cases) {
        EXPECT_EQ(tidiedDescription(text, {u"I Thunderman"_s, QString(), u"L'amico Steve"_s}), tidy);
    }
}

} // namespace
} // namespace guide::test
