#pragma once

#include "platform/ProgramRunner.h"

namespace guide {

/// Runs each program in a session of its own, which is asked to end and then killed as a whole. A child that
/// starts another session escapes that.
class SpawnedProgramRunner final : public ProgramRunner {
  public:
    /// `grace` is the time between asking a program to end and killing it.
    explicit SpawnedProgramRunner(std::chrono::milliseconds grace = std::chrono::seconds(10))
        : m_grace(grace) {}

    ProgramEnd run(const ProgramRun& run) override;

  private:
    const std::chrono::milliseconds m_grace;
};

} // namespace guide
