#include "sources/URLPlanner.h"

#include "sources/SourceId.h"
#include "sources/WebURL.h"

#include <QDate>
#include <QDateTime>

#include <algorithm>
#include <array>
#include <chrono>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using URLs = std::optional<QList<QUrl>>;

constexpr std::chrono::seconds kDay{86'400};
constexpr int kPortDays = 7;
constexpr int kShortPortDays = 4;

// The channels of the Port network that have four days of schedule, ascending.
constexpr std::array<int, 26> kShortPortIds{41,    63,    69,    71,    151,   152,   156,   165,   170,
                                            197,   236,   264,   10078, 10110, 10113, 10123, 10124, 10142,
                                            10197, 10354, 20095, 40021, 40028, 40078, 60046, 60050};

constexpr std::array kMediasetCodes{"C5"_L1, "I1"_L1, "I2"_L1,    "R4"_L1,  "KA"_L1,
                                    "KQ"_L1, "KI"_L1, "BOING"_L1, "CRTN"_L1};

// In the order of the families: the key of the host, the path, and the pages behind the first one.
struct FixedFeed {
    QLatin1StringView key;
    QLatin1StringView path;
    QLatin1StringView query = {};
    int lastPage = 0;
};
constexpr std::array kFixedFeeds{
    FixedFeed{"NFeedHost"_L1, "/epg.xml"_L1},
    FixedFeed{"SFeedHost"_L1, "/losmij/epg.xml.gz"_L1},
    FixedFeed{"TVPCFeedHost"_L1, "/xmltv.xml"_L1},
    FixedFeed{"MediasetHost"_L1, "/dati/palinsesto/palinsesto.xml"_L1},
    FixedFeed{"MediasetPayHost"_L1, "/export/palinsesto.xml"_L1},
    FixedFeed{"DigiSportHost"_L1, "/program/"_L1},
    FixedFeed{"ComedyCentralHost"_L1, "/program-tv"_L1, "?page="_L1, 6},
};

// An ordered set of URLs on the way to be planned: an equal URL is dropped, an impossible one spoils the
// plan.
class Plan {
  public:
    void add(const QString& text) {
        const QUrl url(text, QUrl::TolerantMode);
        if (!isWebURL(url)) {
            m_possible = false;
        } else if (!m_urls.contains(url)) {
            m_urls.append(url);
        }
    }

    URLs result() && { return m_possible ? URLs(std::move(m_urls)) : std::nullopt; }

  private:
    QList<QUrl> m_urls;
    bool m_possible = true;
};

URLs single(const std::optional<QString>& base, const QString& rest) {
    if (!base) {
        return std::nullopt;
    }
    Plan plan;
    plan.add(*base + rest);
    return std::move(plan).result();
}

URLs single(const QString& url) {
    return single(url, QString());
}

QDate dateIn(const QTimeZone& zone, Moment moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), zone).date();
}

QDate dateIn(QStringView server, Moment moment) {
    return dateIn(timeZoneForServer(server).value_or(QTimeZone::utc()), moment);
}

QString padded(int number, int digits) {
    return QString::number(number).rightJustified(digits, u'0');
}

QString yearMonthDay(QDate date) {
    return padded(date.year(), 4) + u'-' + padded(date.month(), 2) + u'-' + padded(date.day(), 2);
}

// One URL for each day from the first to the last, made by the function from the moment of that day.
template <class MakeURL>
URLs days(int first, int last, Moment now, MakeURL makeURL) {
    Plan plan;
    for (int day = first; day <= last; ++day) {
        plan.add(makeURL(now + day * kDay));
    }
    return std::move(plan).result();
}

URLs numberedPages(const std::optional<QString>& page, QLatin1StringView query, int first, int last) {
    if (!page) {
        return std::nullopt;
    }
    Plan plan;
    plan.add(*page);
    for (int number = first; number <= last; ++number) {
        plan.add(*page + query + QString::number(number));
    }
    return std::move(plan).result();
}

std::optional<QString> joined(std::optional<QString> base, QLatin1StringView path) {
    if (base) {
        *base += path;
    }
    return base;
}

URLs planRytec(const SourceHostTable& hosts, const QString& sourceId, const RandomIndex& random) {
    constexpr qsizetype kGroup = 2;
    const qsizetype end = sourceId.indexOf(u'.', kGroup);
    if (end < 0) {
        return std::nullopt;
    }
    const std::optional<QString> mirrorA = hosts.base(u"RytecMirrorA"_s);
    const std::optional<QString> mirrorB = hosts.base(u"RytecMirrorB"_s);
    if (!mirrorA || !mirrorB) {
        return std::nullopt;
    }
    const QString& mirror = random(2) == 0 ? *mirrorA : *mirrorB;
    return single(mirror + "/rytec"_L1 + sourceId.mid(kGroup, end - kGroup) + ".xz"_L1);
}

