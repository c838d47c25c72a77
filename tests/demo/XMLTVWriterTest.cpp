#include "demo/feeds/XMLTVWriter.h"

#include "demo/Texts.h"
#include "parsers/xmltv/XMLTVToEntries.h"
#include "platform/encoding/CharacterSets.h"
#include "text/categories/TVListingsCategory.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

constexpr Moment kLongAgo{};

std::vector<ExtendedTVEntry> read(const QByteArray& document) {
    const Alphabet alphabet;
    XMLTVToEntries reader(document, {}, {.shows = {.alphabet = alphabet}, .now = kLongAgo});
    return reader.entries().empty() ? std::vector<ExtendedTVEntry>()
                                    : std::move(reader.entries().front().entries);
}

const Programme kAwkward{.start = Moment(std::chrono::hours(500'000)),
                         .stop = Moment(std::chrono::hours(500'001)),
                         .topic = Topic::ComedySeries,
                         .language = u"cs"_s,
                         .title = u"Knot & \"Sova's\" <Kůň>"_s,
                         .subtitle = u"O'Žluťoučkém"_s,
                         .description = u"Jeden & <druhý> \"třetí\"."_s,
                         .season = 2,
                         .episode = 12,
                         .repeat = true,
                         .director = u"Růžena & syn"_s,
                         .actors = {u"Čeněk Šípek"_s, u"Běla Žemličková"_s},
                         .year = 1999,
                         .country = u"Česko"_s};

using Form = FeedStyle::Form;

const struct Style {
    const char* name;
    FeedStyle style;
    QString instantDescription;
} kStyles[] = {
    {"bracketed", {.form = Form::Bracketed}, u"12. díl (R)"_s},
    {"bracketed, UTC", {.form = Form::Bracketed, .utc = true, .tightZone = true}, u"12. díl (R)"_s},
    {"packed", {.form = Form::Packed}, u"12. díl"_s},
    {"attributes", {.form = Form::Attributes, .singleQuotes = true}, u""_s},
    {"CDATA", {.form = Form::Attributes, .cdata = true}, u""_s},
    {"Windows-1251", {.form = Form::Attributes, .cyrillicBytes = true}, u""_s},
};

QByteArray document(const WrittenChannel& channel, const FeedStyle& style) {
    const QByteArray bytes = xmltvDocument({channel}, style);
    return style.cyrillicBytes ? utf8FromCharacterSet(bytes, u"windows-1251"_s).value_or("") : bytes;
}

TEST(XMLTVWriter, WritesEveryFieldThatTheReaderKnows) {
    for (const Style& each : kStyles) {
        SCOPED_TRACE(each.name);
        const auto entries =
            read(document({u"a&'\"<b"_s, u"A & B"_s, "Europe/Prague", {kAwkward}}, each.style));
        ASSERT_EQ(entries.size(), 1U);
        const TVEntry& entry = *entries[0].basic;
        EXPECT_EQ(entry.sourceId(), u"a&'\"<b"_s);
        EXPECT_EQ(entry.dateTime(), kAwkward.start);
        EXPECT_EQ(entry.endDateTime(), kAwkward.stop);
        EXPECT_EQ(entry.identificator(), kAwkward.title);
        EXPECT_EQ(entry.subtitle1(), kAwkward.subtitle);
        EXPECT_EQ(entry.instantDescription1().value_or(QString()), each.instantDescription);
        EXPECT_TRUE(entry.previouslyShown());
        EXPECT_EQ(entries[0].extra->description, kAwkward.description);
        EXPECT_EQ(entries[0].extra->directedBy, kAwkward.director);
        EXPECT_EQ(entries[0].extra->roles, kAwkward.actors.join(u", "_s));
        EXPECT_EQ(entries[0].categories, TVListingsCategorySeries);
    }
}

// Category bits that a topic's words must yield; other bits may be set as well.
TEST(TopicWords, YieldTheRightCategories) {
    const std::pair<Topic, TVListingsCategory> rows[] = {
        {Topic::Comedy, TVListingsCategoryMovies | TVListingsCategoryComedies},
        {Topic::Drama, TVListingsCategoryMovies | TVListingsCategoryDramas},
        {Topic::Crime, TVListingsCategoryMovies | TVListingsCategoryCrime},
        {Topic::Thriller, TVListingsCategoryMovies | TVListingsCategoryThrillers},
        {Topic::ScienceFiction, TVListingsCategoryMovies | TVListingsCategorySF},
        {Topic::Fantasy, TVListingsCategoryMovies | TVListingsCategoryFantasy},
        {Topic::Horror, TVListingsCategoryMovies | TVListingsCategoryHorrors},
        {Topic::Western, TVListingsCategoryMovies | TVListingsCategoryWesterns},
        {Topic::Adventure, TVListingsCategoryMovies | TVListingsCategoryAdventure},
        {Topic::Romance, TVListingsCategoryMovies},
        {Topic::Series, TVListingsCategorySeries},
        {Topic::CrimeSeries, TVListingsCategorySeries | TVListingsCategoryCrime},
        {Topic::ComedySeries, TVListingsCategorySeries},
        {Topic::Documentary, TVListingsCategoryDocumentaries},
        {Topic::Children, TVListingsCategoryForChildren},
        {Topic::News, TVListingsCategoryNews},
        {Topic::Weather, TVListingsCategoryNews},
        {Topic::Entertainment, TVListingsCategoryEntertainment},
        {Topic::Quiz, TVListingsCategoryEntertainment},
        {Topic::Magazine, TVListingsCategoryEntertainment},
        {Topic::Music, TVListingsCategoryMusic},
        {Topic::Sports, TVListingsCategorySports},
    };
    for (const QString& language : {u"cs"_s, u"sk"_s, u"fr"_s}) {
        for (const auto& [topic, wanted] : rows) {
            Programme programme = kAwkward;
            programme.topic = topic;
            programme.language = language;
            programme.subtitle.clear();
            programme.actors.clear();
            programme.season = 0;
            programme.episode = 0;
            const auto entries = read(xmltvDocument({{u"c"_s, u"C"_s, "Europe/Prague", {programme}}}, {}));
            ASSERT_EQ(entries.size(), 1U);
            EXPECT_EQ(entries[0].categories.value_or(0) & wanted, wanted)
                << language.toStdString() << ' ' << int(topic);
        }
    }
}

} // namespace
} // namespace guide
