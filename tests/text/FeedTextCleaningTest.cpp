#include "text/cleaning/FeedTextCleaning.h"

#include "GeneratedText.h"
#include "text/cleaning/TextPatterns.h"

#include <QRegularExpression>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

using Text = std::optional<QString>;

TEST(TitleCleaningTest, SplitsTitles) {
    const std::tuple<QString, QString, Text> rows[] = {
        {u"Naslov"_s, u"Naslov"_s, {}},
        {u""_s, u""_s, {}},
        {u"Gem, set, meč, epizoda 3"_s, u"Gem, set, meč"_s, u"epizoda 3"_s},
        {u"Gem, set, meč"_s, u"Gem, set, meč"_s, u"set, meč"_s},
        {u"Gem, set, meč x"_s, u"Gem, set, meč"_s, u"set, meč x"_s},
        {u"2,4 djeteta"_s, u"2,4 djeteta"_s, {}},
        {u"DNEVNIK, 1. DIO"_s, u"Dnevnik"_s, u"1. DIO"_s},
        {u"123"_s, u"123"_s, {}},
        {u"Film (USA, 1999), drama"_s, u"Film"_s, u"USA, 1999), drama"_s},
        {u"Film(USA), drama"_s, u"Film(USA)"_s, u"drama"_s},
        {u"Film\u00A0(USA) i (HR), drama"_s, u"Film"_s, u"USA) i (HR), drama"_s},
        {u"Film [a] b [c], drama"_s, u"Film "_s, u"] b [c], drama"_s},
        {u"Naslov, 2. dio (R)"_s, u"Naslov"_s, u"2. dio (R)"_s},
        {u"Naslov,2. dio"_s, u"Naslov"_s, {}},
        {u"(a\nb) [c\nd]"_s, u"(a\nb) [c\nd]"_s, {}},
    };
    for (const auto& [title, shown, description] : rows) {
        EXPECT_EQ(showTitle(title, QLocale(u"hr_HR"_s)), shown) << title.toStdString();
        EXPECT_EQ(showInstantDescription(title), description) << title.toStdString();
    }
}

TEST(TitleCleaningTest, CapitalisesByTheLocale) {
    const std::tuple<QString, QString, QString> rows[] = {
        {u"VIJESTI IZ KULTURE"_s, u"hr_HR"_s, u"Vijesti Iz Kulture"_s},
        {u"ŠPORT 24"_s, u"C"_s, u"Šport 24"_s},
        {u"İYİ GÜNLER IŞIK"_s, u"tr_TR"_s, u"İyi Günler Işık"_s},
        {u"IŞIK"_s, u"en_US"_s, u"Işik"_s},
        {u"DON'T LOOK UP"_s, u"en_US"_s, u"Don't Look Up"_s},
        {u"НОВОСТИ-2"_s, u"ru_RU"_s, u"Новости-2"_s},
        {u"TVs"_s, u"en_US"_s, u"TVs"_s},
        {u"新聞"_s, u"en_US"_s, u"新聞"_s},
    };
    for (const auto& [title, locale, shown] : rows) {
        EXPECT_EQ(showTitle(title, QLocale(locale)), shown) << title.toStdString();
    }
}

TEST(TitleCleaningTest, RecognisesNotesAndRepeatMarks) {
    const std::tuple<QString, bool, bool> rows[] = {
        {u"Film, drama (USA/1999)"_s, true, false},
        {u"Film (USA/1999)"_s, false, false},
        {u"Film, )/("_s, true, false},
        {u"Film, drama (USA)"_s, false, false},
        {u"Film (R)"_s, false, true},
        {u"Film [Repris]"_s, false, true},
        {u"Film (r) [repris]"_s, false, false},
    };
    for (const auto& [title, note, repeat] : rows) {
        EXPECT_EQ(hasProductionNote(title), note) << title.toStdString();
        EXPECT_EQ(isRepeatMarked(title), repeat) << title.toStdString();
    }
}

