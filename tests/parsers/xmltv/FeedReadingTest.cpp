#include "parsers/ShowJSON.h"
#include "parsers/xmltv/FeedListEnds.h"
#include "parsers/xmltv/XMLTVToEntries.h"
#include "store/ScheduleQueries.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

const Alphabet kAlphabet;
constexpr Moment kNow = std::chrono::sys_days{std::chrono::year{2026} / 11 / 21} + std::chrono::hours{8};

class Text final : public TextSource {
  public:
    explicit Text(QByteArray text)
        : m_text(std::move(text)) {}
    std::size_t read(std::span<char> room) override {
        const auto count = std::min<qsizetype>(static_cast<qsizetype>(room.size()), m_text.size() - m_at);
        std::copy_n(m_text.constData() + m_at, count, room.data());
        m_at += count;
        return static_cast<std::size_t>(count);
    }

  private:
    QByteArray m_text;
    qsizetype m_at = 0;
};

FeedChannelEntries read(const QByteArray& programmes, const FeedReading& reading, const QString& language,
                        const QString& channel = u"a"_s) {
    Text text("<tv>" + programmes + "</tv>");
    ZoneClock clock(QTimeZone("Europe/Prague"));
    XMLTVToEntries reader(
        text, {channel},
        {.shows = {.alphabet = kAlphabet, .locale = QLocale(u"cs_CZ"_s), .reading = reading},
         .now = kNow,
         .withoutOffset = &clock,
         .languages = {{"a", language}}});
    return reader.entries().empty() ? FeedChannelEntries() : std::move(reader.entries().front());
}

QByteArray at(int hour, const QByteArray& content) {
    const QByteArray day = "20261121";
    const auto time = [&day](int each) { return day + QByteArray::number(each) + "0000 Z"; };
    return "<programme channel=\"a\" start=\"" + time(hour) + "\" stop=\"" + time(hour + 1) + "\">" +
           content + "</programme>";
}

/// The texts of a show that are set.
QString summary(const ExtendedTVEntry& show) {
    const TVEntry& entry = *show.basic;
    QStringList parts{entry.identificator().value_or(QString())};
    const std::pair<const char*, std::optional<QString>> texts[] = {{"sub", entry.subtitle1()},
                                                                    {"details", entry.instantDetails1()},
                                                                    {"kind", entry.instantDescription1()},
                                                                    {"desc", show.extra->description},
                                                                    {"roles", show.extra->roles},
                                                                    {"by", show.extra->directedBy}};
    for (const auto& [name, text] : texts) {
        if (text && !text->isEmpty()) {
            parts << QLatin1StringView(name) + u'=' + *text;
        }
    }
    for (const QByteArray& picture : show.pictures.encoded()) {
        parts << u"picture="_s + QString::fromLatin1(picture);
    }
    const QJsonObject facts = factsJSON(ShowItem(std::make_shared<const TVEntry>(entry)));
    for (auto fact = facts.begin(); fact != facts.end(); ++fact) {
        if (!fact->isNull()) {
            parts << fact.key() + u'=' +
                         QString::fromUtf8(QJsonDocument(QJsonArray{*fact}).toJson(QJsonDocument::Compact))
                             .remove(u'"');
        }
    }
    return parts.join(u" | "_s);
}

