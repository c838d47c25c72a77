#include "demo/DemoWorld.h"

#include "demo/DemoFeed.h"
#include "demo/DemoFiles.h"
#include "demo/ScheduleGenerator.h"
#include "demo/Town.h"
#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QtDebug>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The catalogue has the port of this run in it, so it has to count as newer than whatever an earlier run
/// kept of an earlier one, whichever clock that went by.
Moment newerThanAnyArchive(Moment now) {
    const auto system = std::chrono::time_point_cast<Moment::duration>(std::chrono::system_clock::now());
    return std::max(now, system) + std::chrono::days(365);
}

/// What begins between the two moments.
std::vector<Programme> programmesBetween(const DemoChannel& channel, Moment from, Moment until) {
    const QDate first = broadcastDay(from, channel.zone);
    const QDate last = broadcastDay(until, channel.zone);
    std::vector<Programme> programmes = schedule(channel, first, int(first.daysTo(last)) + 1);
    std::erase_if(programmes, [from, until](const Programme& programme) {
        return programme.start < from || programme.start >= until;
    });
    return programmes;
}

std::vector<SiteChannel> siteChannels(const Clock& clock) {
    std::vector<SiteChannel> channels;
    for (const DemoChannel& channel : demoChannels()) {
        for (const QString& source : channel.sources) {
            // Of such a page the guide keeps the last day alone, so there is but today.
            const bool todayAlone = source.startsWith("dsk."_L1);
            const SiteClock wall(channel.zone.constData());
            channels.push_back(
                {source, channel.title, [&channel, &clock, todayAlone, wall](Moment from, Moment until) {
                     return todayAlone && wall.date(from) > wall.date(clock.now())
                                ? std::vector<Programme>()
                                : programmesBetween(channel, from, until);
                 }});
        }
    }
    return channels;
}

} // namespace

struct DemoWorld::State {
    QString folder;
    std::unique_ptr<DemoServer> server;
};

DemoWorld::DemoWorld(std::unique_ptr<State> state)
    : m_state(std::move(state)) {}

DemoWorld::~DemoWorld() = default;

std::unique_ptr<DemoWorld> DemoWorld::create(const QString& folder, const Clock& clock) {
    const Moment now = clock.now();
    auto state = std::make_unique<State>();
    state->folder = QDir(folder).absolutePath();
    state->server = DemoServer::start();
    if (!state->server) {
        return nullptr;
    }
    const QString base = state->server->base();
    for (const PlacedFeed& placed :
         demoFeeds(now, "127.0.0.1:" + QByteArray::number(state->server->port()))) {
        for (const QByteArray& path : placed.paths) {
            state->server->serve(path,
                                 [feed = placed.feed](const ServedRequest&) { return feed->response(); });
        }
    }
    Town::open(*state->server, siteChannels(clock), [&clock] { return clock.now(); });
    std::unique_ptr<DemoWorld> world(new DemoWorld(std::move(state)));
    if (!QDir().mkpath(folder) ||
        !replaceFile(world->cataloguePath(), demoCatalogue(base), newerThanAnyArchive(now)) ||
        !replaceFile(world->hostsPath(), demoHosts(base)) ||
        !replaceFile(world->selectionPath(), demoSelectionFile())) {
        qWarning("demo: %s cannot be written", qUtf8Printable(folder));
        return nullptr;
    }
    return world;
}

QString DemoWorld::cataloguePath() const {
    return m_state->folder + u"/Data.plist"_s;
}

QString DemoWorld::hostsPath() const {
    return m_state->folder + u"/hosts.json"_s;
}

QString DemoWorld::selectionPath() const {
    return m_state->folder + u"/selection.json"_s;
}

DemoServer& DemoWorld::server() {
    return *m_state->server;
}

} // namespace guide
