#include "parsers/xmltv/XMLTVToEntries.h"

#include "parsers/ShowJSON.h"
#include "parsers/xmltv/XMLTVDate.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>
#include <string>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(XMLTVDate, AcceptsOnlyDatesWithAnOffset) {
    const std::pair<const char*, const char*> rows[] = {
        {"20240101120000 +0100", "2024-01-01T11:00:00Z"}, {"20240101120000 Z", "2024-01-01T12:00:00Z"},
        {"20240101120000Z", "2024-01-01T12:00:00Z"},      {"20240101003000 +01", "2023-12-31T23:30:00Z"},
        {"20240101120000 -0330", "2024-01-01T15:30:00Z"}, {"20240101120000 +05:45", "2024-01-01T06:15:00Z"},
        {"20240229235959 +0000", "2024-02-29T23:59:59Z"}, {"19691231235959 Z", "1969-12-31T23:59:59Z"},
    };
    for (const auto& [text, expected] : rows) {
        const auto moment = parseXMLTVDate(text);
        EXPECT_EQ(moment ? isoMoment(*moment).toStdString() : "none", expected) << text;
    }
    for (const char* text :
         {"", "20240101120000", "20240101120000 ", "20240101120000 BST", "20240101120000  +0100",
          "20240101120000\t+0100", "20240101120000 +0100 ", "20240101120000 0100", "20240101120000 +1",
          "20240101120000 +2400", "20240101120000 +0160", "20230229120000 Z", "20241301120000 Z",
          "20240100120000 Z", "20240101240000 Z", "20240101120060 Z", "2024010112000\xC2\xB2 Z"}) {
        EXPECT_FALSE(parseXMLTVDate(text)) << text;
    }
}

const Alphabet kAlphabet;
const Moment kNow = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21} + std::chrono::hours{12};

XMLTVOptions options() {
    return {
        .shows = {.alphabet = kAlphabet, .imageBase = u"https://images.example/images/"_s, .siteHost = {}},
        .now = kNow};
}

using Channels = std::vector<QString>;

std::vector<FeedChannelEntries> read(const std::string& programmes, const Channels& wanted,
                                     const XMLTVOptions& how = options()) {
    XMLTVToEntries reader(QByteArray::fromStdString("<tv>" + programmes + "</tv>"), wanted, how);
    return std::move(reader.entries());
}

std::string time(const std::optional<Moment>& moment) {
    return moment ? isoMoment(*moment).mid(11, 5).toStdString() : "none";
}

/// "channel: title 12:00-13:00, …; …", the channels in the order in which they appear.
std::string summary(const std::vector<FeedChannelEntries>& channels) {
    std::string text;
    for (const FeedChannelEntries& channel : channels) {
        text += (text.empty() ? "" : "; ") + channel.sourceId.toStdString() + ":";
        for (const ExtendedTVEntry& entry : channel.entries) {
            text += " " + entry.basic->identificator()->toStdString() + " " + time(entry.basic->dateTime()) +
                    "-" + time(entry.basic->endDateTime());
        }
    }
    return text;
}

std::string programme(const std::string& attributes, const std::string& content) {
    return "<programme " + attributes + ">" + content + "</programme>";
}

const std::string kStart = "start=\"20261121140000 Z\"";

/// A show of the channel, from 14:00 to 15:00.
std::string show(const std::string& channel, const std::string& title) {
    return programme(kStart + " stop=\"20261121150000 Z\" channel=\"" + channel + "\"",
                     "<title>" + title + "</title>");
}

const std::string kEnded = "start=\"20261121100000 Z\" stop=\"20261121120000 Z\" channel=\"a\"";
const std::string kLater = "start=\"20261121160000 Z\" stop=\"20261121170000 Z\" channel=\"a\"";

