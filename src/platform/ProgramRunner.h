#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <cstdint>
#include <functional>

namespace guide {

/// A program to run, without a shell.
struct ProgramRun {
    /// An absolute path.
    QString program;
    QStringList arguments;
    /// Where its standard output goes; empty for ProgramEnd::output.
    QString outputPath = {};
    /// A file that the program itself writes: it counts as output. May be empty.
    QString ownOutputPath = {};
    /// In bytes.
    std::int64_t mostOutput = 0;
    /// Without output of any kind.
    std::chrono::milliseconds longestSilence{0};
    std::chrono::milliseconds longest{0};
    /// Asked several times a second; true ends the program. May be empty.
    std::function<bool()> stopped = {};
};

struct ProgramEnd {
    enum class Reason { Exited, Crashed, NotStarted, Silent, TooLong, TooMuchOutput, Stopped, NoRoom };

    Reason reason = Reason::NotStarted;
    /// Of one that crashed, the signal.
    int exitStatus = 0;
    QByteArray output;
    std::int64_t outputBytes = 0;
    /// The last 64 KB of its standard error.
    QByteArray errorOutput;
};

/// Runs programs of the user's device.
class ProgramRunner {
  public:
    virtual ~ProgramRunner() = default;
    /// Blocks until the program has ended, and ends the children that it leaves. Its standard input is empty,
    /// it has no terminal, its own process group, and it yields to other programs. Not on the main thread.
    virtual ProgramEnd run(const ProgramRun& run) = 0;
};

} // namespace guide
