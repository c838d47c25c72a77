#include "demo/DemoWorld.h"

#include "demo/DemoFeed.h"
#include "demo/DemoFiles.h"
#include "platform/FileReplacement.h"

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

} // namespace

struct DemoWorld::State {
    QString folder;
    std::unique_ptr<DemoServer> server;
};

DemoWorld::DemoWorld(std::unique_ptr<State> state)
    : m_state(std::move(state)) {}

DemoWorld::~DemoWorld() = default;

std::unique_ptr<DemoWorld> DemoWorld::create(const QString& folder, Moment now) {
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
