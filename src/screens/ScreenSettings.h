#pragma once

#include <chrono>

namespace guide {

/// The settings that screens read and the options change; a change takes effect at once. Main queue.
class ScreenSettings {
  public:
    virtual ~ScreenSettings() = default;

    /// Whether shows have pictures.
    virtual bool imagesEnabled() const = 0;
    virtual void setImagesEnabled(bool enabled) = 0;
    /// Whether the page of a show has a large one.
    virtual bool showBgImages() const = 0;
    virtual void setShowBgImages(bool show) = 0;
    /// Whether large pictures are shown whole, rather than cut to fill their place.
    virtual bool alwaysMaintainsAspectRatio() const = 0;
    virtual void setAlwaysMaintainsAspectRatio(bool maintains) = 0;

    virtual bool colorizedShows() const = 0;
    virtual void setColorizedShows(bool colorized) = 0;

    /// How many shows of each channel the first screen lists.
    virtual int showCount() const = 0;
    virtual void setShowCount(int count) = 0;
    /// How old a list may get before it is loaded again.
    virtual std::chrono::seconds automaticUpdateInterval() const = 0;
    virtual void setAutomaticUpdateInterval(std::chrono::seconds interval) = 0;
};

} // namespace guide