TEST(XMLTVToEntries, FiltersAndAssignsShows) {
    const struct {
        const char* name;
        std::string programmes;
        const char* kept;
        Channels wanted = {};
    } rows[] = {
        {"no filter", show("b", "B") + show("a", "A") + show("b", "C"),
         "b: B 14:00-15:00 C 14:00-15:00; a: A 14:00-15:00"},
        {"no channel named", programme("stop=\"20261121150000 Z\"", "<title>N</title>"), ": N none-15:00"},
        {"one wanted", show("b", "B") + show("a", "A"), "a: A 14:00-15:00", Channels{u"a"_s}},
        {"two wanted", show("b", "B") + show("c", "C") + show("a", "A"), "c: C 14:00-15:00; a: A 14:00-15:00",
         Channels{u"a"_s, u"c"_s}},
        {"ends now", programme(kEnded, "<title>E</title>"), ""},
        {"no stop", programme(kStart + " channel=\"a\"", "<title>S</title>"), ""},
        {"a bad stop", programme(kStart + " stop=\"20261121150000\"", "<title>S</title>"), ""},
        {"a bad start",
         programme("start=\"202611\" stop=\"20261121150000 Z\" channel=\"a\"", "<title>S</title>"),
         "a: S none-15:00"},
        {"an hour earlier", show("aPlus1", "P"), "aPlus1: P 13:00-14:00"},
        {"ended after the shift",
         programme("start=\"20261121120000 Z\" stop=\"20261121130000 Z\" channel=\"aPlus1\"",
                   "<title>P</title>"),
         ""},
        {"an unshifted name", show("aplus1", "P"), "aplus1: P 14:00-15:00"},
        {"a second title", show("a", "A</title><title>B"), "a: A 14:00-15:00"},
        {"text after a child", show("a", "A<b>x</b>y"), "a: A 14:00-15:00"},
        {"no title", programme(kLater, "<desc>D</desc>") + show("a", "A"), "a: A 14:00-15:00"},
        {"a title in a programme without a stop",
         programme(kLater, "<desc>D</desc>") + programme("channel=\"b\"", "<title>B</title>"),
         "a: B 16:00-17:00"},
        {"a placeholder drops the next show", show("a", "NEMA INFORMACIJA") + show("b", "B") + show("a", "A"),
         "a: A 14:00-15:00"},
        {"the other placeholder", show("a", "Nema informacija o programu") + show("b", "B"), ""},
        {"a title that only begins like a placeholder", show("a", "NEMA INFORMACIJA 2"),
         "a: Nema Informacija 2 14:00-15:00"},
        {"a placeholder before an ended show",
         show("a", "NEMA INFORMACIJA") + programme(kEnded, "<title>E</title>") + show("b", "B") +
             show("a", "A"),
         "a: A 14:00-15:00"},
        {"a placeholder before an unwanted show",
         show("a", "NEMA INFORMACIJA") + show("b", "B") + show("a", "A"), "a: A 14:00-15:00",
         Channels{u"a"_s}},
        {"a show without a title before an unwanted one",
         programme(kLater, "<desc>D</desc>") + show("b", "B") +
             programme("channel=\"a\"", "<title>A</title>"),
         "", Channels{u"a"_s}},
        {"stops at an error", show("a", "A") + show("a", "B & C") + show("a", "D"), "a: A 14:00-15:00"},
        {"an escaped line end", show("a", "A\\nB"), "a: Ab 14:00-15:00"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(summary(read(row.programmes, row.wanted)), row.kept) << row.name;
    }
}

TEST(XMLTVToEntries, AnalysesTexts) {
    const std::string kIcon = "<icon src=\"http://h/a.png\"/>";
    const struct {
        const char* name;
        /// The title is "A" where none is given.
        std::string content;
        const char* key;
        /// As JSON.
        const char* value;
    } rows[] = {
        {"title", "<title>NOVA SERIJA, 2. dio (R)</title>", "identificator", R"("Nova Serija")"},
        {"tail of the title", "<title>Naslov, 2. dio (R)</title>", "instantDescription", "\"2. dio (R)\""},
        {"repeat by the title", "<title>Naslov (R)</title>", "previouslyShown", "true"},
        {"repeat by an element", "<previously-shown/>", "previouslyShown", "true"},
        {"no repeat", "", "previouslyShown", "false"},
        {"subtitle", "<sub-title>Bb</sub-title>", "subtitle", R"("Bb")"},
        {"subtitle with a number ahead", "<sub-title>2. B</sub-title>", "subtitle", "null"},
        {"pieces of a subtitle", "<sub-title>Bb&amp;2</sub-title>", "subtitle", R"("Bb&")"},
        {"bracketed subtitle", "<sub-title>[film] Bb</sub-title>", "subtitle", R"("Bb")"},
        {"brackets by line", "<sub-title>Bb [film]\n[sport]</sub-title>", "categories", "129"},
        {"category in the subtitle", "<sub-title>komedija</sub-title>", "instantDetails", R"("komedija")"},
        {"its subtitle", "<sub-title>komedija</sub-title>", "subtitle", "null"},
        {"its categories", "<sub-title>komedija</sub-title>", "categories", "257"},
        {"description", "<desc>a   b &amp;  c</desc>", "description", R"("a b & c.")"},
        {"two descriptions", "<desc>a.</desc><desc>b.</desc>", "description", R"("a.b.")"},
        {"cast in the description", "<desc>Tekst. Uloge: B, C\nRedatelj: D</desc>", "roles", R"("B, C")"},
        {"a description alone makes no film", "<desc>a: b</desc>", "categories", "0"},
        {"a cast label that stays makes a film", "<desc>a Uloge: </desc>", "categories", "1"},
        {"cast", "<actor>B</actor><actor>C</actor>", "roles", R"("B, C")"},
        {"cast makes a film", "<actor>B</actor>", "categories", "1"},
        {"director", "<director>B</director><director>C</director>", "directedBy", R"("B, C")"},
        {"category attribute", "<category desc=\"Comedy\"/>", "categories", "257"},
        {"category texts join", "<category>spo</category><category>rt</category>", "categories", "128"},
        {"category of the previous programme", "", "categories", "0"},
        {"episodes", "<episode-num>1</episode-num><category>film</category>", "categories", "2"},
        {"series id", "<seriesid>1</seriesid>", "categories", "2"},
        {"Romanian series", "<title>A Sezonul 2</title>", "categories", "2"},
        {"production note", "<title>A, film (SAD/VB, 1999)</title>", "categories", "2"},
        {"Documentary channel words", "<title>Discovery</title>", "categories", "4"},
        {"icon", kIcon, "pictures", R"(["http://h/a.png"])"},
        {"icon without an address", kIcon + "<icon src=\"\"/>", "pictures", "null"},
        {"an invalid icon address", kIcon + "<icon src=\"http://h:x/\"/>", "pictures", "null"},
        {"image", "<image>a/b.png</image>", "pictures", R"(["https://images.example/images/a/b.png"])"},
        {"image, encoded", "<image>š.png</image>", "pictures",
         R"(["https://images.example/images/%C5%A1.png"])"},
    };
    const std::string before = programme(kLater, "<title>Before</title><category>film</category>");
    XMLTVOptions how = options();
    how.useImage = true;
    for (const auto& row : rows) {
        const char* title = row.content.starts_with("<title>") ? "" : "<title>A</title>";
        std::vector<FeedChannelEntries> channels =
            read(before + programme(kLater, title + row.content), {}, how);
        ASSERT_EQ(channels.size(), 1U) << row.name;
        ASSERT_EQ(channels[0].entries.size(), 2U) << row.name;
        const QJsonObject json = showJSON(ShowItem(std::move(channels[0].entries[1])));
        const QString key = QString::fromLatin1(row.key);
        const QJsonValue value = json.contains(key) ? json[key] : json[u"details"_s][key];
        const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        EXPECT_EQ(text.sliced(1, text.size() - 2).toStdString(), row.value) << row.name;
    }
}

TEST(XMLTVToEntries, ImagesNeedTheOptionAndABase) {
    const std::string programmes = show("a", "A</title><image>b.png</image><title>");
    EXPECT_TRUE(read(programmes, {})[0].entries[0].pictures.isEmpty());
    XMLTVOptions withoutBase = options();
    withoutBase.useImage = true;
    withoutBase.shows.imageBase.clear();
    EXPECT_TRUE(read(programmes, {}, withoutBase)[0].entries[0].pictures.isEmpty());
}

} // namespace
} // namespace guide
