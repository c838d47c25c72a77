#pragma once

#include "platform/ProgramRunner.h"
#include "platform/files/FileReplacement.h"

#include <mutex>
#include <utility>
#include <vector>

namespace guide {

/// Runs no programs: answers as the function says. Records every run.
class ScriptedProgramRunner final : public ProgramRunner {
  public:
    using Answer = std::function<ProgramEnd(const ProgramRun& run)>;

    explicit ScriptedProgramRunner(Answer answer)
        : m_answer(std::move(answer)) {}

    ProgramEnd run(const ProgramRun& run) override {
        ProgramEnd end = m_answer(run);
        const std::lock_guard lock(m_guard);
        m_runs.push_back(run);
        end.outputBytes = end.output.size();
        if (!run.outputPath.isEmpty() && !replaceFile(run.outputPath, std::exchange(end.output, {}))) {
            end.reason = ProgramEnd::Reason::NoRoom;
        }
        return end;
    }

    std::vector<ProgramRun> runs() const {
        const std::lock_guard lock(m_guard);
        return m_runs;
    }

    /// The end of a program that exits by itself.
    static ProgramEnd printed(const QByteArray& output, int exitStatus = 0) {
        ProgramEnd end;
        end.reason = ProgramEnd::Reason::Exited;
        end.exitStatus = exitStatus;
        end.output = output;
        return end;
    }

  private:
    const Answer m_answer;
    mutable std::mutex m_guard;
    std::vector<ProgramRun> m_runs; // guarded
};

} // namespace guide
