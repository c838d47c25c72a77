// The guide reads the same schedule from the site of every source family.
#include "demo/DemoSites.h"

#include "app/GuideWorld.h"
#include "screens/kit/TableViewController.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <string_view>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Which part of a schedule a family's pages contain, in days from the day of the request.
struct Family {
    const char* name;
    QStringList sources;
    const char* zone;
    int firstDay;
    int firstHour;
    int endDay;
    int endHour;
    /// Titles are in capitals, and the reader changes their case.
    bool capitals = false;
    /// The format misreads some times around a clock change: it applies the offset of a later moment, or
    /// counts every day as 24 hours.
    bool misreadsChanges = false;
    std::size_t mostShows = std::numeric_limits<std::size_t>::max();
};

std::vector<Family> families() {
    return {
        {"Port network", {u"10021"_s}, "Europe/Budapest", 0, 0, 8, 0},
        {"Palinsesto", {u"_KN"_s, u"_PA"_s}, "Europe/Rome", -1, 6, 7, 6, true, true},
        {"Palinsesto, flat", {u"_C5"_s, u"_BOING"_s}, "Europe/Rome", -1, 6, 7, 6, true, true},
        {"Barrandov",
         QStringList{u"barrandov.Barrandov Krimi"_s, u"barrandov.Barrandov Family"_s, u"barrandov.Kino"_s},
         "Europe/Prague", 0, 0, 2, 6},
        // Each tab replaces the one before it, and the schedule ends in the eighth.
        {"Digi Sport", {u"dsk.Digi Šport 1"_s, u"dsk.Digi Šport 2"_s}, "Europe/Bratislava", 7, 3, 8, 3},
        {"JOJ Cinema", {u"joj.cinema"_s}, "Europe/Bratislava", -1, 6, 6, 6},
        {"Prima Max", {u"%1/max"_s}, "Europe/Prague", 0, 0, 4, 6},
        {"HBO", {u"-hbo.hu.1"_s, u"-hbo.hu.2"_s}, "Europe/Budapest", -1, 6, 8, 3},
        {"Nova", {u"cz.nova.Nova"_s, u"cz.nova.Nova Cinema"_s}, "Europe/Prague", -1, 6, 8, 3},
        {"Dolce Sport", {u"dolce-sport.dolce-1"_s}, "Europe/Bucharest", 0, 8, 7, 8, true},
        {"Cinestar", {u"cinestar.hr.1"_s, u"cinestar.hr.12"_s}, "Europe/Zagreb", -1, 6, 6, 6},
        {"Comedy Central Romania", {u"cc.romania"_s}, "Europe/Bucharest", 0, 0, 8, 3, false, false, 112},
    };
}

/// Eleven days around the moment, until three o'clock on the eighth day. No programme begins in the repeated
/// hour of a clock change, or at a time that the family's format misreads.
std::vector<Programme> scheduleAround(Moment now, int channel, const Family& family) {
    static const QStringList kinds{u"Zlatý"_s,   u"Šťastný"_s, u"Ľahký"_s, u"Široký"_s,
                                   u"Městský"_s, u"Întâiul"_s, u"Őszi"_s};
    static const QStringList things{u"most"_s, u"vrch"_s,   u"župan"_s, u"déšť"_s, u"oheň"_s, u"vlak"_s,
                                    u"ples"_s, u"člověk"_s, u"drum"_s,  u"măr"_s,  u"kert"_s};
    const SiteClock wall("Europe/Prague");
    const auto offset = [&wall](Moment moment) {
        return std::chrono::seconds(wall.local(moment).offsetFromUtc());
    };
    const auto unclear = [&](Moment moment) {
        return offset(moment) < offset(moment - 1h) ||
               (family.misreadsChanges && (offset(moment) != offset(moment + offset(moment)) ||
                                           wall.date(moment + 24h) != wall.date(moment).addDays(1)));
    };
    const Moment end = wall.at(wall.date(now).addDays(8), 3);
    std::vector<Programme> programmes;
    Moment start = wall.at(wall.date(now).addDays(-3), 0) + channel * 5min;
    for (int i = channel * 3; start < end; ++i) {
        Moment stop = start + std::chrono::minutes(25 + i * 35 % 90);
        while (unclear(stop)) {
            stop += 5min;
        }
        Programme programme;
        programme.start = start;
        programme.stop = stop;
        programme.topic = i % 2 == 0 ? Topic::Comedy : Topic::Sports;
        programme.title = kinds[i % kinds.size()] + u' ' + things[i % things.size()];
        programme.description = u"Kdo ráno vstává, ten to ví."_s;
        programme.episode = i % 3 == 0 ? i % 40 + 1 : 0;
        programme.repeat = i % 5 == 0;
        programme.year = i % 4 == 0 ? 1999 : 0;
        programme.country = u"Itálie"_s;
        programme.director = u"Jan Novák"_s;
        programme.actors = {u"Eva Malá"_s, u"Ivo Ryba"_s};
        programmes.push_back(std::move(programme));
        start = stop;
    }
    return programmes;
}

std::string line(Moment start, const QString& title, bool capitals) {
    const QString text = SiteClock("UTC").text(start, u"dd.MM. HH:mm "_s) + title;
    return (capitals ? text.toCaseFolded() : text).toStdString();
}

std::vector<std::string> expectedShows(const Family& family, const std::vector<Programme>& schedule,
                                       Moment now) {
    const SiteClock wall(family.zone);
    const QDate today = wall.date(now);
    const Moment first = wall.at(today.addDays(family.firstDay), family.firstHour);
    const Moment end = wall.at(today.addDays(family.endDay), family.endHour);
    std::vector<std::string> lines;
    std::size_t count = 0;
    for (const Programme& programme : schedule) {
        if (programme.start >= first && programme.start < end && count++ < family.mostShows &&
            programme.stop > now) {
            lines.push_back(line(programme.start, programme.title, family.capitals));
        }
    }
    return lines;
}