URLs planBarrandov(const SourceHostTable& hosts, Moment now) {
    const std::optional<QString> base = hosts.base(u"BarrandovHost"_s);
    if (!base) {
        return std::nullopt;
    }
    Plan plan;
    plan.add(*base + "/program/#onair"_L1);
    plan.add(*base + "/program/?day="_L1 + yearMonthDay(dateIn(u"cz", now + kDay)) + "#on-air"_L1);
    return std::move(plan).result();
}

URLs planJojCinema(const SourceHostTable& hosts, Moment now) {
    const std::optional<QString> base = hosts.base(u"JojCinemaHost"_s);
    if (!base) {
        return std::nullopt;
    }
    return days(-1, 5, now, [&](Moment day) {
        const QDate date = dateIn(u"sk", day);
        return *base + "/cz/cz-program/?day="_L1 + QString::number(date.day()) + u'-' +
               QString::number(date.month()) + u'-' + padded(date.year(), 4);
    });
}

URLs planHBO(const SourceHostTable& hosts, const QString& sourceId, Moment now, const QTimeZone& deviceZone) {
    constexpr qsizetype kCountry = 5;
    if (sourceId.size() < kCountry + 2) {
        return std::nullopt;
    }
    const QString country = sourceId.mid(kCountry, 2);
    const QString key = "HBOHost."_L1 + country;
    const std::optional<QString> base = hosts.base(key);
    const std::optional<QString> name = hosts.name(key);
    if (!base || !name) {
        return std::nullopt;
    }
    const QString server = name->left(name->indexOf(u'/')).section(u':', 0, 0);
    const QTimeZone zone = timeZoneForServer(server).value_or(deviceZone);
    const QLatin1StringView word = country == "hu"_L1                         ? "tvmusor"_L1
                                   : country == "hr"_L1 || country == "ba"_L1 ? "raspored"_L1
                                                                              : "program"_L1;
    return days(-1, 21, now, [&](Moment day) {
        const QDate date = dateIn(zone, day);
        return *base + u'/' + word + u'/' + padded(date.month(), 2) + u'/' + padded(date.day(), 2);
    });
}

URLs planPrimaMax(const SourceHostTable& hosts, Moment now) {
    const std::optional<QString> page = joined(hosts.base(u"PrimaMaxSourceId"_s), "/tv-program"_L1);
    if (!page) {
        return std::nullopt;
    }
    Plan plan;
    plan.add(*page);
    for (int day = 1; day <= 3; ++day) {
        plan.add(*page + u'/' + yearMonthDay(dateIn(u"cz", now + day * kDay)));
    }
    return std::move(plan).result();
}

URLs planNova(const SourceHostTable& hosts, Moment now) {
    const std::optional<QString> base = hosts.base(u"NovaHost"_s);
    if (!base) {
        return std::nullopt;
    }
    return days(-1, 7, now, [&](Moment day) {
        return *base + "/program/?epg_date="_L1 + yearMonthDay(dateIn(u"cz", day));
    });
}

URLs planBNet(const SourceHostTable& hosts, const QString& sourceId, Moment now) {
    const std::optional<QString> base = hosts.base(u"BNetHost"_s, u"http"_s);
    const std::optional<QString> domain = hosts.name(u"BNetDomain"_s);
    if (!base || !domain) {
        return std::nullopt;
    }
    return days(-1, 5, now, [&](Moment day) {
        const QDate date = dateIn(u"hr", day);
        return *base + "/export/xmltv/"_L1 + sourceId + u'.' + *domain + u'_' + QString::number(date.year()) +
               u'-' + padded(date.month(), 2) + u'-' + padded(date.day(), 2) + ".xml"_L1;
    });
}

URLs planCinestar(const SourceHostTable& hosts, const QString& sourceId) {
    constexpr qsizetype kCountry = 9;
    if (sourceId.size() < kCountry + 2) {
        return std::nullopt;
    }
    const std::optional<QString> base = hosts.baseOfStem(u"CinestarHostStem"_s, sourceId.mid(kCountry, 2));
    return numberedPages(joined(base, "/raspored/"_L1), "?dan="_L1, 2, 7);
}

URLs planMojTV(const SourceHostTable& hosts, const QString& sourceId, Moment now, const RandomIndex& random) {
    const std::optional<QString> net = hosts.baseOfStem(u"MojTVHostStem"_s, u"net"_s);
    const std::optional<QString> hr = hosts.baseOfStem(u"MojTVHostStem"_s, u"hr"_s);
    if (!net || !hr) {
        return std::nullopt;
    }
    return days(0, 10, now, [&](Moment day) {
        const bool useNet = random(2) == 0;
        const QDate date = dateIn(useNet ? u"rs"_s : u"hr"_s, day);
        return (useNet ? *net : *hr) + "/xmltv/service.ashx?kanal_id"_L1 + sourceId + "&date="_L1 +
               QString::number(date.day()) + u'.' + QString::number(date.month()) + u'.' +
               QString::number(date.year()) + u'.';
    });
}

