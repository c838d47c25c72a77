#include "parsers/URLPlanner.h"

#include <QDateTime>
#include <QStringList>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

constexpr const char* kHosts = R"({
    "RytecMirrorA": "https://ra.example", "RytecMirrorB": "https://rb.example/epg_data",
    "NFeedHost": "n.example", "SFeedHost": "http://s.example", "TVPCFeedHost": "tvpc.example",
    "DolceSportHost": "dolce.example", "MediasetHost": "free.example", "MediasetPayHost": "pay.example",
    "BarrandovHost": "bar.example", "DigiSportHost": "digi.example", "JojCinemaHost": "joj.example",
    "HBOHost.hu": "www.hbo.hu:8080", "HBOHost.ba": "hbo.ba", "HBOHost.de": "hbo.de",
    "PrimaMaxSourceId": "max.example", "NovaHost": "nova.example",
    "BNetHost": "epg.bnet.example", "BNetDomain": "bnet.example", "ComedyCentralHost": "cc.example",
    "CinestarHostStem": "cine.example", "MojTVHostStem": "http://moj-%@.example:81",
    "PortHost": "port.example", "TVProfilHost": "http://profil.example:82"
})";

// Half an hour into the day on which central Europe's summer time ends, and into that on which it begins.
const QString kAutumn = u"2026-10-24T22:30:00Z"_s;
const QString kSpring = u"2026-03-27T23:30:00Z"_s;
// New Year in central Europe, the last day of the old year in Greenwich.
const QString kNewYear = u"2026-12-31T23:30:00Z"_s;

class URLPlannerTest : public testing::Test {
  protected:
    /// The planned URLs, or "nothing" when no URL can be planned.
    QStringList plan(const QString& sourceId, const QString& now = kNewYear) {
        const auto moment =
            Moment(std::chrono::milliseconds(QDateTime::fromString(now, Qt::ISODate).toMSecsSinceEpoch()));
        const auto urls = planner.urlsForSourceId(sourceId, moment, QTimeZone("Pacific/Kiritimati"));
        if (!urls) {
            return {u"nothing"_s};
        }
        QStringList texts;
        for (const QUrl& url : *urls) {
            texts.append(QString::fromLatin1(url.toEncoded()));
        }
        return texts;
    }

    std::vector<unsigned> picks; // taken from the end; 0 when there is none
    URLPlanner planner{*SourceHostTable::fromJson(kHosts), [this](unsigned bound) {
                           const unsigned pick = picks.empty() ? 0 : picks.back();
                           if (!picks.empty()) {
                               picks.pop_back();
                           }
                           return pick % bound;
                       }};
};

TEST_F(URLPlannerTest, FamiliesWithoutDates) {
    const QStringList nothing{u"nothing"_s};
    const std::pair<QString, QStringList> rows[] = {
        {u"r.cz-sk.CT1.cz"_s, {u"https://ra.example/ryteccz-sk.xz"_s}},
        {u"r..x"_s, {u"https://ra.example/rytec.xz"_s}},
        {u"r.foo"_s, nothing},
        {u"n.x"_s, {u"https://n.example/epg.xml"_s}},
        {u"s.x"_s, {u"http://s.example/losmij/epg.xml.gz"_s}},
        {u"tvpc."_s, {u"https://tvpc.example/xmltv.xml"_s}},
        {u"dolce-sport.dolce-sport-1"_s, {u"https://dolce.example/program/dolce-sport-1"_s}},
        {u"_BOING"_s, {u"https://free.example/dati/palinsesto/palinsesto.xml"_s}},
        {u"_CRTN2"_s, {u"https://pay.example/export/palinsesto.xml"_s}},
        {u"_c5"_s, {u"https://pay.example/export/palinsesto.xml"_s}},
        {u"http://x.example/a b/%C3%A1%20.xml?q=1"_s, {u"http://x.example/a%20b/%C3%A1%20.xml?q=1"_s}},
        {u"https://x.example/y.tv"_s, {u"https://x.example/y.tv"_s}},
        {u"http://"_s, nothing},
        {u"dsk.any"_s, {u"https://digi.example/program/"_s}},
        {u"cinestar.h"_s, nothing},
        {u"-hbo.h"_s, nothing},
        {u"-hbo.xx.1"_s, nothing},
        {u"hrt-1"_s, {u"http://profil.example:82/xmltv/data/hrt-1/weekly_hrt-1_profil.example:82.xml"_s}},
        {u"042"_s, {u"http://profil.example:82/xmltv/data/042/weekly_042_profil.example:82.xml"_s}},
    };
    for (const auto& [sourceId, urls] : rows) {
        EXPECT_EQ(plan(sourceId), urls) << sourceId.toStdString();
        EXPECT_EQ(plan(sourceId, kSpring), urls) << "at any time";
    }
    const std::tuple<QString, QString, QString, int> numbered[] = {
        {u"cc.romania"_s, u"https://cc.example/program-tv"_s, u"?page="_s, 1},
        {u"cinestar.hr.12"_s, u"https://cine.example.hr/raspored/"_s, u"?dan="_s, 2},
    };
    for (const auto& [sourceId, page, query, first] : numbered) {
        QStringList pages{page};
        for (int number = first; number < first + 6; ++number) {
            pages.append(page + query + QString::number(number));
        }
        EXPECT_EQ(plan(sourceId), pages);
    }
    picks = {1};
    EXPECT_EQ(plan(u"r.fr.TF1"_s), QStringList{u"https://rb.example/epg_data/rytecfr.xz"_s});
}

