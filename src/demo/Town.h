#pragma once

#include "demo/DemoServer.h"
#include "demo/pages/SiteVisit.h"

#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace guide {

/// A town of broadcasters on one server: the site of every family that has pages of its own, each below a
/// path of its own.
class Town {
  public:
    /// Whether a site of the town has the schedules of such source ids.
    static bool has(const QString& sourceId);

    /// The source id of the Prima Max site, which is its place on the server with this host and port.
    static QString primaMaxSourceId(const QString& authority);

    /// What the host table says of the sites on a server with this base URL.
    static std::map<QString, QString> hosts(const QString& base);

    /// Has the server answer for the sites. Channels of a source id that no site has are left out. `now` is
    /// asked for at each visit, on the server's threads.
    static void open(DemoServer& server, const std::vector<SiteChannel>& channels,
                     std::function<Moment()> now);
};

} // namespace guide
