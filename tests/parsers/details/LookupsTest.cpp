#include "fakes/FakeHTTPClient.h"
#include "fakes/ManualQueues.h"
#include "parsers/details/IMDbLookup.h"
#include "parsers/details/RecordedShows.h"

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

using Labels = QMap<QString, QString>;

TEST(RecordedShows, ReadsTheSelectBoxOfTheShow) {
    const QByteArray index =
        R"(<a href="/enz/a/">Jutro</a><li><a class="x" href="/enz/dnevnik/">Dnevnik</a>)";
    const std::tuple<const char*, QString, QByteArray, std::optional<Labels>> cases[] = {
        {"two under one label", u"Dnevnik"_s,
         "<select id=\"d\"><option value=\"1\">Ned</option><option value=\"2\">Pon</option>"
         "<option value=\"3\">Ned</option></select>",
         Labels{{u"Ned"_s, u"3"_s}, {u"Pon"_s, u"2"_s}}},
        {"no recordings", u"Dnevnik"_s, "<select id=\"d\"></select>", Labels{}},
        {"another case", u"dnevnik"_s, "<select id=\"d\"></select>", std::nullopt},
        {"a box without an end", u"Dnevnik"_s, "<select id=\"d\"><option value=\"1\">Ned</option>",
         std::nullopt},
        {"a broken option", u"Dnevnik"_s,
         "<select id=\"d\"><option value=\"1\">Ned<option value=\"2</select>", std::nullopt},
    };
    const auto hosts = SourceHostTable::fromJson(R"({"HRTHost": "hrt.example"})");
    for (const auto& [name, title, box, expected] : cases) {
        const auto found = recordedShowsWithTitle(title, *hosts, [&](const QUrl& url) {
            return std::optional(url == QUrl(u"https://hrt.example/enz/"_s)           ? index
                                 : url == QUrl(u"https://hrt.example/enz/dnevnik/"_s) ? box
                                                                                      : QByteArray());
        });
        EXPECT_EQ(found ? std::optional(found->broadcasts) : std::nullopt, expected) << name;
        EXPECT_EQ(found ? found->page : QUrl(),
                  expected ? QUrl(u"https://hrt.example/enz/dnevnik/"_s) : QUrl());
    }
}

TEST(IMDbLookup, SearchesOnlyForFilmsAndSeries) {
    const auto hosts = SourceHostTable::fromJson(R"({"IMDbHost": "imdb.example"})");
    const std::tuple<const char*, QString, QString, TVListingsCategory, std::size_t> cases[] = {
        {"a film", u"Čas & #1"_s, u"Tri"_s, TVListingsCategoryMovies, 1},
        {"with a subtitle", u"Čas & #1"_s, u"Dvoj"_s, TVListingsCategoryDramas, 2},
        {"a placeholder", u"Film"_s, {}, TVListingsCategoryMovies, 0},
        {"too short", u"Es"_s, {}, TVListingsCategoryMovies, 0},
        {"news", u"Vijesti"_s, {}, TVListingsCategoryNews, 0},
    };
    for (const auto& [name, title, subtitle, categories, searches] : cases) {
        const auto found = imdbSearches(title, subtitle, categories, *hosts);
        EXPECT_EQ(found.urls.size(), searches) << name;
        EXPECT_EQ(found.started, searches > 0) << name;
        if (found.started) {
            EXPECT_EQ(found.urls[0].toEncoded(),
                      "https://imdb.example/find?ref_=nv_sr_fn&q=%C4%8Cas%20&%20%231&s=tt");
        }
    }
}

TEST(IMDbLookup, ReadsTheFirstRow) {
    const QUrl search(u"https://imdb.example/find?q=x"_s);
    const QByteArray start = R"(<tr><td class="primary_photo"> <a href="/title/tt1/" ><img src=")";
    const QByteArray photo = start + "https://x/a._V1_UX32_CR0,0,32,44_AL_.jpg\"></a>";
    const IMDbAnswer link{QUrl(u"https://imdb.example/title/tt1/"_s), std::nullopt};
    const IMDbAnswer both{link.imdbURL, QUrl(u"https://x/a._V1_.jpg"_s)};
    const std::tuple<const char*, QByteArray, bool, IMDbAnswer> cases[] = {
        {"a film", photo + "A (TV Series)</tr>", false, both},
        {"a series", photo + "A (TV Series)</tr>", true, both},
        {"an episode", photo + "A (TV Episode)</tr>", false, {}},
        {"a film for a series", photo + "A</tr>(TV Series)", true, {}},
        {"a series whose row has no end", photo + "A (TV Series)", true, {}},
        {"no picture", start + "https://x/nopicture.png\"></tr>", false, link},
        {"a picture that is not scaled", start + "https://x/long-name.jpg\"></tr>", false,
         IMDbAnswer{link.imdbURL, QUrl(u"https://x/long-name.jpg"_s)}},
        {"no row", "<html>", false, {}},
        {"no text", photo + "\xff</tr>", false, {}},
    };
    for (const auto& [name, page, isSeries, expected] : cases) {
        EXPECT_EQ(imdbAnswer(page, search, isSeries), expected) << name;
    }
}

TEST(IMDbLookup, AnswersEverySearchEvenAfterAFailure) {
    ManualClock clock;
    ManualQueues queues(clock);
    FakeHTTPClient client;
    const HTTPUserAgent userAgent([](unsigned) { return 3U; });
    const auto hosts = SourceHostTable::fromJson(R"({"IMDbHost": "imdb.example"})");
    const Alphabet alphabet;
    ExtendedTVEntry show;
    show.basic = std::make_shared<TVEntry>(alphabet);
    show.basic->setIdentificator(u"Čas"_s);
    show.basic->setSubtitle1(u"Dvoje"_s);
    show.categories = TVListingsCategoryMovies;
    client.answer(QUrl(u"https://imdb.example/find?ref_=nv_sr_fn&q=Dvoje&s=tt"_s),
                  FakeHTTPClient::response(
                      200, R"(class="primary_photo"> <a href="/title/tt2/" ><img src="nopicture"></tr>)"));

    std::vector<std::pair<unsigned, IMDbAnswer>> answers;
    const IMDbLookupEnvironment environment{client, userAgent, *hosts, queues};
    EXPECT_TRUE(imdbLinkWithClosure(show, environment, [&](unsigned index, const IMDbAnswer& answer) {
        answers.emplace_back(index, answer);
    }));
    EXPECT_TRUE(answers.empty()) << "does not block";
    queues.runAll();

    const std::vector<std::pair<unsigned, IMDbAnswer>> expected{
        {0, {}}, {1, {QUrl(u"https://imdb.example/title/tt2/"_s), std::nullopt}}};
    EXPECT_EQ(answers, expected);
    ASSERT_EQ(client.requests().size(), 2U) << "no second attempt";
    EXPECT_EQ(client.requests()[0].timeout, std::chrono::seconds(60));
    EXPECT_EQ(client.requests()[0].headers[0].second, userAgent.value());
}

} // namespace
} // namespace guide
