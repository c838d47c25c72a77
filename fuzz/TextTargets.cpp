#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "platform/encoding/Utf8.h"
#include "text/categories/CategoryMapping.h"
#include "text/categories/ShowClassifier.h"
#include "text/cleaning/Capitalisation.h"
#include "text/cleaning/FeedTextCleaning.h"
#include "text/cleaning/MarkupText.h"
#include "text/cleaning/TextPatterns.h"
#include "text/cleaning/TextTidying.h"
#include "text/cleaning/TitleCapitals.h"
#include "text/display/Transliteration.h"
#include "text/reading/CreditsReading.h"
#include "text/reading/DescriptionReading.h"
#include "text/reading/SubtitleReading.h"
#include "text/reading/TitleReading.h"
#include "text/search/FoldedText.h"
#include "text/search/MatchWord.h"

#include <array>
#include <cstring>

namespace guide::fuzz {

namespace {

/// Texts from UTF-8, or from arbitrary code units, including lone surrogates.
std::vector<QString> texts(const FuzzInput& input, std::size_t most) {
    std::vector<QString> texts;
    if (input.choice(4) == 3) {
        const QByteArray bytes = input.whole();
        QString text(bytes.size() / 2, u'\0');
        std::memcpy(text.data(), bytes.constData(), static_cast<std::size_t>(text.size()) * 2);
        texts.push_back(text);
    } else {
        for (const QByteArray& part : input.textParts(most)) {
            texts.push_back(QString::fromUtf8(part));
        }
    }
    texts.resize(most);
    return texts;
}

void cleanTexts(QByteArrayView bytes) {
    const std::vector<QString> given = texts(FuzzInput(bytes), 4);
    const QLocale locale(QLocale::Turkish);
    for (const QString& text : given) {
        const QString title = showTitle(text, locale);
        require(title.size() <= 3 * text.size(), "a title does not grow without bound");
        showInstantDescription(text);
        hasProductionNote(text);
        isRepeatMarked(text);
        sentenceCase(capitalizedWords(text, locale), locale);
    }
    QString subtitle = given[0];
    if (const auto range = bracketRange(subtitle)) {
        require(range->start >= 0 && range->start + range->length <= subtitle.size(),
                "a bracket is inside the text");
        const QString bracket = applySubtitleBracket(subtitle, range->start, range->length);
        require(bracket.size() == range->length, "a bracket is removed as a whole");
    }
    finishSubtitle(subtitle, given[1].size() % 2 == 1);
    const CleanedDescription cleaned =
        cleanDescription({.description = given[1],
                          .roles = given[2].isEmpty() ? std::nullopt : std::optional(given[2]),
                          .directedBy = std::nullopt},
                         QStringLiteral("guide.example"));
    require(cleaned.description->size() <= given[1].size() + 1, "a description grows by at most a full stop");
}

void requireFacts(const ShowFacts& facts) {
    const EpisodeNumber& episode = facts.episode;
    for (const auto& number :
         {episode.season, episode.episode, episode.episodes, episode.part, episode.parts, facts.year}) {
        require(!number || (*number > 0 && *number < 10'000), "a number that is known counts something");
    }
    require(!facts.originalTitle || !facts.originalTitle->isEmpty(), "an original title is not empty");
}

/// Texts of feeds that a person added.
void readTexts(QByteArrayView bytes) {
    const FuzzInput input(bytes);
    const std::vector<QString> given = texts(input, 3);
    static const std::array<QString, 4> kLanguages{QString(), QStringLiteral("hu"), QStringLiteral("el"),
                                                   QStringLiteral("tr")};
    const QString& language = kLanguages[given[1].size() % kLanguages.size()];
    for (const QString& text : given) {
        const ReadTitle title = readTitle(text, language);
        require(title.title.isEmpty() == tidiedTitle(text).isEmpty(), "a title is not read away");
        require(title.title.size() <= text.size() && title.title == title.title.trimmed(), "a title is tidy");
        requireFacts(title.facts);
        require(withoutCapitals(title.title, language).size() <= 3 * title.title.size(),
                "a title does not grow without bound");
        const ReadSubtitle subtitle = readSubtitle(text, language);
        require(!subtitle.subtitle || !subtitle.subtitle->isEmpty(), "a subtitle is not empty");
        requireFacts(subtitle.facts);
        ReadDescription description = readDescription(text, language);
        requireFacts(description.facts);
        takeCredits(description.text);
        closeSentence(description.text);
        require(description.text.size() <= text.size() + 1, "a description grows by at most a full stop");
    }
}

void decodeTexts(QByteArrayView bytes) {
    for (const QString& text : texts(FuzzInput(bytes), 2)) {
        require(decodeMarkup(text).size() <= 10'000, "a fragment is bounded");
        if (const auto trimmed = trimmedListingText(text)) {
            require(!trimmed->isEmpty() && trimmed->size() <= text.size(), "a trimmed text is not empty");
        }
        withoutParentheses(text);
        withoutBrackets(text);
        withoutLabelTails(text);
        const Alphabet alphabet(true);
        for (const char* language : {"mk", "sr", "ru", "cs"}) {
            latin2Cyrillic(text, QString::fromLatin1(language), alphabet);
        }
    }
}

void findWords(QByteArrayView bytes) {
    const std::vector<QString> given = texts(FuzzInput(bytes), 3);
    const QString folded = foldedText(given[0]);
    require(foldedText(folded) == folded, "folding is idempotent");
    require(foldedText(given[0].normalized(QString::NormalizationForm_D)) == folded,
            "decomposed and composed texts fold to the same");
    mapCategoryAttribute(given[0]);
    mapBracketCategories(given[0]);
    mapSubtitleWords(given[0], given[1]);
    mapDescriptionWords(given[2]);
    mapInstantDescriptionWords(given[2]);
    mapCategoryText(given[0]);
    const auto found = classifyEntry(QStringLiteral("41"), {given[0], given[1], given[2]});
    require((found & TVListingsCategorySeries) == 0 || (found & TVListingsCategoryAllFilm) == 0,
            "a show is not both a series and a film");
    const auto decomposed = [&given](std::size_t i) {
        return given[i].normalized(QString::NormalizationForm_D);
    };
    require(found == classifyEntry(QStringLiteral("41"), {decomposed(0), decomposed(1), decomposed(2)}),
            "decomposed and composed texts have the same categories");
    require(!matchWord(given[0], given[1]) || folded.contains(foldedText(given[1])),
            "a matched word is part of the text");
}

std::vector<QByteArray> feedTexts() {
    return {fuzzInput({"Ztraceni (USA/1999) [AD], S02E03 - Ostrov", "[Krimiserie] Návrat. (2)",
                       "Režie: J. Novák. Hrají: A. Bílá, B. Černý.\r\n\r\nhttp://guide.example/", "A. Bílá"}),
            fuzzInput({"DNEVNIK, r.", ". (Serija)", "Glumci: X, Y (Z).", ""}, 1)};
}

std::vector<QByteArray> markup() {
    return {fuzzInput({"<![CDATA[ a & b ]]> &amp;#268;&quot &#x10C; &lt;p&gt;", "  -- Kućni  ljubimci "}),
            fuzzInput({"Njegoš i Džep, ljubav", "shch yu"}, 1)};
}

std::vector<QByteArray> words() {
    return {fuzzInput({"Kad lišće pada", "kućni ljubimci", "reportaža o filmu, s. f. South Park"}),
            fuzzInput({"Fu\xcc\x88\xc3\x9f"
                       "ball e\xcc\x81",
                       "fussball", "priča za djecu, dječja serija"},
                      2)};
}

} // namespace

std::vector<FuzzTarget> textTargets() {
    return {
        {.name = "text-cleaning",
         .run = cleanTexts,
         .seeds = feedTexts,
         .literals = {"text/cleaning/TitleCleaning.cpp", "text/cleaning/SubtitleCleaning.cpp",
                      "text/cleaning/DescriptionCleaning.cpp"}},
        {.name = "text-reading",
         .run = readTexts,
         .seeds =
             [] {
                 return std::vector<QByteArray>{
                     fuzzInput({"Simone - Stag. 4 Ep. 2 - Il ladro (R)", "S1E2 ║ A ║ Reality, Show ║ US ║ 12",
                                "(D|F) 2017 • S3 E6 • FSK 6\nText.\nOriginaltitel\nA\nRegie: Anna Berg"}),
                     fuzzInput({"ΛΑΜΑ (Β' ΚΥΚΛΟΣ) (Ε)", "Bing II./6.", "Film. Rendezte: A BFőszereplők: C"},
                               1),
                     fuzzInput({"Titanic, film (SAD/1997)", "3. díl", "Text. [S,AD] S6 Ep12/24"}, 2)};
             },
         .literals = {"text/facts/EpisodeNotation.cpp", "text/facts/TitleNotes.cpp",
                      "text/reading/DescriptionReading.cpp", "text/reading/CreditsReading.cpp"}},
        {.name = "markup-text",
         .run = decodeTexts,
         .seeds = markup,
         .literals = {"text/cleaning/MarkupText.cpp", "text/display/Transliteration.cpp"}},
        {.name = "text-words",
         .run = findWords,
         .seeds = words,
         .literals = {"text/categories/ShowClassifierWords.cpp", "text/categories/CategoryMapping.cpp"}},
    };
}

} // namespace guide::fuzz