TEST(FeedReading, EveryMemberChangesOneThing) {
    struct Row {
        const char* what;
        bool FeedReading::* member;
        QByteArray programmes;
        QString with;
        QString without;
    };
    const Row rows[] = {
        {"a malformed programme takes nobody with it", &FeedReading::startsEntriesFresh,
         at(10, "<title>A & B</title>") + at(11, "<title>C</title>"), u"C"_s, u""_s},
        {"placeholders of other languages", &FeedReading::knowsPlaceholders,
         at(10, "<title>Vysílání neposkytnuto</title>") + at(11, "<title>A</title>"), u"A"_s,
         u"Vysílání neposkytnuto; A"_s},
        {"a show without an end", &FeedReading::repairsEnds,
         R"(<programme channel="a" start="20261121100000 Z"><title>A</title></programme>)", u"A"_s, u""_s},
        {"a title with a comma", &FeedReading::keepsTitlesWhole, at(10, "<title>Good Bye, Lenin!</title>"),
         u"Good Bye, Lenin!"_s, u"Good Bye | kind=Lenin!"_s},
        {"acronyms", &FeedReading::keepsAcronyms, at(10, "<title>NCIS NEW ORLEANS</title>"),
         u"NCIS New Orleans"_s, u"NCIS NEW ORLEANS"_s},
        {"blanks and full stops", &FeedReading::tidiesTexts,
         at(10, "<title>A</title><desc>Was  geschieht\nhier? Ja! </desc>"),
         u"A | desc=Was geschieht hier? Ja!"_s, u"A | desc=Was  geschieht hier? Ja! ."_s},
        {"a subtitle with a number", &FeedReading::keepsNumberedSubtitles,
         at(10, "<title>A</title><sub-title>S1E2 ║ 100 Meter ║ Film, Drama</sub-title>"),
         u"A | sub=100 Meter | details=Film, Drama | episode=[{episode:2,season:1}]"_s,
         u"A | sub=S1E2 ║ 100 Meter ║ Film, Drama"_s},
        {"credits", &FeedReading::knowsCreditLabels,
         at(10, "<title>A</title><desc>Text. Režie: Jan Novák. Hrají: P. Malá, J. Dub a další.</desc>"),
         u"A | desc=Text. | roles=P. Malá, J. Dub | by=Jan Novák"_s,
         u"A | desc=Text. Režie: Jan Novák. Hrají: P. Malá, J. Dub a další."_s},
        {"addresses of pictures", &FeedReading::onlyWebPictures,
         at(10, R"(<title>A</title><icon src="file:///etc/passwd"/>)"), u"A"_s,
         u"A | picture=file:///etc/passwd"_s},
        {"facts", &FeedReading::readsFacts, at(10, "<title>A</title><date>1999</date>"), u"A | year=[1999]"_s,
         u"A"_s},
    };
    for (const Row& row : rows) {
        for (const bool isOn : {true, false}) {
            FeedReading reading = ownReading();
            reading.*row.member = isOn;
            QStringList shows;
            for (const ExtendedTVEntry& show : read(row.programmes, reading, u"cs"_s).entries) {
                shows << summary(show);
            }
            EXPECT_EQ(shows.join(u"; "_s), isOn ? row.with : row.without) << row.what;
        }
    }
    FeedReading reading = ownReading();
    const QByteArray both =
        at(10, "<title>A</title><category>Film</category><actor>B</actor><category>Krimi</category>");
    EXPECT_NE(read(both, reading, u"cs"_s).entries.front().categories, TVListingsCategory(0));
    reading.believesGenres = false;
    EXPECT_NE(*read(both, reading, u"cs"_s).entries.front().categories & TVListingsCategoryMovies, 0U);
}

TEST(FeedReading, TimesOfAChannelAnHourLaterAreKept) {
    const QByteArray programme =
        at(10, "<title>A</title>").replace("channel=\"a\"", "channel=\"RaiPlus1.it\"");
    FeedReading reading = ownReading();
    for (const bool keeps : {true, false}) {
        reading.keepsTimes = keeps;
        const FeedChannelEntries channel = read(programme, reading, u"it"_s, u"RaiPlus1.it"_s);
        ASSERT_EQ(channel.entries.size(), 1U);
        EXPECT_EQ(*channel.entries.front().basic->dateTime(),
                  kNow + std::chrono::hours(2) - std::chrono::hours(keeps ? 0 : 1));
    }
}

TEST(FeedReading, FactsComeFromElements) {
    const std::tuple<const char*, const char*> rows[] = {
        {R"(<episode-num system="xmltv_ns"> 1 . 4/10 . 0/2 </episode-num>)",
         "episode=[{episode:5,episodes:10,part:1,parts:2,season:2}]"},
        {R"(<episode-num system="xmltv_ns">.2.</episode-num>)", "episode=[{episode:3}]"},
        {R"(<episode-num system="xmltv_ns">2147483647.2/2147483647.0</episode-num>)",
         "episode=[{episode:3}]"},
        {R"(<episode-num system="onscreen">S01E02</episode-num>)", "episode=[{episode:2,season:1}]"},
        {"<episode-num>3.4.</episode-num>", "episode=[{episode:5,season:4}]"},
        {R"(<episode-num system="onscreen">E12</episode-num><episode-num system="dd_progid">EP1</episode-num>)",
         "episode=[{episode:12}]"},
        {R"(<episode-num system="onscreen">S0E0</episode-num>)", ""},
        {R"(<episode-num system="onscreen">S999 E3</episode-num>)", "episode=[{episode:3}]"},
        {"<date>20110504</date><country>D|F</country>", "countries=[[D,F]] | year=[2011]"},
        {"<rating system=\"FSK\"><value>12</value><icon src=\"http://h/i.png\"/></rating>", "ageRating=[12]"},
        {"<star-rating><value>3.5/5</value></star-rating>", "starRating=[{most:5,value:3.5}]"},
        {"<star-rating><value>9/5</value></star-rating>", ""},
        {"<previously-shown/>", "newness=[repeat]"},
        {"<premiere/>", "newness=[new]"},
        {"<new/><previously-shown/>", ""},
        {"<credits><actor>A B als </actor><actor>Self - C, "
         "D<image>x</image></actor><actor>Altri</actor></credits>",
         "roles=A B, Self - C, D"},
        {"<premiere/><previously-shown channel=\"b\"/>", "newness=[new]"},
        {"<title lang=\"en\">Original</title>", "originalTitle=[Original]"},
        {"<title lang=\"en\">T</title>", ""},
        {"<desc>Text. Originaltitel: Magnum, P.I.</desc>", "desc=Text. | originalTitle=[Magnum, P.I.]"},
        {"<desc>Text. Originaltitel: Der Fall. Mehr.</desc>", "desc=Text. Mehr. | originalTitle=[Der Fall]"},
        {"<desc>(USA) 2017 • S1 E2 • FSK 12\nText.</desc>",
         "desc=Text. | ageRating=[12] | countries=[[USA]] | episode=[{episode:2,season:1}] | year=[2017]"},
        {"<desc>Saison:2 - Episode:5 - Text</desc>", "desc=Text. | episode=[{episode:5,season:2}]"},
        {"<desc>Text. [S,AD] S6 Ep12</desc>", "desc=Text. | episode=[{episode:12,season:6}]"},
    };
    for (const auto& [elements, expected] : rows) {
        const FeedChannelEntries channel =
            read(at(10, QByteArray("<title lang=\"cs\">T</title>") + elements), ownReading(), u"cs"_s);
        ASSERT_EQ(channel.entries.size(), 1U) << elements;
        const QString tail = *expected == '\0' ? QString() : u" | "_s + QString::fromUtf8(expected);
        EXPECT_EQ(summary(channel.entries.front()), u"T"_s + tail) << elements;
        EXPECT_TRUE(channel.entries.front().pictures.isEmpty()) << elements;
    }
}

TEST(FeedReading, RulesForPremieresLeaveOutNothingButReplays) {
    const std::pair<QByteArray, Newness> rows[] = {
        {"<title>A</title>", Newness::Unknown},
        {"<title>A</title><new/>", Newness::New},
        {"<title>A</title><premiere/>", Newness::New},
        {"<title>A</title><new/><previously-shown/>", Newness::Unknown},
        {"<title>A (R)</title><new/>", Newness::Unknown},
        {"<title>A</title><previously-shown/>", Newness::Repeat},
        {"<title>A (R)</title>", Newness::Repeat},
    };
    for (const auto& [elements, newness] : rows) {
        const FeedChannelEntries channel = read(at(10, elements), ownReading(), u"cs"_s);
        ASSERT_EQ(channel.entries.size(), 1U) << elements.constData();
        const auto& facts = channel.entries.front().basic->facts();
        EXPECT_EQ(facts ? facts->newness : Newness::Unknown, newness) << elements.constData();
        const auto shows = std::make_shared<const ShowItems>(ShowItems{ShowItem(channel.entries.front())});
        const AllShows all({std::make_shared<const ChannelList>(shows)}, Moment::min());
        EXPECT_EQ(isBroadcast(all, u"A"_s, false, kNow), newness != Newness::Repeat) << elements.constData();
    }
}

TEST(FeedReading, TitleAndSubtitleDoNotRepeatEachOther) {
    for (const auto& [title, subtitle] :
         {std::pair("A: B", "B"), std::pair("A", "A - B"), std::pair("A - B", "b")}) {
        const QByteArray texts =
            QByteArray("<title>") + title + "</title><sub-title>" + subtitle + "</sub-title>";
        const FeedChannelEntries channel = read(at(10, texts), ownReading(), u"it"_s);
        EXPECT_EQ(summary(channel.entries.front()).toLower(), u"a | sub=b"_s) << title;
    }
    const FeedChannelEntries live =
        read(at(10, "<title>LIVE: Inter - Milan</title><sub-title>Inter - Milan</sub-title>"), ownReading(),
             u"it"_s);
    EXPECT_TRUE(live.entries.front().basic->title()->endsWith(u"Inter - Milan"));
}

TEST(FeedReading, EndsAreRepairedOncePerList) {
    const auto show = [](const char* start, const char* stop, const char* title) {
        const QByteArray end =
            *stop == '\0' ? QByteArray() : QByteArray(" stop=\"20261121") + stop + "00 Z\"";
        return QByteArray("<programme channel=\"a\" start=\"20261121") + start + "00 Z\"" + end + "><title>" +
               title + "</title></programme>";
    };
    const std::tuple<const char*, QByteArray, const char*> rows[] = {
        {"missing", show("0900", "", "A") + show("1000", "1100", "B"), "A 09:00-10:00 B 10:00-11:00"},
        {"before its start", show("0900", "0800", "A") + show("1000", "1100", "B"),
         "A 09:00-10:00 B 10:00-11:00"},
        {"the last one", show("0900", "", "A"), "A 09:00-10:00"},
        {"a gap behind it", show("0900", "", "A") + show("0920", "1000", "Nincs információ"),
         "A 09:00-09:20"},
        {"too late", show("0100", "2300", "Ghost") + show("0900", "1000", "B"),
         "Ghost 01:00-09:00 B 09:00-10:00"},
        {"too late, and what is between is over",
         show("0100", "2300", "Ghost") + show("0200", "0300", "B") + show("0900", "1000", "C"),
         "Ghost 01:00-02:00 C 09:00-10:00"},
        {"long, with nothing between", show("0100", "2300", "Night"), "Night 01:00-23:00"},
        {"the richer one", show("0900", "1000", "A") + show("0900", "0930", "A longer title"),
         "A longer title 09:00-09:30"},
        {"listed twice", show("0900", "0930", "A") + show("0900", "1000", "A"), "A 09:00-10:00"},
        {"nobody ends before its start, unsorted", show("1000", "", "B") + show("0900", "", "A"),
         "A 09:00-10:00 B 10:00-11:00"},
    };
    for (const auto& [what, programmes, expected] : rows) {
        FeedChannelEntries channel = read(programmes, ownReading(), u"hu"_s);
        repairEnds(channel);
        QStringList list;
        for (const ExtendedTVEntry& entry : channel.entries) {
            list << *entry.basic->identificator() + u' ' + isoMoment(*entry.basic->dateTime()).mid(11, 5) +
                        u'-' + isoMoment(*entry.basic->endDateTime()).mid(11, 5);
        }
        EXPECT_EQ(list.join(u' '), QString::fromUtf8(expected)) << what;
    }
}

TEST(FeedReading, ALoneCarriageReturnIsALineEndInBothReadings) {
    const std::pair<QByteArray, const char*> rows[] = {
        {"a\rb", "desc=a b."},
        {"a\r\nb", "desc=a b."},
        {"a.\rb", "desc=a.\nb."},
        {QByteArray(300'000, 'x') + "\xc4\x8d\r\xc4\x8d", "\xc4\x8d \xc4\x8d."},
    };
    for (const auto& [text, expected] : rows) {
        for (const FeedReading& reading : {catalogueReading(), ownReading()}) {
            const FeedChannelEntries channel =
                read(at(10, "<title>T</title><desc>" + text + "</desc>"), reading, u"cs"_s);
            ASSERT_EQ(channel.entries.size(), 1U);
            EXPECT_TRUE(summary(channel.entries.front()).endsWith(QString::fromUtf8(expected)))
                << text.right(8).toStdString();
        }
    }
}

TEST(FeedReading, TimesWithoutAnOffsetAreThoseOfTheZone) {
    for (const auto& [start, expected] : {std::pair("20260721120000", "2026-07-21T10:00:00Z"),
                                          std::pair("20261121120000", "2026-11-21T11:00:00Z"),
                                          std::pair("20261121120000 +0000", "2026-11-21T12:00:00Z")}) {
        ZoneClock clock(QTimeZone("Europe/Prague"));
        EXPECT_EQ(isoMoment(*parseXMLTVDate(start, &clock)).toStdString(), expected);
    }
}

} // namespace
} // namespace guide
