#include "fakes/ScriptedServer.h"
#include "platform/archive/Archive.h"
#include "probe/RunProbe.h"
#include "store/ShowCoding.h"

#include <QCborArray>
#include <QFileInfo>
#include <QJsonArray>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using Words = QStringList;

TEST(Probe, PrintsOneObjectPerCommand) {
    const struct {
        Words words;
        const char* expected;
        QByteArray input = {};
    } cases[] = {
        {Words{u"type"_s, u"-hbo.hu.1"_s}, R"({"sourceId": "-hbo.hu.1", "type": 7, "portNetwork": false})"},
        {Words{u"type"_s, u"42"_s}, R"({"sourceId": "42", "type": 0, "portNetwork": true})"},
        {Words{u"zone"_s, u"example.cz"_s}, R"({"zone": "Europe/Prague"})"},
        {Words{u"plan"_s, u"https://feeds.example/a.xml"_s}, R"({"urls": ["https://feeds.example/a.xml"]})"},
        {Words{u"classify"_s, u"--details"_s, u"Film, komedija"_s},
         R"({"categories": 257, "names": ["Movies", "Comedies"]})"},
        {Words{u"match-word"_s, u"film"_s}, R"({"match": false})", "filmovi\n"},
        {Words{u"text"_s, u"decodeMarkup"_s}, R"({"result": "A;"})", "&#165;"},
        {Words{u"text"_s, u"showTitle"_s}, R"({"result": "Dnevnik"})", "DNEVNIK, 1. DIO"},
        {Words{u"text"_s, u"hasProductionNote"_s}, R"({"result": true})", "Film, drama (USA/1999)"},
        {Words{u"text"_s, u"finishSubtitle"_s, u"--recognised"_s},
         R"({"subtitle1": null, "instantDetails1": "Naslov"})", "(Naslov)"},
        {Words{u"text"_s, u"applySubtitleBracket"_s}, R"({"result": "Naslov", "matched": "[film]"})",
         "[film] Naslov"},
        {Words{u"text"_s, u"cleanDescription"_s},
         R"({"result": "Tekst.", "roles": "Marko, Pero", "directedBy": "Ana, Ivo"})",
         "Tekst. Regia - Ana, Regia - Ivo, Marko, Pero"},
        {Words{u"text"_s, u"latin2Cyrillic"_s, u"--language"_s, u"mk"_s}, R"({"result": "Њуjoрк"})",
         "Njujork"},
        {Words{u"text"_s, u"xmltvDate"_s}, R"({"result": "2024-01-01T10:30:00Z"})", "20240101120000 +0130"},
        {Words{u"words"_s, u"bracket"_s}, R"({"categories": 257, "recognised": null})", "[Action, komedija]"},
        {Words{u"words"_s, u"subtitle"_s, u"--title"_s, u"Geo"_s},
         R"({"categories": 4, "recognised": true})"},
        {Words{u"category-text"_s, u"0x1ff01"_s}, R"({"text": "Feature Films"})"},
        {Words{u"object-id"_s, u"000000000000000000000000"_s},
         R"({"hex": "000000000000000000000000", "hash": "9795860139169989765"})"},
        {Words{u"minutes"_s, u"-7"_s}, R"({"normalized": -1})"},
        {Words{u"silent"_s, u"--from"_s, u"00:00"_s, u"--to"_s, u"07:00"_s, u"--at"_s, u"06:59"_s},
         R"({"allowed": false})"},
        {Words{u"time-format"_s, u"h:mm\u202Fa"_s}, R"({"format": "hh:mma"})"},
    };
    for (const auto& each : cases) {
        const Answer answer = probe(each.words, each.input);
        const std::string name = each.words.join(u' ').toStdString();
        EXPECT_EQ(answer.status, 0) << name << answer.errors.toStdString();
        EXPECT_EQ(answer.json, object(each.expected)) << name << ": " << answer.output.toStdString();
    }
}

TEST(Probe, DistinguishesUnusableArgumentsFromFailures) {
    const std::pair<Words, int> cases[] = {
        {{}, 2},
        {{u"types"_s}, 2},
        {{u"type"_s}, 2},
        {{u"type"_s, u"a"_s, u"b"_s}, 2},
        {{u"type"_s, u"a"_s, u"--zones"_s}, 2},
        {{u"minutes"_s, u"soon"_s}, 2},
        {{u"text"_s, u"whisper"_s}, 2},
        {{u"type"_s, u"a"_s, u"--zone"_s, u"Nowhere/Else"_s}, 2},
        {{u"type"_s, u"a"_s, u"--now"_s, u"2026-11-21T10:00:00"_s}, 2},
        {{u"parse"_s, u"--type"_s, u"1"_s, u"--item"_s, u"a,b"_s, u"p"_s}, 2},
        {{u"detail"_s, u"--url"_s, u"https://p.example/f"_s, u"p"_s}, 2},
        {{u"imdb"_s, u"--title"_s, u"Vlak"_s, u"--categories"_s, u"film"_s, u"p"_s}, 2},
        {{u"parse"_s, u"--type"_s, u"1"_s, u"--item"_s, u"a,b,c"_s, u"/nowhere"_s}, 1},
        {{u"type"_s, u"a"_s, u"--hosts"_s, u"/nowhere"_s}, 1},
        {{u"filter"_s, u"/nowhere"_s}, 1},
    };
    for (const auto& [words, status] : cases) {
        const Answer answer = probe(words);
        const std::string name = words.join(u' ').toStdString();
        EXPECT_EQ(answer.status, status) << name;
        EXPECT_TRUE(answer.output.isEmpty()) << name;
        EXPECT_FALSE(answer.errors.isEmpty()) << name;
    }
    EXPECT_EQ(probe({u"plan"_s, u"--help"_s}).status, 0);
}

TEST(Probe, ParsesAFeedForTwoChannels) {
    const ProbeFiles files;
    const QString page = files.write(u"feed.xml"_s, R"(<tv>
<programme start="20261121180000 +0000" stop="20261121185500 +0000" channel="a,b.cz"><title>Zprávy, 3. díl</title></programme>
<programme start="20261121170000 +0000" stop="20261121180000 +0000" channel="a,b.cz"><title>Včera</title></programme>
<programme start="20261121180000 +0000" stop="20261121190000 +0000" channel="c.cz"><title>Jinde</title></programme>
</tv>)");
    const Answer answer = probe({u"parse"_s, u"--now"_s, u"2026-11-21T18:10:00Z"_s, u"--type"_s, u"1"_s,
                                 u"--item"_s, u"58f4ded60befe78cb336a80c,r.CZ.a,b.cz,cs"_s, u"--item"_s,
                                 u"58f4ded60befe78cb336a80d,r.CZ.nobody,cs"_s, page});
    ASSERT_EQ(answer.status, 0) << answer.errors.toStdString();
    const QJsonObject channels = answer.json[u"channels"_s].toObject();
    ASSERT_EQ(channels.keys(), QStringList{u"58f4ded60befe78cb336a80c"_s})
        << "a list without a channel is left out";
    const QJsonArray shows = channels.begin()->toArray();
    ASSERT_EQ(shows.size(), 1);
    const QJsonObject show = shows[0].toObject();
    EXPECT_EQ(show[u"title"_s], u"Zprávy"_s);
    EXPECT_EQ(show[u"instantDescription"_s], u"3. díl"_s);
    EXPECT_EQ(show[u"start"_s], u"2026-11-21T18:00:00Z"_s);
    EXPECT_EQ(show[u"sourceId"_s], u"a,b.cz"_s);
    EXPECT_EQ(show[u"language"_s], u"cs"_s);
    EXPECT_TRUE(show[u"pictures"_s].isNull());
    EXPECT_TRUE(show[u"details"_s].isObject());
}

TEST(Probe, FiltersACatalogueByAvailableIcons) {
    const ProbeFiles files;
    const auto channel = [](const char* location, const char* icon) {
        return QByteArray("<dict><key>Location</key><string>") + location +
               "</string><key>Title</key><string>T</string><key>Language</key><string>cs</string>"
               "<key>Icon</key><string>Czech/" +
               icon + "</string></dict>";
    };
    const QString catalogue = files.write(
        u"Data.plist"_s, "<plist version=\"1.0\"><dict><key>Channels</key><array>" +
                             channel("58f4ded60befe78cb336a801", "nova") +
                             channel("58f4ded60befe78cb336a802", "šlágr") +
                             channel("58f4ded60befe78cb336a803", "kino.1") +
                             channel("58f4ded60befe78cb336a804", "notes") + "</array></dict></plist>");
    const QString icons = QFileInfo(files.write(u"nova.PNG"_s, "")).path(); // the folder of all the files
    files.write(u"šlágr.png"_s.normalized(QString::NormalizationForm_D), "");
    files.write(u"kino.1"_s, "");
    files.write(u"notes.txt"_s, "");
    const auto locations = [](const Answer& answer) {
        QString last;
        for (const auto& row : answer.json[u"channels"_s].toArray()) {
            last += row[u"Location"_s].toString().last(1);
        }
        return last;
    };
    EXPECT_EQ(locations(probe({u"filter"_s, catalogue})), u"1234"_s);
    EXPECT_EQ(locations(probe({u"filter"_s, catalogue, u"--icons"_s, icons})), u"123"_s);
}

TEST(Probe, TellsDamagedArchivesFromWholeOnes) {
    const test::ProbeFiles files;
    const QByteArray values = archivedData(QCborArray{1, 2, 3});
    const QString whole = files.write(u"whole"_s, values);
    const QString list = files.write(u"list"_s, archivedShows({}));
    const QString cut = files.write(u"cut"_s, values.chopped(1));
    const QJsonArray found = probe({u"archives"_s, whole, list, cut}).json[u"archives"_s].toArray();
    EXPECT_EQ(found[0][u"content"_s], u"values"_s);
    EXPECT_EQ(found[0][u"count"_s], 3);
    EXPECT_EQ(found[1][u"content"_s], u"shows"_s);
    EXPECT_TRUE(found[2][u"content"_s].isNull());
}

TEST(ProbeDetail, PrintsTheDetailsOnThePages) {
    const auto page = [](const QString& name) {
        return QStringLiteral(QUELLIN_TEST_DATA "/recorded-details/") + name;
    };
    const Answer answer =
        probe({u"detail"_s, u"--source-id"_s, u"42"_s, u"--url"_s,
               u"https://port.example/f?i_perf_id=99&z=1"_s, u"--language"_s, u"hu"_s, page(u"port.html"_s),
               page(u"port-bottom.html"_s), page(u"port-top.html"_s)});
    EXPECT_EQ(answer.status, 0) << answer.errors.toStdString();
    EXPECT_EQ(answer.json[u"categories"_s], 0);
    EXPECT_EQ(answer.json[u"pictures"_s][0], u"https://media.example/a/217_0.jpg"_s);
    EXPECT_EQ(answer.json[u"details"_s][u"description"_s], u"Egy sorozat."_s);
    EXPECT_EQ(answer.json[u"details"_s][u"trailerURL"_s], u"http://video.example/t/4711.mp4"_s);
}

TEST(ProbeRecorded, ReadsTheArchiveFromTheNetwork) {
    const QByteArray indexPage = R"(<li><a href="/enz/dnevnik/">Dnevnik</a></li>)";
    const QByteArray showPage = "<select id=\"d\"><option value=\"1\">Pon</option>"
                                "<option value=\"2\">Čet &amp; pet</option></select>";
    const QJsonObject expected = object(R"({"recorded": {"Pon": "1", "Čet &amp; pet": "2"}})");
    const ProbeFiles files;
    ScriptedServer server;
    server.serve("/enz/", ScriptedReply::ok(indexPage, {"Content-Type: text/html; charset=utf-8"}));
    server.serve("/enz/dnevnik/", ScriptedReply::ok(showPage, {"Content-Type: text/html; charset=utf-8"}));
    const QString loopback =
        files.write(u"loopback.json"_s, "{\"HRTHost\": \"" + server.url(u""_s).toEncoded() + "\"}");
    const Answer fetched = probe({u"recorded"_s, u"--hosts"_s, loopback, u"--title"_s, u"Dnevnik"_s});
    EXPECT_EQ(fetched.status, 0) << fetched.errors.toStdString();
    EXPECT_EQ(fetched.json, expected) << fetched.output.toStdString();
}

TEST(ProbeIMDb, FindsThePageOfEachSearch) {
    const ProbeFiles files;
    const QString hosts = files.write(u"hosts.json"_s, R"({"IMDbHost": "films.example"})");
    const QString page =
        files.write(u"found.html"_s,
                    R"(<td class="primary_photo"> <a href="/title/tt1/" ><img src="https://x/a._V1_UX32_.jpg">
                            </a> Vlak (TV Series)</tr>)");
    const Answer answer = probe({u"imdb"_s, u"--hosts"_s, hosts, u"--title"_s, u"Vlak & ja"_s,
                                 u"--subtitle"_s, u"Prvi dio"_s, u"--categories"_s, u"0x2"_s, page});
    EXPECT_EQ(answer.status, 0) << answer.errors.toStdString();
    EXPECT_EQ(answer.json, object(R"({"started": true,
             "urls": ["https://films.example/find?ref_=nv_sr_fn&q=Vlak%20&%20ja&s=tt",
                      "https://films.example/find?ref_=nv_sr_fn&q=Prvi%20dio&s=tt"],
             "answers": [{"index": 0, "imdbURL": "https://films.example/title/tt1/",
                          "pictureURL": "https://x/a._V1_.jpg"},
                         {"index": 1, "imdbURL": null, "pictureURL": null}]})"))
        << answer.output.toStdString();
}

} // namespace
} // namespace guide::test