TEST_F(URLPlannerTest, DaysAre24HourStepsInTheServersZone) {
    const QString joj = u"https://joj.example/cz/cz-program/?day=%1"_s;
    const QString nova = u"https://nova.example/program/?epg_date=%1"_s;
    const QString bnet = u"http://epg.bnet.example/export/xmltv/rtl.tv.bnet.example_%1.xml"_s;
    const std::tuple<const char*, QString, QString, QString, QString> rows[] = {
        {"a day of 25 hours is requested once", u"joj.x"_s, kAutumn, joj,
         u"24-10-2026 25-10-2026 26-10-2026 27-10-2026 28-10-2026 29-10-2026"_s},
        {"no leading zeros", u"joj."_s, kNewYear, joj,
         u"31-12-2026 1-1-2027 2-1-2027 3-1-2027 4-1-2027 5-1-2027 6-1-2027"_s},
        {"the hour moves with the clock, the day does not", u"cz.nova.Nova"_s, kSpring, nova,
         u"2026-03-27 2026-03-28 2026-03-29 2026-03-30 2026-03-31 2026-04-01 2026-04-02 2026-04-03 "
         "2026-04-04"_s},
        {"the whole id", u"rtl.tv"_s, kNewYear, bnet,
         u"2026-12-31 2027-01-01 2027-01-02 2027-01-03 2027-01-04 2027-01-05 2027-01-06"_s},
    };
    for (const auto& [name, sourceId, now, url, dates] : rows) {
        QStringList expected;
        for (const QString& date : dates.split(u' ')) {
            expected.append(url.arg(date));
        }
        EXPECT_EQ(plan(sourceId, now), expected) << name;
    }
    EXPECT_EQ(plan(u"barrandov.TV"_s),
              (QStringList{u"https://bar.example/program/#onair"_s,
                           u"https://bar.example/program/?day=2027-01-02#on-air"_s}));
    EXPECT_EQ(plan(u"max.example"_s), (QStringList{u"https://max.example/tv-program"_s,
                                                   u"https://max.example/tv-program/2027-01-02"_s,
                                                   u"https://max.example/tv-program/2027-01-03"_s,
                                                   u"https://max.example/tv-program/2027-01-04"_s}));
}

