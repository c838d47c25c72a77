#include "parsers/details/DetailScraper.h"

#include "parsers/ShowJSON.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

QByteArray recordedPage(const char* name) {
    QFile file(QStringLiteral(QUELLIN_TEST_DATA "/recorded-details/") + QLatin1StringView(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

/// The details scraped from the pages, which are served in this order: only fields that are set; "asked"
/// lists the addresses requested after the first.
QJsonObject scraped(const char* sourceId, const char* url, const QByteArrayList& pages) {
    const Alphabet alphabet;
    const auto entry = std::make_shared<TVEntry>(alphabet);
    entry->setSourceId(QString::fromLatin1(sourceId));
    entry->setUrl(QUrl(QString::fromLatin1(url)));
    entry->setLanguage(u"hu"_s);
    QStringList asked;
    std::shared_ptr<const TVEntrySupplementalData> stored;
    const SourceHostTable hosts;
    const DetailScraper scraper({.pages = [&](const QUrl& page) -> std::optional<QByteArray> {
                                     asked.append(page.toString());
                                     return asked.size() <= pages.size()
                                                ? std::optional(pages[asked.size() - 1])
                                                : std::nullopt;
                                 },
                                 .hosts = hosts,
                                 .update = [&](auto, auto details, const auto&) { stored = details; },
                                 .locale = QLocale(QLocale::Italian)});
    const auto show = scraper.netDescriptionFor(entry);
    if (!show) {
        EXPECT_FALSE(stored);
        return {};
    }
    EXPECT_EQ(stored, show->details());
    EXPECT_EQ(show->details()->language, u"hu"_s);
    const QJsonObject json = showDetailsJSON(*show);
    const QJsonObject details = json[u"details"_s].toObject();
    QJsonObject set{{u"categories"_s, json[u"categories"_s]}, {u"pictures"_s, json[u"pictures"_s]}};
    for (const QString& key : details.keys()) {
        if (!details[key].isNull()) {
            set.insert(key, details[key]);
        }
    }
    if (asked.size() > 1) {
        set.insert(u"asked"_s, QJsonArray::fromStringList(asked.mid(1)));
    }
    return set;
}

TEST(DetailScraper, ReadsThePagesOfEachFamily) {
    const struct {
        const char* name;
        const char* sourceId;
        const char* url;
        QByteArrayList pages;
        const char* expected;
    } cases[] = {
        {"HBO",
         "-hbo.ro.1",
         "https://h.example/x",
         {recordedPage("hbo.html")},
         R"({"categories": 4097, "description": "Unu & doi", "directedBy": "B, A",
             "pictures": ["https://h.example/1.jpg"]})"},
        {"HBO, no object",
         "-hbo.ro.1",
         "https://h.example/x",
         {R"(<div class="rich-snippet"><script type="application/ld+json">["Movie"]</script>)"},
         R"({"categories": 0, "pictures": []})"},
        {"Comedy Central",
         "cc.romania",
         "https://cc.example/x",
         {recordedPage("comedycentral.html")},
         R"({"categories": 0, "description": "Glume.", "pictures": ["https://cc.example/a.jpg"]})"},
        {"Cinestar",
         "cinestar.hr.1",
         "https://c.example/x",
         {recordedPage("cinestar.html")},
         R"({"categories": 0, "description": "Rat & mir.", "details": "SAD, 2024", "directedBy": "Ana Anić",
             "roles": "Ivo, Pero", "pictures": ["https://c.example/p.jpg"]})"},
        {"JOJ Cinema",
         "joj.cinema",
         "https://j.example/x",
         {recordedPage("joj.html")},
         R"({"categories": 0, "description": "Rodina.\nDruhý odsek.", "details": "USA, 1972, 175 min",
             "directedBy": "F. Coppola", "roles": "A. Pacino", "pictures": []})"},
        {"JOJ Cinema, cut off",
         "joj.cinema",
         "https://j.example/x",
         {recordedPage("joj.html").first(recordedPage("joj.html").indexOf("žie: "))},
         R"({"categories": 0, "description": "Rodina.\nDruhý odsek.", "details": "USA, 1972",
             "roles": "A. Pacino", "pictures": []})"},
        {"Palinsesto",
         "_1",
         "https://p.example/x",
         {recordedPage("palinsesto.html")},
         R"({"categories": 0, "directedBy": "Nanni Rossi", "roles": "Anna Bianchi, Luca D'amico",
             "description": "Perché no?\nGià oggi.\nRegia: Nanni Rossi - Anno 2001 - Cast: ANNA BIANCHI, LUCA D'AMICO. Un film.\nFine",
             "pictures": ["https://img.example/a.jpg"]})"},
        {"Palinsesto, a logo",
         "_1",
         "https://p.example/x",
         {R"(<meta content="https://img.example/logo-Premium_share.png" property="og:image">)"},
         R"({"categories": 0, "pictures": []})"},
        {"Port with popups",
         "42",
         "https://port.example/f?i_perf_id=99&z=1",
         {recordedPage("port.html"), recordedPage("port-bottom.html"), recordedPage("port-top.html")},
         R"({"categories": 0, "description": "Egy sorozat.", "episodeDescription": "Sötétben & esőben.",
             "details": "magyar krimi, 1999", "directedBy": "Kovács Éva\nNagy Pál",
             "roles": "Tóth Ödön (Ferenc)\nKis Anna\n", "imdbURL": "http://www.imdb.com/title/tt0095016/?x=1&y=2",
             "trailerURL": "http://video.example/t/4711.mp4",
             "pictures": ["https://media.example/a/217_0.jpg", "https://media.example/a/218.jpg",
                          "https://port.example/pic/4711_0.jpg"],
             "asked": ["https://port.example/pls/w/media.popup_bottom?i_area_id=17&i_object_id=4711&i_is_picture=2&i_is_video=1&i_topic_id=&i_age_limit_from=12&i_perf_id=99",
                       "https://port.example/pls/me/media.popup_top?i_area_id=17&i_object_id=4711&i_is_picture=2&i_n=3"]})"},
        {"Croatian, no pictures for its number",
         "10000",
         "https://tv.example/f",
         {recordedPage("hr.html")},
         R"({"categories": 0, "description": "Čovjek bez imena.", "episodeDescription": "Treća.",
             "details": "live", "directedBy": "Ana Anić, Ivo Šarić", "roles": "Pero, Đuro",
             "imdbURL": "https://tv.example/out?to=1", "pictures": []})"},
        {"an empty page", "42", "https://port.example/f", {""}, "{}"},
        {"no address", "42", "", {"<html>"}, "{}"},
    };
    for (const auto& each : cases) {
        const QJsonObject expected = QJsonDocument::fromJson(each.expected).object();
        const QJsonObject found = scraped(each.sourceId, each.url, each.pages);
        EXPECT_EQ(found, expected) << each.name << " gives " << QJsonDocument(found).toJson().toStdString();
    }
}

} // namespace
} // namespace guide
