#include "demo/feeds/XMLTVWriter.h"

#include "demo/Texts.h"
#include "demo/schedule/ScheduleGenerator.h"
#include "parsers/xmltv/XMLTVToEntries.h"
#include "platform/encoding/CharacterSets.h"
#include "text/categories/TVListingsCategory.h"

#include <gtest/gtest.h>
#include <map>

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

struct Style {
    const char* name;
    FeedStyle style;
    QStringView instantDescription;
    TVListingsCategory categories;
};

void PrintTo(const Style& style, std::ostream* out) {
    *out << style.name;
}

class EveryStyle : public testing::TestWithParam<Style> {
  protected:
    static QByteArray document(const std::vector<FeedChannel>& channels) {
        const FeedStyle& style = GetParam().style;
        QByteArray bytes = xmltvDocument(channels, style);
        return style.cyrillicBytes ? utf8FromCharacterSet(bytes, u"windows-1251"_s).value_or(QByteArray())
                                   : bytes;
    }
};

TEST_P(EveryStyle, WritesEveryFieldThatTheReaderKnows) {
    const auto entries = read(document({{u"a&'\"<b"_s, u"A & B"_s, "Europe/Prague", {kAwkward}}}));
    ASSERT_EQ(entries.size(), 1U);
    const TVEntry& entry = *entries[0].basic;
    EXPECT_EQ(entry.sourceId(), u"a&'\"<b"_s);
    EXPECT_EQ(entry.dateTime(), kAwkward.start);
    EXPECT_EQ(entry.endDateTime(), kAwkward.stop);
    EXPECT_EQ(entry.identificator(), kAwkward.title);
    EXPECT_EQ(entry.subtitle1(), kAwkward.subtitle);
    EXPECT_EQ(entry.instantDescription1().value_or(QString()), GetParam().instantDescription.toString());
    EXPECT_TRUE(entry.previouslyShown());
    EXPECT_EQ(entries[0].extra->description, kAwkward.description);
    EXPECT_EQ(entries[0].extra->directedBy, kAwkward.director);
    EXPECT_EQ(entries[0].extra->roles, kAwkward.actors.join(u", "_s));
    EXPECT_EQ(entries[0].categories.value_or(0), GetParam().categories);
}

TEST_P(EveryStyle, KeepsEveryTitleAndTime) {
    for (const DemoChannel& channel : demoChannels()) {
        const auto programmes = ScheduleGenerator(sourceTexts()).schedule(channel, QDate(2026, 11, 20), 2);
        const auto entries = read(document({{channel.feedId, channel.title, channel.zone, programmes}}));
        ASSERT_EQ(entries.size(), programmes.size()) << channel.key.toStdString();
        for (std::size_t i = 0; i < entries.size(); ++i) {
            EXPECT_EQ(entries[i].basic->identificator().value_or(QString()).toStdString(),
                      programmes[i].title.toStdString());
            EXPECT_EQ(entries[i].basic->dateTime(), programmes[i].start);
            EXPECT_EQ(entries[i].basic->previouslyShown(), programmes[i].repeat);
        }
    }
}

using Form = FeedStyle::Form;

INSTANTIATE_TEST_SUITE_P(
    All, EveryStyle,
    testing::Values(
        Style{"Bracketed", {.form = Form::Bracketed}, u"12. díl (R)", TVListingsCategorySeries},
        Style{"BracketedUTC",
              {.form = Form::Bracketed, .utc = true, .tightZone = true},
              u"12. díl (R)",
              TVListingsCategorySeries},
        Style{"Packed", {.form = Form::Packed}, u"12. díl", TVListingsCategorySeries},
        Style{"Attributes", {.form = Form::Attributes, .singleQuotes = true}, u"", TVListingsCategorySeries},
        Style{"CDATA", {.form = Form::Attributes, .cdata = true}, u"", TVListingsCategorySeries},
        Style{
            "Windows1251", {.form = Form::Attributes, .cyrillicBytes = true}, u"", TVListingsCategorySeries}),
    [](const auto& row) { return std::string(row.param.name); });

struct TopicRow {
    Topic topic;
    TVListingsCategory wanted;
};

// Category bits that a topic's words must yield; other bits may be set as well.
TEST(TopicWords, YieldTheRightCategories) {
    const std::vector<TopicRow> rows = {
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
        for (const TopicRow& row : rows) {
            Programme programme = kAwkward;
            programme.topic = row.topic;
            programme.language = language;
            programme.subtitle.clear();
            programme.actors.clear();
            programme.season = 0;
            programme.episode = 0;
            const auto entries = read(xmltvDocument({{u"c"_s, u"C"_s, "Europe/Prague", {programme}}}, {}));
            ASSERT_EQ(entries.size(), 1U);
            EXPECT_EQ(entries[0].categories.value_or(0) & row.wanted, row.wanted)
                << language.toStdString() << ' ' << int(row.topic);
        }
    }
}

} // namespace

} // namespace guide
