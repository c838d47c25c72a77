#include "fakes/ScriptedServer.h"
#include "probe/RunProbe.h"

#include <gtest/gtest.h>

namespace guide::test {
namespace {

QString recordedPage(const QString& name) {
    return QStringLiteral(QUELLIN_TEST_DATA "/recorded-details/") + name;
}

TEST(ProbeDetail, PrintsTheDetailsOnThePages) {
    const ProbeFiles files;
    const QString bottom = files.write(
        u"bottom.html"_s,
        R"("/pls/me/media.popup_top?i_area_id=17&amp;i_object_id=4711&amp;i_is_picture=2&amp;i_n=3")");
    const QString top =
        files.write(u"top.html"_s, R"(baseUrl:"http:\/\/video.example\/",hd_available:true,hd_url:"4711.mp4"
                          <img class="object_picture" src="/pic/4711_3.jpg">)");
    const struct {
        const char* name;
        QStringList words;
        const char* expected;
    } cases[] = {
        {"a page that leads to two more",
         QStringList{u"--source-id"_s, u"10000"_s, u"--url"_s, u"https://p.example/f?i_perf_id=9"_s,
                     u"--language"_s, u"hu"_s, recordedPage(u"port.html"_s), bottom, top},
         R"({"categories": 0, "pictures": ["https://p.example/pic/4711_0.jpg"],
             "details": {"description": "Egy sorozat.", "episodeDescription": "Sötétben & esőben.",
                         "details": "magyar krimi, 1999", "directedBy": "Kovács Éva\nNagy Pál",
                         "roles": "Tóth Ödön (Ferenc)\nKis Anna\n",
                         "imdbURL": "http://www.imdb.com/title/tt0095016/?x=1&y=2",
                         "trailerURL": "http://video.example/4711.mp4"}})"},
        {"an empty page",
         {u"--source-id"_s, u"42"_s, u"--url"_s, u"https://p.example/f"_s, files.write(u"empty"_s, {})},
         R"({"show": null})"},
    };
    for (const auto& each : cases) {
        const Answer answer = probe(QStringList{u"detail"_s} + each.words);
        EXPECT_EQ(answer.status, 0) << each.name << answer.errors.toStdString();
        EXPECT_EQ(answer.json, object(each.expected)) << each.name << ": " << answer.output.toStdString();
    }
    EXPECT_EQ(probe({u"detail"_s, u"--url"_s, u"https://p.example/f"_s, recordedPage(u"hbo.html"_s)}).status,
              2);
}

TEST(ProbeRecorded, ReadsTheArchiveFromFilesAndFromTheNetwork) {
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
    const struct {
        const char* name;
        QStringList words;
        const char* expected;
    } cases[] = {
        {"a series with a subtitle",
         QStringList{u"--title"_s, u"Vlak & ja"_s, u"--subtitle"_s, u"Prvi dio"_s, u"--categories"_s,
                     u"0x2"_s, page},
         R"({"started": true,
             "urls": ["https://films.example/find?ref_=nv_sr_fn&q=Vlak%20&%20ja&s=tt",
                      "https://films.example/find?ref_=nv_sr_fn&q=Prvi%20dio&s=tt"],
             "answers": [{"index": 0, "imdbURL": "https://films.example/title/tt1/",
                          "pictureURL": "https://x/a._V1_.jpg"},
                         {"index": 1, "imdbURL": null, "pictureURL": null}]})"},
        {"no film", QStringList{u"--title"_s, u"Vijesti"_s, u"--categories"_s, u"16"_s, page},
         R"({"started": false, "urls": [], "answers": []})"},
    };
    for (const auto& each : cases) {
        const Answer answer = probe(QStringList{u"imdb"_s, u"--hosts"_s, hosts} + each.words);
        EXPECT_EQ(answer.status, 0) << each.name << answer.errors.toStdString();
        EXPECT_EQ(answer.json, object(each.expected)) << each.name << ": " << answer.output.toStdString();
    }
    EXPECT_EQ(probe({u"imdb"_s, u"--title"_s, u"Vlak"_s, u"--categories"_s, u"film"_s, page}).status, 2);
}

} // namespace
} // namespace guide::test