TEST_F(URLPlannerTest, HBOPlansThreeWeeksPerCountry) {
    const std::tuple<QString, QString, QString> rows[] = {
        {u"-hbo.hu.1"_s, u"https://www.hbo.hu:8080/tvmusor/12/31"_s,
         u"https://www.hbo.hu:8080/tvmusor/01/22"_s},
        {u"-hbo.ba.1"_s, u"https://hbo.ba/raspored/12/31"_s, u"https://hbo.ba/raspored/01/22"_s},
        // 13:30 on 1 January in the device's zone; the zone of the country is unknown.
        {u"-hbo.de.1"_s, u"https://hbo.de/program/12/31"_s, u"https://hbo.de/program/01/22"_s},
    };
    for (const auto& [sourceId, first, last] : rows) {
        const QStringList urls = plan(sourceId);
        ASSERT_EQ(urls.size(), 23) << sourceId.toStdString();
        EXPECT_EQ(urls.first(), first);
        EXPECT_EQ(urls.last(), last);
    }
    EXPECT_EQ(plan(u"-hbo.de"_s, u"2026-06-10T10:00:00Z"_s).at(1), u"https://hbo.de/program/06/11"_s);
    EXPECT_EQ(plan(u"-hbo.ba"_s, u"2026-06-10T10:00:00Z"_s).at(1), u"https://hbo.ba/raspored/06/10"_s);
}

TEST_F(URLPlannerTest, PortNetworkPlansOneWindow) {
    const QString before = u"https://port.example/tvapi?channel_id=tvchannel-"_s;
    EXPECT_EQ(plan(u"12345"_s),
              QStringList{before + u"12345&i_datetime_from=2027-01-01&i_datetime_to=2027-01-08"_s});
    EXPECT_EQ(plan(u"10124"_s),
              QStringList{before + u"10124&i_datetime_from=2027-01-01&i_datetime_to=2027-01-05"_s});
    // The channels with four days, by number and sum of their ids.
    int count = 0;
    int sum = 0;
    for (const int first : {0, 10'000, 20'000, 40'000, 60'000}) {
        for (int id = first; id < first + 400; ++id) {
            if (plan(QString::number(id)).first().endsWith(u"2027-01-05"_s)) {
                ++count;
                sum += id;
            }
        }
    }
    EXPECT_EQ(count, 26);
    EXPECT_EQ(sum, 343'294);
    EXPECT_EQ(plan(u"0"_s, kAutumn),
              QStringList{before + u"0&i_datetime_from=2026-10-25&i_datetime_to=2026-10-31"_s})
        << "604,800 seconds, one hour less than that week";
}

TEST_F(URLPlannerTest, MojTVPicksAHostForEachDay) {
    picks = {1, 0};
    const QStringList urls = plan(u"=7"_s);
    ASSERT_EQ(urls.size(), 11);
    EXPECT_EQ(urls[0], u"http://moj-net.example:81/xmltv/service.ashx?kanal_id=7&date=1.1.2027."_s);
    EXPECT_EQ(urls[1], u"http://moj-hr.example:81/xmltv/service.ashx?kanal_id=7&date=2.1.2027."_s);
    EXPECT_EQ(urls[10], u"http://moj-net.example:81/xmltv/service.ashx?kanal_id=7&date=11.1.2027."_s);
}

TEST_F(URLPlannerTest, ChannelsOfAFeedShareOneList) {
    const Moment now{};
    const auto any = planner.urlsForSourceId(u"dsk.any"_s, now, QTimeZone::utc());
    const auto other = planner.urlsForSourceId(u"dsk.other"_s, now, QTimeZone::utc());
    EXPECT_EQ(any->constData(), other->constData()) << "the same object";
    EXPECT_EQ(plan(u"-hbo.hu.1"_s), plan(u"-hbo.hu.2"_s));
}

TEST_F(URLPlannerTest, AFamilyWithoutAHostPlansNothing) {
    URLPlanner bare(*SourceHostTable::fromJson(R"({"NFeedHost": "", "RytecMirrorA": "a.example"})"),
                    [](unsigned) { return 0u; });
    for (const QString& id :
         {u"r.a.b"_s, u"n.x"_s, u"s.x"_s, u"tvpc.x"_s, u"dolce-sport.x"_s, u"_C5"_s, u"_X"_s,
          u"barrandov.x"_s, u"dsk.x"_s, u"joj.x"_s, u"-hbo.hu.1"_s, u"cz.nova.x"_s, u"a.tv"_s,
          u"cc.romania"_s, u"cinestar.hr.1"_s, u"=1"_s, u"1"_s, u"x"_s, u""_s}) {
        EXPECT_FALSE(bare.urlsForSourceId(id, Moment{}, QTimeZone::utc())) << id.toStdString();
    }
}

} // namespace
} // namespace guide
