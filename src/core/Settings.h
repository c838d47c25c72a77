#pragma once

#include "platform/UserDefaults.h"

#include <chrono>

namespace guide {

/// The user's settings with their defaults; each call reads the stored value anew. Any thread.
class Settings {
  public:
    explicit Settings(UserDefaults& userDefaults)
        : m_userDefaults(userDefaults) {}

    /// "show_img" and "bg_img": true where the user has not chosen.
    bool imagesEnabled() const;
    bool showBgImages() const;

    /// "currently_show_count": how many shows a channel the now-on-air list holds, 1 to 255.
    int showCount() const;

    /// "colorizedShows": false where the user has not chosen.
    bool colorizedShows() const;
    void setColorizedShows(bool colorized);

    /// "data_update": how old a list may grow before it is loaded again; a day where the user has not chosen.
    std::chrono::seconds automaticUpdateInterval() const;

  private:
    UserDefaults& m_userDefaults;
};

} // namespace guide
