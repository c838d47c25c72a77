#pragma once

#include "platform/FileWatch.h"

#include <chrono>

namespace guide {

/// Watches with inotify. Files of network folders that others change are not reported.
class LinuxFileWatch final : public FileWatch {
  public:
    /// `quiet` is how long nothing must have happened.
    explicit LinuxFileWatch(std::chrono::milliseconds quiet = std::chrono::seconds(2))
        : m_quiet(quiet) {}

    [[nodiscard]] Token watch(const QString& path, std::function<void()> changed) override;

  private:
    class PathWatch;

    const std::chrono::milliseconds m_quiet;
};

} // namespace guide
