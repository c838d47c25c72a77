#pragma once

#include "platform/Clock.h"

#include <QString>

#include <memory>

namespace guide {

/// Everything that the demo runs on: a loopback server with generated feeds of eight days and with the pages
/// of DemoSites, and the three files that point the guide to it. Serves until it is destroyed.
class DemoEnvironment {
  public:
    /// Writes the files into `folder`, which is created if needed, and starts the server. `textFolder` is
    /// data/demo. The feeds cover eight days, from yesterday by the clock on, and are the same for the
    /// same day; the sites follow the clock, which must outlive the environment. Null, with a log
    /// line, when a text is missing or malformed, a file cannot be written or no port is free.
    static std::unique_ptr<DemoEnvironment> create(const QString& folder, const QString& textFolder,
                                                   const Clock& clock);
    ~DemoEnvironment();

    /// "Data.plist": the catalogue, dated later than any archive of an earlier run.
    QString cataloguePath() const;
    /// "hosts.json": the host table.
    QString hostsPath() const;
    /// "selection.json": the channels to select at first, a JSON array of identities.
    QString selectionPath() const;

    /// "http://127.0.0.1:PORT"
    QString serverBase() const;

  private:
    struct State;
    explicit DemoEnvironment(std::unique_ptr<State> state);
    std::unique_ptr<State> m_state;
};

} // namespace guide