TEST(SubtitleCleaningTest, RemovesBrackets) {
    const std::tuple<QString, QString, QString> rows[] = {
        {u"[film] Naslov"_s, u"Naslov"_s, u"[film]"_s},
        {u"[a] . Naslov"_s, u"Naslov"_s, u"[a]"_s},
        {u"[a],  Naslov"_s, u" Naslov"_s, u"[a]"_s},
        {u"[a]. (Naslov)"_s, u"Naslov"_s, u"[a]"_s},
        {u"[a]. (, Naslov)"_s, u"Naslov"_s, u"[a]"_s},
        {u"Naslov [a] b [c]"_s, u"Naslov "_s, u"[a] b [c]"_s},
        {u"[a\n[b] c"_s, u"[a\n c"_s, u"[b]"_s},
        {u"[a]"_s, u""_s, u"[a]"_s},
        {u"a] [b"_s, u"a] [b"_s, u""_s},
    };
    for (const auto& [original, left, matched] : rows) {
        QString subtitle = original;
        const auto range = bracketRange(subtitle);
        EXPECT_EQ(range ? applySubtitleBracket(subtitle, range->start, range->length) : QString(), matched)
            << original.toStdString();
        EXPECT_EQ(subtitle, left) << original.toStdString();
    }
}

TEST(SubtitleCleaningTest, SeparatesSubtitlesFromDetails) {
    const struct {
        Text subtitle;
        bool recognised;
        Text subtitle1;
        Text instantDetails1 = {};
    } rows[] = {
        {{}, true, {}},
        {u" Naslov\u00A0"_s, false, u"Naslov"_s},
        {u"(Naslov)"_s, false, u"Naslov"_s},
        {u"((Naslov))"_s, false, u"Naslov"_s},
        {u"(komedija)"_s, true, {}, u"komedija"_s},
        {u"x"_s, true, {}, u""_s},
    };
    for (const auto& row : rows) {
        const FinishedSubtitle finished = finishSubtitle(row.subtitle, row.recognised);
        EXPECT_EQ(finished.subtitle1, row.subtitle1) << row.subtitle.value_or(u"unset"_s).toStdString();
        EXPECT_EQ(finished.instantDetails1, row.instantDetails1)
            << row.subtitle.value_or(u"unset"_s).toStdString();
    }
    for (const QString& kept :
         {u"Naslov"_s, u"( ((Naslov)) )"_s, u"(Naslov"_s, u"Naslov)"_s, u"(a) (b)"_s, u"7"_s, u"(x"_s}) {
        EXPECT_EQ(finishSubtitle(kept, false).subtitle1, kept);
        EXPECT_FALSE(finishSubtitle(kept, false).instantDetails1);
    }
    for (const Text& dropped : {Text(), Text(u"x"_s), Text(u"٧"_s), Text(u"(x)"_s), Text(u" \u2003\n"_s)}) {
        EXPECT_FALSE(finishSubtitle(dropped, false).subtitle1) << dropped.value_or(u"unset"_s).toStdString();
        EXPECT_FALSE(finishSubtitle(dropped, false).instantDetails1);
    }
}

