#pragma once

#include <chrono>

namespace guide {

/// The settings that screens read. Main queue.
class ScreenSettings {
  public:
    virtual ~ScreenSettings() = default;
    virtual bool imagesEnabled() const = 0;
    virtual bool colorizedShows() const = 0;
    /// How old a list may get before it is loaded again.
    virtual std::chrono::seconds automaticUpdateInterval() const = 0;
};

} // namespace guide
