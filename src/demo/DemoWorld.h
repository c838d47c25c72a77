#pragma once

#include "demo/DemoServer.h"
#include "platform/Clock.h"

#include <QString>

#include <memory>

namespace guide {

/// The demo: made-up channels with made-up shows, served on loopback by feeds of several families, with
/// eight days each, and by the town's sites, with as many as a site shows, and the three files that lead the
/// guide there. Serves for as long as it lives. The icons of its channels are those that come with the
/// program.
class DemoWorld {
  public:
    /// Writes the files into the folder, which is made when it is missing, and starts the server. The shows
    /// of the feeds lie around the clock's now: from the day before to six days ahead; the same for the same
    /// day, whenever it is asked. The sites go with the clock, which outlives the world. Null, with a log
    /// line, when a file cannot be written or no port is free.
    static std::unique_ptr<DemoWorld> create(const QString& folder, const Clock& clock);
    ~DemoWorld();

    /// "Data.plist": the catalogue. Dated so that no archive of an earlier run counts as newer.
    QString cataloguePath() const;
    /// "hosts.json": the host table.
    QString hostsPath() const;
    /// "selection.json": the channels to show where nothing is selected yet, a JSON array of identities.
    QString selectionPath() const;

    DemoServer& server();

  private:
    struct State;
    explicit DemoWorld(std::unique_ptr<State> state);
    std::unique_ptr<State> m_state;
};

} // namespace guide
