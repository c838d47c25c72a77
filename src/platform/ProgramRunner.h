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
    QString program;
    QStringList arguments;
    /// Where its standard output goes; empty for ProgramEnd::output.
    QString outputPath = {};
    std::int64_t mostOutput = 0;
    /// Without any output.
    std::chrono::milliseconds longestSilence{0};
    std::chrono::milliseconds longest{0};
    std::function<bool()> stopped = {};
};

struct ProgramEnd {
    enum class Reason { Exited, Crashed, NotStarted, Silent, TooLong, TooMuchOutput, Stopped, NoRoom };

    Reason reason = Reason::NotStarted;
    int exitStatus = 0;
    QByteArray output;
    std::int64_t outputBytes = 0;
    /// The last 64 KB.
    QByteArray errorOutput;
};

/// Runs programs of the user's device.
class ProgramRunner {
  public:
    virtual ~ProgramRunner() = default;
    /// Blocks until the program and its children have ended. Its standard input is empty, it has its own
    /// process group and yields to other programs. Not on the main thread.
    virtual ProgramEnd run(const ProgramRun& run) = 0;
};

} // namespace guide