QStringList sourcesOf(const std::vector<Family>& all) {
    QStringList sources;
    for (const Family& family : all) {
        sources += family.sources;
    }
    return sources;
}

/// Opens the sites, starts the guide and loads everything. Returns the schedules of the sources in order.
std::vector<std::vector<Programme>> openSites(GuideWorld& world, const std::vector<Family>& all, Moment now) {
    world.clock.advance(now - world.clock.now());
    world.device.zone = QTimeZone("Europe/Prague");
    QJsonObject hosts;
    for (const auto& [key, host] : DemoSites::hosts(world.server->base())) {
        hosts.insert(key, host);
    }
    world.hosts = SourceHostTable::fromJson(QJsonDocument(hosts).toJson()).value();

    std::vector<std::vector<Programme>> schedules;
    std::vector<SiteChannel> channels;
    for (const Family& family : all) {
        for (const QString& source : family.sources) {
            schedules.push_back(scheduleAround(now, int(schedules.size()), family));
            channels.push_back({QString(source).replace("%1"_L1, world.server->authority()), u"Channel"_s,
                                [schedule = schedules.back()](Moment from, Moment until) {
                                    std::vector<Programme> programmes = schedule;
                                    std::erase_if(programmes, [=](const Programme& programme) {
                                        return programme.start < from || programme.start >= until;
                                    });
                                    return programmes;
                                }});
        }
    }
    DemoSites::open(world.server->router(), channels, [&world] { return world.clock.now(); });
    world.start();
    world.guide->applicationDidBecomeActive();
    EXPECT_TRUE(world.check());
    return schedules;
}

void expectTheSameScheduleFromEverySite(Moment now) {
    const std::vector<Family> all = families();
    GuideWorld world(sourcesOf(all));
    const QString authority = world.server->authority();
    const std::vector<std::vector<Programme>> schedules = openSites(world, all, now);

    int number = 0;
    for (const Family& family : all) {
        for (const QString& source : family.sources) {
            const std::vector<Programme>& schedule = schedules[std::size_t(number)];
            std::vector<std::string> found;
            for (const auto& [start, title] : world.shows(GuideWorld::channel(++number))) {
                found.push_back(line(start, title, family.capitals));
            }
            const std::vector<std::string> expected = expectedShows(family, schedule, now);
            ASSERT_GT(expected.size(), 10U);
            const auto differs = std::mismatch(found.begin(), found.end(), expected.begin(), expected.end());
            EXPECT_EQ(found.size(), expected.size()) << family.name << ' ' << source.toStdString();
            EXPECT_TRUE(found == expected)
                << family.name << ' ' << source.toStdString() << ": found "
                << (differs.first == found.end() ? "nothing" : *differs.first) << ", expected "
                << (differs.second == expected.end() ? "nothing" : *differs.second);
            const auto health = world.guide->sourceHealth().healthFor(GuideWorld::channel(number));
            ASSERT_TRUE(health && health->used) << family.name;
            EXPECT_EQ(health->used->sourceId, QString(source).replace("%1"_L1, authority));
            EXPECT_EQ(health->used->shows, int(found.size()));
            EXPECT_TRUE(health->passedOver.empty());
        }
    }
    world.end();
}

TEST(DemoSitesTest, EverySiteLeadsToTheSameSchedule) {
    const QTimeZone prague("Europe/Prague");
    const std::pair<const char*, QDateTime> times[] = {
        {"noon", QDateTime(QDate(2026, 6, 15), QTime(12, 0), prague)},
        {"one minute before midnight", QDateTime(QDate(2026, 12, 31), QTime(23, 59), prague)},
        {"half past two that is not", QDateTime(QDate(2026, 3, 29), QTime(1, 30), QTimeZone::utc())},
        {"half past two that comes twice", QDateTime(QDate(2026, 10, 25), QTime(0, 30), QTimeZone::utc())},
    };
    for (const auto& [name, time] : times) {
        SCOPED_TRACE(name);
        expectTheSameScheduleFromEverySite(Moment(std::chrono::milliseconds(time.toMSecsSinceEpoch())));
    }
}

TEST(DemoSitesTest, AShowHasAPageWithItsDetails) {
    std::vector<Family> all = families();
    std::erase_if(all, [](const Family& family) { return std::string_view(family.name) != "HBO"; });
    GuideWorld world(sourcesOf(all));
    openSites(
        world, all,
        Moment(std::chrono::milliseconds(
            QDateTime(QDate(2026, 6, 15), QTime(12, 0), QTimeZone("Europe/Prague")).toMSecsSinceEpoch())));
    const auto screen = [&world]() -> TableViewController& {
        return dynamic_cast<TableViewController&>(
            *world.guide->tabBarController().selectedNavigationController().topViewController());
    };
    ASSERT_TRUE(world.runUntil([&] { return screen().table().rowCount() > 1; }));
    screen().sendRowEvent(screen().table().rowAt(1).id, Tapped{});
    const auto texts = [&] {
        QStringList found;
        for (const Section& section : screen().table().sections()) {
            if (const auto* text = std::get_if<ParagraphRow>(&section.rows.front().content)) {
                found << section.header + u' ' + text->text;
            }
        }
        return found;
    };
    EXPECT_TRUE(world.runUntil([&] { return texts().size() >= 3; }));
    EXPECT_EQ(texts(), QStringList({u"Directed By: Jan Novák"_s, u"Roles: Eva Malá\nIvo Ryba"_s,
                                    u"Description: Kdo ráno vstává, ten to ví."_s}));
}

} // namespace
} // namespace guide
