#include "parsers/xmltv/FeedPlans.h"

namespace guide {

using namespace Qt::StringLiterals;

PlannedURLs planRytecFeed(const PlanRequest& request) {
    constexpr qsizetype kGroup = 2;
    const qsizetype end = request.sourceId.indexOf(u'.', kGroup);
    if (end < 0) {
        return std::nullopt;
    }
    const std::optional<QString> mirrorA = request.hosts.base(u"RytecMirrorA"_s);
    const std::optional<QString> mirrorB = request.hosts.base(u"RytecMirrorB"_s);
    if (!mirrorA || !mirrorB) {
        return std::nullopt;
    }
    const QString& mirror = request.random(2) == 0 ? *mirrorA : *mirrorB;
    return singleURL(mirror, "/rytec"_L1 + request.sourceId.mid(kGroup, end - kGroup) + ".xz"_L1);
}

PlannedURLs planNFeed(const PlanRequest& request) {
    return singleURL(request.hosts.base(u"NFeedHost"_s), u"/epg.xml"_s);
}

PlannedURLs planSFeed(const PlanRequest& request) {
    return singleURL(request.hosts.base(u"SFeedHost"_s), u"/losmij/epg.xml.gz"_s);
}

PlannedURLs planTVPCFeed(const PlanRequest& request) {
    return singleURL(request.hosts.base(u"TVPCFeedHost"_s), u"/xmltv.xml"_s);
}

PlannedURLs planDirectURL(const PlanRequest& request) {
    return singleURL(request.sourceId, QString());
}

PlannedURLs planBNetFiles(const PlanRequest& request) {
    const std::optional<QString> base = request.hosts.base(u"BNetHost"_s, u"http"_s);
    const std::optional<QString> domain = request.hosts.name(u"BNetDomain"_s);
    if (!base || !domain) {
        return std::nullopt;
    }
    return dailyURLs(-1, 5, request.now, [&](Moment day) {
        const QDate date = dateAtServer(u"hr", day);
        return *base + "/export/xmltv/"_L1 + request.sourceId + u'.' + *domain + u'_' +
               QString::number(date.year()) + u'-' + paddedNumber(date.month(), 2) + u'-' +
               paddedNumber(date.day(), 2) + ".xml"_L1;
    });
}

PlannedURLs planMojTVFiles(const PlanRequest& request) {
    const std::optional<QString> net = request.hosts.baseOfStem(u"MojTVHostStem"_s, u"net"_s);
    const std::optional<QString> hr = request.hosts.baseOfStem(u"MojTVHostStem"_s, u"hr"_s);
    if (!net || !hr) {
        return std::nullopt;
    }
    return dailyURLs(0, 10, request.now, [&](Moment day) {
        const bool useNet = request.random(2) == 0;
        const QDate date = dateAtServer(useNet ? u"rs" : u"hr", day);
        return (useNet ? *net : *hr) + "/xmltv/service.ashx?kanal_id"_L1 + request.sourceId + "&date="_L1 +
               QString::number(date.day()) + u'.' + QString::number(date.month()) + u'.' +
               QString::number(date.year()) + u'.';
    });
}

PlannedURLs planTVProfilFile(const PlanRequest& request) {
    const QString key = u"TVProfilHost"_s;
    const std::optional<QString> name = request.hosts.name(key);
    if (!name) {
        return std::nullopt;
    }
    return singleURL(request.hosts.base(key), "/xmltv/data/"_L1 + request.sourceId + "/weekly_"_L1 +
                                                  request.sourceId + u'_' + *name + ".xml"_L1);
}

} // namespace guide
