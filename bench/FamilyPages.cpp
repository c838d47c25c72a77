#include "FamilyPages.h"

#include "GeneratedShows.h"
#include "demo/DemoSites.h"
#include "demo/pages/Pages.h"
#include "demo/schedule/ScheduleGenerator.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstring>
#include <functional>
#include <memory>

namespace guide::bench {

namespace {

using namespace std::chrono_literals;

/// Noon, far from any clock change.
constexpr Moment kRequestTime = std::chrono::sys_days{std::chrono::year{2026} / 11 / 18} + 12h;
constexpr auto kDay = 24h;

class FixedClock final : public Clock {
  public:
    Moment now() const override { return kRequestTime; }
};

std::string_view view(const QByteArray& page) {
    return {page.constData(), static_cast<std::size_t>(page.size())};
}

std::size_t countIn(std::string_view text, std::string_view marker) {
    std::size_t count = 0;
    for (std::size_t at = text.find(marker); at != std::string_view::npos;
         at = text.find(marker, at + marker.size())) {
        ++count;
    }
    return count;
}

const SourceHostTable& hosts() {
    static const SourceHostTable table = [] {
        QJsonObject rows;
        for (const auto& [key, value] : DemoSites::hosts(u"https://sites.example"_s)) {
            rows[key] = value;
        }
        return *SourceHostTable::fromJson(QJsonDocument(rows).toJson());
    }();
    return table;
}

/// Programmes of two weeks of all Czech and Slovak demo channels.
const std::vector<Programme>& programmePool() {
    static const std::vector<Programme> pool = [] {
        const auto texts = DemoTexts::load(QStringLiteral(QUELLIN_SOURCE_DATA "/demo"));
        if (!texts) {
            qFatal("no texts");
        }
        const ScheduleGenerator generator(texts);
        std::vector<Programme> all;
        for (const DemoChannel& channel : demoChannels()) {
            if (channel.spoken.front() == "cs"_L1 || channel.spoken.front() == "sk"_L1) {
                std::vector<Programme> own = generator.schedule(channel, QDate(2026, 11, 16), 14);
                std::move(own.begin(), own.end(), std::back_inserter(all));
            }
        }
        return all;
    }();
    return pool;
}

/// A channel with a programme every `step`, taken from the pool in turn.
SiteChannel siteChannel(const QString& sourceId, std::size_t number, std::chrono::seconds step) {
    return {sourceId, u"Kanál %1"_s.arg(number), [number, step](Moment from, Moment until) {
                const std::vector<Programme>& pool = programmePool();
                std::vector<Programme> programmes;
                const auto sinceEpoch = std::chrono::ceil<std::chrono::seconds>(from).time_since_epoch();
                auto index = static_cast<std::size_t>((sinceEpoch + step - 1s) / step);
                for (Moment start{index * step}; start < until; start += step) {
                    programmes.push_back(pool[(index + number * 997) % pool.size()]);
                    // As in real pages, titles repeat and descriptions rarely do.
                    programmes.back().description += u' ' + pool[index++ * 7919 % pool.size()].title;
                    programmes.back().start = start;
                    programmes.back().stop = start + step;
                }
                return programmes;
            }};
}

struct Family {
    ListingsType type;
    QStringList sources;
    /// Requests the site's pages.
    std::function<std::vector<QByteArray>(const std::vector<SiteChannel>& channels)> pages;
    /// Occurs once in each programme.
    std::string_view row;
};

/// One page of a site; aborts when it does not exist.
QByteArray pageAt(SitePage site, const std::vector<SiteChannel>& channels, const QString& address,
                  Moment now = kRequestTime) {
    const QString path = address.section(u'?', 0, 0);
    const auto page = site({channels, now, path, QUrlQuery(address.section(u'?', 1))});
    if (!page) {
        qFatal("no page %s", qPrintable(address));
    }
    return *page;
}

QDate dateAfter(int days) {
    return SiteClock("UTC").date(kRequestTime).addDays(days);
}

FamilyPages generatedPages(const Family& family, std::size_t size) {
    FamilyPages made{family.type, {}, {}, 0};
    for (const QString& source : family.sources) {
        made.items.push_back({channelNumbered(static_cast<int>(made.items.size()) + 1), source, u"cs"_s});
    }
    // From one programme an hour to several a minute, which get the same time on a page without seconds.
    for (const int step :
         {3600, 1800, 1200, 900, 600, 480, 360, 300, 240, 180, 150, 120, 90, 60, 45, 30, 20, 15}) {
        std::vector<SiteChannel> channels;
        for (const QString& source : family.sources) {
            channels.push_back(siteChannel(source, channels.size(), std::chrono::seconds(step)));
        }
        made.pages = family.pages(channels);
        if (made.size() >= size) {
            break;
        }
    }
    made.shows = made.count(family.row);
    return made;
}

/// The pages of `count` days from `first` on; "%1" in `address` is the date.
std::function<std::vector<QByteArray>(const std::vector<SiteChannel>&)>
days(SitePage site, int first, int count, const QString& address, const QString& format) {
    return [=](const std::vector<SiteChannel>& channels) {
        std::vector<QByteArray> pages;
        for (int day = first; day < first + count; ++day) {
            pages.push_back(pageAt(site, channels, address.arg(dateAfter(day).toString(format))));
        }
        return pages;
    };
}

std::function<std::vector<QByteArray>(const std::vector<SiteChannel>&)> onePage(SitePage site,
                                                                                const QString& address) {
    return [=](const std::vector<SiteChannel>& channels) {
        return std::vector{pageAt(site, channels, address)};
    };
}

QStringList numbered(const QString& pattern, int count) {
    QStringList sources;
    for (int i = 1; i <= count; ++i) {
        sources += pattern.arg(i);
    }
    return sources;
}

} // namespace

std::size_t FamilyPages::size() const {
    std::size_t size = 0;
    for (const QByteArray& page : pages) {
        size += view(page).size();
    }
    return size;
}

std::size_t FamilyPages::count(std::string_view marker) const {
    std::size_t count = 0;
    for (const QByteArray& page : pages) {
        count += countIn(view(page), marker);
    }
    return count;
}

ParsedLists FamilyPages::read(const std::vector<QByteArray>& others) const {
    static const FixedClock clock;
    static const ListDriver driver({.clock = clock,
                                    .alphabet = alphabet(),
                                    .hosts = hosts(),
                                    .merge = nullptr,
                                    .locale = QLocale(QLocale::Czech, QLocale::CzechRepublic),
                                    .timeZone = [] { return QTimeZone("Europe/Prague"); }});
    return driver.read(items, others, kRequestTime, type);
}

std::size_t showCount(const ParsedLists& lists) {
    std::size_t count = 0;
    for (const auto& [channel, list] : lists) {
        count += list.size();
    }
    return count;
}

FamilyPages portNetworkPages(std::size_t size) {
    const QString address =
        u"/tvapi?channel_id=tvchannel-10021&i_datetime_from=2026-11-18&i_datetime_to=2026-12-16"_s;
    return generatedPages(
        {ListingsType::PortNetwork, {u"10021"_s}, onePage(portNetworkPage, address), "\"start_datetime\""},
        size);
}

FamilyPages sectionedPalinsesto(std::size_t size) {
    return generatedPages(
        {ListingsType::Palinsesto,
         {u"_PA"_s, u"_PB"_s, u"_PC"_s, u"_PD"_s, u"_PE"_s, u"_KN"_s, u"_KP"_s, u"_DY"_s, u"_PF"_s},
         onePage(payPalinsestoPage, u"/export/palinsesto.xml"_s),
         "<prg "},
        size);
}

FamilyPages flatPalinsesto(std::size_t size) {
    return generatedPages(
        {ListingsType::Palinsesto,
         {u"_C5"_s, u"_I1"_s, u"_I2"_s, u"_R4"_s, u"_KA"_s, u"_KQ"_s, u"_KI"_s, u"_BOING"_s, u"_CRTN"_s},
         onePage(freePalinsestoPage, u"/dati/palinsesto/palinsesto.xml"_s),
         "<programma "},
        size);
}

FamilyPages barrandovPages(std::size_t size) {
    return generatedPages({ListingsType::Barrandov,
                           {u"barrandov.Barrandov"_s, u"barrandov.Barrandov Krimi"_s,
                            u"barrandov.Barrandov Family"_s, u"barrandov.Kino"_s},
                           days(barrandovPage, 0, 2, u"/program/?day=%1"_s, u"yyyy-MM-dd"_s),
                           "<a href=\"#modal"},
                          size);
}

FamilyPages digiSportPages(std::size_t size) {
    FamilyPages made = generatedPages({ListingsType::DigiSport, numbered(u"dsk.Digi Sport %1"_s, 6),
                                       onePage(digiSportPage, u"/program/"_s), "<span><strong>"},
                                      size);
    // Each tab replaces the one before it.
    made.shows = countIn(view(made.pages.front()).substr(view(made.pages.front()).rfind("id=\"tabs-")),
                         "<span><strong>");
    return made;
}

FamilyPages jojCinemaPages(std::size_t size) {
    return generatedPages({ListingsType::JojCinema,
                           {u"joj.cinema"_s},
                           days(jojCinemaPage, -1, 7, u"/cz/cz-program/?day=%1"_s, u"d-M-yyyy"_s),
                           "class=\"time\">"},
                          size);
}

FamilyPages primaMaxPages(std::size_t size) {
    return generatedPages({ListingsType::PrimaMax,
                           {u"sites.example/max"_s},
                           days(primaMaxPage, 0, 14, u"/tv-program/%1"_s, u"yyyy-MM-dd"_s),
                           "<time>"},
                          size);
}

FamilyPages hboPages(std::size_t size) {
    FamilyPages made =
        generatedPages({ListingsType::HBO, numbered(u"-hbo.hu.%1"_s, 8),
                        days(hboPage, -1, 23, u"/hu/tvmusor/%1"_s, u"M/d"_s), "class=\"title\">"},
                       size);
    made.shows -= made.count("class=\"show past\"");
    return made;
}

FamilyPages novaPages(std::size_t size) {
    return generatedPages({ListingsType::Nova, numbered(u"cz.nova.Nova %1"_s, 8),
                           days(novaPage, -1, 9, u"/program/?epg_date=%1"_s, u"yyyy-MM-dd"_s),
                           "data-begin=\""},
                          size);
}

FamilyPages dolceSportPages(std::size_t size) {
    return generatedPages({ListingsType::DolceSport,
                           {u"dolce-sport.dolce-1"_s},
                           onePage(dolceSportPage, u"/program/dolce-1"_s),
                           " class=\"time\">"},
                          size);
}

FamilyPages cinestarPages(std::size_t size) {
    const auto request = [](const std::vector<SiteChannel>& channels) {
        std::vector<QByteArray> pages;
        for (int page = 1; page <= 7; ++page) {
            pages.push_back(pageAt(cinestarPage, channels, u"/hr/raspored/?dan=%1"_s.arg(page)));
        }
        return pages;
    };
    return generatedPages(
        {ListingsType::Cinestar, numbered(u"cinestar.hr.%1"_s, 8), request, "<div class='card "}, size);
}

FamilyPages comedyCentralPages(std::size_t size) {
    // The site's pages are short, so several are joined.
    const auto request = [size](const std::vector<SiteChannel>& channels) {
        QByteArray page;
        for (int i = 0; std::size_t(page.size()) < size; ++i) {
            page += pageAt(comedyCentralPage, channels, u"/program-tv?page=%1"_s.arg(i % 7),
                           kRequestTime + kDay * (i / 7));
        }
        return std::vector{page};
    };
    return generatedPages({ListingsType::ComedyCentral, {u"cc.romania"_s}, request, "data-time=\""}, size);
}

} // namespace guide::bench