TEST(DescriptionCleaningTest, RemovesCreditsAndAttributions) {
    const struct {
        const char* name;
        QString text;
        Text description;
        Text roles = {};
        Text directedBy = {};
        Text knownRoles = {};
    } rows[] = {
        {"empty", u""_s, u""_s},
        {"only carriage returns", u"\r\r"_s, u""_s},
        {"a full stop is added", u"Opis"_s, u"Opis."_s},
        {"also after other punctuation", u"Opis!"_s, u"Opis!."_s},
        {"line ends", u"\rA.\nB\nC\n\nD\rE\n\n\nF\r"_s, u"A.\nB C\nD\nE\n F."_s},
        {"a leading semicolon", u"; ; A"_s, u"; A."_s},
        {"attributions", u"A (više na http://epg.example)(more at http://epg.example)B"_s, u"A B."_s},
        {"attributions that are kept", u"(više na https://epg.example) (more at http://other.example)"_s,
         u"(više na https://epg.example) (more at http://other.example)."_s},
        {"labelled credits", u"Opis filma. Uloge: A, B\nRedatelj: C\nKraj"_s, u"Opis filma. ."_s, u"A, B"_s,
         u"C"_s},
        {"the cast ends at the next label", u"Opis.\nUloge: A, B Redatelj: C Glazba: D"_s, u"Opis.\n."_s,
         u"A, B"_s, u"C"_s},
        {"known cast is kept", u"Uloge: A\nX"_s, u""_s, u"Z"_s, Text(), u"Z Redatelj: Y"_s},
        {"the director first", u"Režija: C\nUloge: A"_s, u""_s, u"A"_s, u"C"_s},
        {"the longer director's label", u"Redatelj: C\nScenarist i redatelj: D\nUloge: A"_s,
         u"Redatelj: C ."_s, u"A"_s, u"D"_s},
        {"Romanian cast", u"Text. Cu: A, B"_s, u"Text. ."_s, u"A, B"_s},
        {"a director without a cast", u"Opis. Redatelj: C"_s, u"Opis. Redatelj: C."_s},
        {"both kinds of credits", u"T. Uloge: A\nB Regia - C"_s, u"T. ."_s, u"A"_s},
        {"listed credits", u"Tekst. Regia - Ana, Regia - Ivo, Marko, Pero"_s, u"Tekst."_s, u"Marko, Pero"_s,
         u"Ana, Ivo"_s},
        {"listed credits after a comma", u"Tekst, Regia - Ana\nMarko,"_s, u"Tekst."_s, u"Marko, "_s, u"Ana"_s,
         u"Z"_s},
        {"listed credits on a separate line", u"Tekst.\nRegia - Ana"_s, u"Tekst."_s, Text(), u"Ana"_s},
        {"no credits", u"TeleRegia - Ana, Marko"_s, u"TeleRegia - Ana, Marko."_s},
        {"credits read from the first of their kind", u"TeleRegia - Ana, x Regia - Ivo"_s,
         u"TeleRegia - Ana, x."_s, Text(), u"Ana, Ivo"_s},
    };
    for (const auto& row : rows) {
        const CleanedDescription cleaned = cleanDescription({row.text, row.knownRoles, {}}, u"epg.example"_s);
        EXPECT_EQ(cleaned.description, row.description) << row.name;
        EXPECT_EQ(cleaned.roles, row.roles) << row.name;
        EXPECT_EQ(cleaned.directedBy, row.directedBy) << row.name;
    }
    const CleanedDescription unset = cleanDescription({{}, u"Z"_s, u"Y"_s}, u"epg.example"_s);
    EXPECT_EQ(unset.description, Text());
    EXPECT_EQ(unset.roles, u"Z"_s);
}

TEST(TextPatternsTest, AgreeWithRegularExpressions) {
    const auto pattern = [](const QString& text) {
        return QRegularExpression(u"(*ANY)"_s + text, QRegularExpression::UseUnicodePropertiesOption);
    };
    const QRegularExpression parentheses = pattern(u"[\u00A0\\s]\\(.*\\)"_s);
    const QRegularExpression brackets = pattern(u"\\[.*\\]"_s);
    const QRegularExpression labels = pattern(u"\\s[^\\s]+\\:\\s.+"_s);
    GeneratedText generated({u"("_s, u")"_s, u"["_s, u"]"_s, u" "_s, u" "_s, u":"_s, u": "_s, u"a"_s, u" ("_s,
                             u"ab:"_s, u"\n"_s, u"\u00A0"_s, u"\u2003"_s, u"\u2028"_s, u"\v"_s, u"\f"_s,
                             u"\u0085"_s, u"😀"_s});
    for (int i = 0; i < 50'000; ++i) {
        const QString text = generated.text(14);
        const std::string shown = text.toUtf8().toPercentEncoding(" ()[]:").toStdString();
        ASSERT_EQ(withoutParentheses(text), QString(text).remove(parentheses)) << shown;
        ASSERT_EQ(withoutBrackets(text), QString(text).remove(brackets)) << shown;
        ASSERT_EQ(withoutLabelTails(text), QString(text).remove(labels)) << shown;
        const auto range = bracketRange(text);
        const QRegularExpressionMatch match = brackets.match(text);
        ASSERT_EQ(range.has_value(), match.hasMatch()) << shown;
        if (range) {
            ASSERT_EQ(range->start, match.capturedStart()) << shown;
            ASSERT_EQ(range->length, match.capturedLength()) << shown;
        }
    }
}

} // namespace
} // namespace guide
