#pragma once

#include "core/own/SourceStatus.h"
#include "platform/ProgramRunner.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace guide {

/// A program that prints a feed, by the conventions of such programs.
struct Grabber {
    QString path;
    /// What the program says that it is; else its name.
    QString description;
    bool hasBaseline = false;
    bool hasManualConfiguration = false;
};

/// Those in the folders of the PATH and in the user's own folders, each once, sorted by description. Asks
/// each; blocks.
std::vector<Grabber> findGrabbers(ProgramRunner& runner, const std::function<bool()>& stopped = {});

struct GrabRequest {
    QString program;
    /// The folder of the guide's own configurations of grabbers.
    QString configurationFolder;
    /// Replaced by what the program prints, if it prints anything.
    QString path;
    std::function<bool()> stopped = {};
};

struct Grab {
    /// Read when the program ended well, Incomplete when it ended badly but printed something, or why there
    /// is nothing.
    SourceResult result = SourceResult::None;
    QString detail;
    /// The end of what it wrote to its standard error.
    QString output;
};

/// Runs a grabber. Blocks, for at most half an hour.
Grab grab(ProgramRunner& runner, const GrabRequest& request);

} // namespace guide
