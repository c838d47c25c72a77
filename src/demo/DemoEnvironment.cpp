#include "demo/DemoEnvironment.h"

#include "demo/DemoFiles.h"
#include "demo/DemoSites.h"
#include "demo/feeds/DemoFeed.h"
#include "demo/pages/Pictures.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QtDebug>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestClip = 1 << 20;

/// The catalogue contains the port of this run, so it must count as newer than the archive of any earlier
/// run, whichever clock that run used.
Moment newerThanAnyArchive(Moment now) {
    const auto system = std::chrono::time_point_cast<Moment::duration>(std::chrono::system_clock::now());
    return std::max(now, system) + std::chrono::days(365);
}

/// The programmes that begin in [from, until).
std::vector<Programme> programmesBetween(const ScheduleGenerator& generator, const DemoChannel& channel,
                                         Moment from, Moment until) {
    const QDate first = broadcastDay(from, channel.zone);
    const QDate last = broadcastDay(until, channel.zone);
    std::vector<Programme> programmes = generator.schedule(channel, first, int(first.daysTo(last)) + 1);
    std::erase_if(programmes, [from, until](const Programme& programme) {
        return programme.start < from || programme.start >= until;
    });
    return programmes;
}

std::vector<SiteChannel> siteChannels(const ScheduleGenerator& generator, const Clock& clock) {
    std::vector<SiteChannel> channels;
    for (const DemoChannel& channel : demoChannels()) {
        for (const QString& source : channel.sources) {
            // The guide keeps only the last day of such a page, so the page covers only today.
            const bool onlyToday = source.startsWith("dsk."_L1);
            const SiteClock local(channel.zone.constData());
            channels.push_back({source, channel.title,
                                [generator, &channel, &clock, onlyToday, local](Moment from, Moment until) {
                                    return onlyToday && local.date(from) > local.date(clock.now())
                                               ? std::vector<Programme>()
                                               : programmesBetween(generator, channel, from, until);
                                }});
        }
    }
    return channels;
}

} // namespace

struct DemoEnvironment::State {
    QString folder;
    RequestRouter router;
    std::unique_ptr<HTTPServer> server;
};

DemoEnvironment::DemoEnvironment(std::unique_ptr<State> state)
    : m_state(std::move(state)) {}

DemoEnvironment::~DemoEnvironment() = default;

std::unique_ptr<DemoEnvironment> DemoEnvironment::create(const QString& folder, const QString& textFolder,
                                                         const Clock& clock) {
    const auto texts = DemoTexts::load(textFolder);
    if (!texts) {
        return nullptr;
    }
    auto state = std::make_unique<State>();
    state->folder = QDir(folder).absolutePath();
    state->server = HTTPServer::start([&router = state->router](const ServerRequest& request) {
        return router.reply(request).value_or(ServerReply::answer(404, {}));
    });
    if (!state->server) {
        return nullptr;
    }
    const Moment now = clock.now();
    const ScheduleGenerator generator(texts);
    for (const PlacedFeed& placed : demoFeeds(generator, now, state->server->authority())) {
        for (const QByteArray& target : placed.targets) {
            state->router.serve(target, [feed = placed.feed](const ServerRequest&) { return feed->reply(); });
        }
    }
    state->router.serve(QByteArray(kDemoPlaylist.data(), kDemoPlaylist.size()),
                        [list = ServerReply::ok(demoPlaylist(state->server->base()))](const ServerRequest&) {
                            return ServerReply(list);
                        });
    state->router.serveBelow("/pictures/", [](const ServerRequest& request) {
        return ServerReply::ok(showPicture(request.target), {"Content-Type: image/svg+xml"});
    });
    const auto clip = fileContent(textFolder + u"/clip.ogv"_s, kLargestClip);
    if (!clip) {
        qWarning("demo: the clip of the streams is missing");
        return nullptr;
    }
    // Without a length, like a live stream: players would seek in it.
    const ServerReply reply = ServerReply::raw(ServerReply::head(200, {"Content-Type: video/ogg"}) + *clip);
    state->router.serveBelow(QByteArray(kStreams.data(), kStreams.size()),
                             [reply](const ServerRequest&) { return ServerReply(reply); });
    DemoSites::open(state->router, siteChannels(generator, clock), [&clock] { return clock.now(); });

    std::unique_ptr<DemoEnvironment> environment(new DemoEnvironment(std::move(state)));
    const QString base = environment->serverBase();
    if (!QDir().mkpath(folder) ||
        !replaceFile(environment->cataloguePath(), demoCatalogue(base), newerThanAnyArchive(now)) ||
        !replaceFile(environment->hostsPath(), demoHosts(base)) ||
        !replaceFile(environment->selectionPath(), demoSelectionFile())) {
        qWarning("demo: cannot write to %s", qUtf8Printable(folder));
        return nullptr;
    }
    return environment;
}

QString DemoEnvironment::cataloguePath() const {
    return m_state->folder + u"/Data.plist"_s;
}

QString DemoEnvironment::hostsPath() const {
    return m_state->folder + u"/hosts.json"_s;
}

QString DemoEnvironment::selectionPath() const {
    return m_state->folder + u"/selection.json"_s;
}

QString DemoEnvironment::serverBase() const {
    return m_state->server->base();
}

} // namespace guide