URLs planPortNetwork(const SourceHostTable& hosts, const QString& sourceId, Moment now) {
    const std::optional<QString> base = hosts.base(u"PortHost"_s);
    const int window =
        std::ranges::binary_search(kShortPortIds, sourceId.toInt()) ? kShortPortDays : kPortDays;
    return single(base, "/tvapi?channel_id=tvchannel-"_L1 + sourceId + "&i_datetime_from="_L1 +
                            yearMonthDay(dateIn(u"hu", now)) + "&i_datetime_to="_L1 +
                            yearMonthDay(dateIn(u"hu", now + window * kDay)));
}

URLs planTVProfil(const SourceHostTable& hosts, const QString& sourceId) {
    const QString key = u"TVProfilHost"_s;
    const std::optional<QString> name = hosts.name(key);
    if (!name) {
        return std::nullopt;
    }
    return single(hosts.base(key),
                  "/xmltv/data/"_L1 + sourceId + "/weekly_"_L1 + sourceId + u'_' + *name + ".xml"_L1);
}

} // namespace

URLPlanner::URLPlanner(SourceHostTable hosts, RandomIndex random)
    : m_hosts(std::move(hosts))
    , m_random(std::move(random)) {
    for (std::size_t family = 0; family < kFixedFeeds.size(); ++family) {
        const FixedFeed& feed = kFixedFeeds[family];
        // A missing host is told of when somebody asks for its family.
        if (!m_hosts.value(feed.key).isEmpty()) {
            m_fixed[family] =
                numberedPages(joined(m_hosts.base(feed.key), feed.path), feed.query, 1, feed.lastPage);
        }
    }
}

URLs URLPlanner::fixedList(FixedFamily family) const {
    const URLs& list = m_fixed[family];
    if (!list) {
        (void)m_hosts.base(kFixedFeeds[family].key); // for the log
    }
    return list;
}

URLs URLPlanner::urlsForSourceId(const QString& sourceId, Moment now, const QTimeZone& deviceZone) const {
    if (sourceId.startsWith("r."_L1)) {
        return planRytec(m_hosts, sourceId, m_random);
    }
    if (sourceId.startsWith("n."_L1)) {
        return fixedList(NFeed);
    }
    if (sourceId.startsWith("s."_L1)) {
        return fixedList(SFeed);
    }
    if (sourceId.startsWith("tvpc."_L1)) {
        return fixedList(TVPCFeed);
    }
    if (constexpr QLatin1StringView kPrefix = "dolce-sport."_L1; sourceId.startsWith(kPrefix)) {
        return single(m_hosts.base(u"DolceSportHost"_s), "/program/"_L1 + sourceId.mid(kPrefix.size()));
    }
    if (sourceId.startsWith(u'_')) {
        const QStringView code = QStringView(sourceId).mid(1);
        const bool isFree =
            std::ranges::any_of(kMediasetCodes, [code](QLatin1StringView known) { return code == known; });
        return fixedList(isFree ? Mediaset : MediasetPay);
    }
    if (sourceId.startsWith("http"_L1)) {
        return single(sourceId);
    }
    if (sourceId.startsWith("barrandov."_L1)) {
        return planBarrandov(m_hosts, now);
    }
    if (sourceId.startsWith("dsk."_L1)) {
        return fixedList(DigiSport);
    }
    if (sourceId.startsWith("joj."_L1)) {
        return planJojCinema(m_hosts, now);
    }
    if (sourceId.startsWith("-hbo."_L1)) {
        return planHBO(m_hosts, sourceId, now, deviceZone);
    }
    if (m_hosts.isPrimaMaxSourceId(sourceId)) {
        return planPrimaMax(m_hosts, now);
    }
    if (sourceId.startsWith("cz.nova."_L1)) {
        return planNova(m_hosts, now);
    }
    if (sourceId.endsWith(".tv"_L1)) {
        return planBNet(m_hosts, sourceId, now);
    }
    if (sourceId == "cc.romania"_L1) {
        return fixedList(ComedyCentral);
    }
    if (sourceId.startsWith("cinestar."_L1)) {
        return planCinestar(m_hosts, sourceId);
    }
    if (sourceId.startsWith(u'=')) {
        return planMojTV(m_hosts, sourceId, now, m_random);
    }
    if (sourceIdUsedByPortNetwork(sourceId)) {
        return planPortNetwork(m_hosts, sourceId, now);
    }
    return planTVProfil(m_hosts, sourceId);
}

} // namespace guide
