#pragma once

#include "core/own/SourceStatus.h"
#include "platform/ProgramRunner.h"

#include <QDir>
#include <QString>
#include <QStringList>

#include <chrono>
#include <cstdint>
#include <functional>

namespace guide {

/// The folders of the PATH, and those of the user where grabbers are kept.
QStringList grabberFolders();

/// The paths of the programs in these folders whose names begin with "tv_grab_", each name once, from its
/// first folder, sorted by name. Runs none of them; reads the folders.
QStringList findGrabbers(const QStringList& folders = grabberFolders());

struct GrabRequest {
    QString program;
    /// The folder of the guide's own configurations of grabbers: NAME.conf, which may be empty.
    QString configurationFolder;
    /// Replaced by what a program that ended well prints, if it prints anything. The output of one that did
    /// not goes to beginningOf(path), so that the caller can compare before it replaces what is better.
    /// Its folder exists and holds the output while the program runs.
    QString path;
    std::function<bool()> stopped = {};
    /// Where grabbers keep the configurations that they make themselves.
    QString userConfigurationFolder = QDir::homePath() + QStringLiteral("/.xmltv");
    std::chrono::milliseconds longestSilence = std::chrono::minutes(10);
    std::chrono::milliseconds longest = std::chrono::minutes(30);
    std::int64_t mostOutput = std::int64_t{600} << 20;
};

struct Grab {
    /// Read when the program ended well, Incomplete when it ended badly but printed something, or why there
    /// is nothing.
    SourceResult result = SourceResult::None;
    /// Of one that ended badly by itself, its status.
    QString detail = {};
    /// What was written; empty for nothing.
    QString file = {};
    /// The end of what it wrote to its standard error, without what looks secret.
    QString output = {};
};

/// Runs a grabber: with a configuration and an output file when it says that it knows these options, else
/// without arguments. One that says that it needs a configuration and has none is not run. Blocks.
Grab grab(ProgramRunner& runner, const GrabRequest& request);

} // namespace guide
