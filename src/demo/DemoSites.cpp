#include "demo/DemoSites.h"

#include "demo/pages/Pages.h"

#include <QUrl>

#include <algorithm>
#include <memory>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

struct Site {
    QLatin1StringView path;
    /// The host table's key; empty when the family has several keys or, like Prima Max, none.
    QLatin1StringView hostKey;
    bool (*serves)(const QString& sourceId);
    SitePage page;
    const char* contentType;
};

constexpr const char* kHTML = "text/html; charset=utf-8";
constexpr QLatin1StringView kMaxPath = "/max"_L1;

bool isNumber(const QString& sourceId) {
    return !sourceId.isEmpty() && !sourceId.startsWith(u'0') &&
           std::all_of(sourceId.begin(), sourceId.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool isFreeCode(const QString& sourceId) {
    static const QStringList codes{u"_C5"_s, u"_I1"_s, u"_I2"_s,    u"_R4"_s,  u"_KA"_s,
                                   u"_KQ"_s, u"_KI"_s, u"_BOING"_s, u"_CRTN"_s};
    return codes.contains(sourceId);
}

bool isPayCode(const QString& sourceId) {
    return sourceId.startsWith(u'_') && !isFreeCode(sourceId);
}

/// The archive has no schedules: it serves the broadcasts of one channel that has another source.
bool isArchive(const QString& sourceId) {
    return sourceId == "r.domov.vyhled.demo"_L1;
}

const std::vector<Site>& sites() {
    static const std::vector<Site> all{
        {"/port"_L1, "PortHost"_L1, isNumber, portNetworkPage, "application/json"},
        {"/pls"_L1, {}, isNumber, portPopup, kHTML},
        {"/palinsesto"_L1, "MediasetHost"_L1, isFreeCode, freePalinsestoPage, "text/xml; charset=utf-8"},
        {"/pay"_L1, "MediasetPayHost"_L1, isPayCode, payPalinsestoPage, "text/xml; charset=utf-8"},
        {"/dolce"_L1, "DolceSportHost"_L1, [](const QString& id) { return id.startsWith("dolce-sport."_L1); },
         dolceSportPage, kHTML},
        {"/comedy"_L1, "ComedyCentralHost"_L1, [](const QString& id) { return id == "cc.romania"_L1; },
         comedyCentralPage, kHTML},
        {"/digi"_L1, "DigiSportHost"_L1, [](const QString& id) { return id.startsWith("dsk."_L1); },
         digiSportPage, kHTML},
        {"/joj"_L1, "JojCinemaHost"_L1, [](const QString& id) { return id.startsWith("joj."_L1); },
         jojCinemaPage, kHTML},
        {"/barrandov"_L1, "BarrandovHost"_L1,
         [](const QString& id) { return id.startsWith("barrandov."_L1); }, barrandovPage, kHTML},
        {"/hbo"_L1, {}, [](const QString& id) { return id.startsWith("-hbo."_L1); }, hboPage, kHTML},
        {kMaxPath, {}, [](const QString& id) { return id.endsWith(kMaxPath); }, primaMaxPage, kHTML},
        {"/nova"_L1, "NovaHost"_L1, [](const QString& id) { return id.startsWith("cz.nova."_L1); }, novaPage,
         kHTML},
        {"/cinestar"_L1,
         {},
         [](const QString& id) { return id.startsWith("cinestar."_L1); },
         cinestarPage,
         kHTML},
        {"/archive"_L1, "HRTHost"_L1, isArchive, archivePage, kHTML},
    };
    return all;
}

/// A site with its channels.
struct OpenSite {
    Site site;
    std::vector<SiteChannel> channels;
    std::function<Moment()> now;

    ServerReply reply(const ServerRequest& request) const {
        const QUrl url = QUrl::fromEncoded(request.target.sliced(site.path.size()));
        const std::optional<QByteArray> page =
            site.page({channels, now(), url.path(), QUrlQuery(url.query())});
        return page ? ServerReply::ok(*page, {QByteArray("Content-Type: ") + site.contentType})
                    : ServerReply::answer(404, "<html><body><h1>404</h1></body></html>\n",
                                          {QByteArray("Content-Type: ") + kHTML});
    }
};

} // namespace

bool DemoSites::serves(const QString& sourceId) {
    return std::any_of(sites().begin(), sites().end(), [&sourceId](const Site& site) {
        return site.serves(sourceId) && !isArchive(sourceId);
    });
}

std::map<QString, QString> DemoSites::hosts(const QString& base) {
    std::map<QString, QString> hosts{{u"PrimaMaxSourceId"_s, base + kMaxPath},
                                     {u"CinestarHostStem"_s, base + u"/cinestar/%@"_s}};
    for (const QString& country : {u"hu"_s, u"hr"_s, u"ba"_s, u"rs"_s, u"ro"_s, u"cz"_s, u"sk"_s}) {
        hosts[u"HBOHost."_s + country] = base + u"/hbo/"_s + country;
        hosts[u"HBODetailHost."_s + country] = base + u"/hbo/"_s + country;
    }
    for (const Site& site : sites()) {
        if (!site.hostKey.isEmpty()) {
            hosts[site.hostKey] = base + site.path;
        }
    }
    return hosts;
}

void DemoSites::open(RequestRouter& router, const std::vector<SiteChannel>& channels,
                     const std::function<Moment()>& now) {
    for (const Site& site : sites()) {
        auto open = std::make_shared<OpenSite>(OpenSite{site, {}, now});
        std::copy_if(channels.begin(), channels.end(), std::back_inserter(open->channels),
                     [&site](const SiteChannel& channel) { return site.serves(channel.sourceId); });
        router.serveBelow(QByteArray(site.path.data(), site.path.size()) + '/',
                          [open](const ServerRequest& request) { return open->reply(request); });
    }
}

} // namespace guide
