#pragma once

#include "demo/pages/SiteRequest.h"
#include "demo/server/RequestRouter.h"

#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace guide {

/// The web sites of the source families that have schedule pages, each below a path of one server.
class DemoSites {
  public:
    /// Whether one of the sites has the schedule of this source id.
    static bool serves(const QString& sourceId);

    /// The host table's entries for the sites on a server with this base URL.
    static std::map<QString, QString> hosts(const QString& base);

    /// Adds the sites to the router. Channels whose source ids belong to no site are ignored. `now` is called
    /// for each request, on the server's threads.
    static void open(RequestRouter& router, const std::vector<SiteChannel>& channels,
                     const std::function<Moment()>& now);
};

} // namespace guide
