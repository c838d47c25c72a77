#pragma once

#include "platform/UserDefaults.h"

#include <chrono>

namespace guide {

/// The user's settings with their defaults; each call reads the stored value again. Any thread.
class Settings {
  public:
    explicit Settings(UserDefaults& userDefaults)
        : m_userDefaults(userDefaults) {}

    /// "show_img" and "bg_img": default true.
    bool imagesEnabled() const;
    bool showBgImages() const;

    /// "own_icons_from_other_hosts": whether the icons of the user's own channels are fetched from hosts
    /// other than those of their feeds and playlists; default false.
    bool iconsFromOtherHosts() const;
    void setIconsFromOtherHosts(bool on);

    /// "currently_show_count": how many shows per channel the now-on-air list holds, 1 to 255.
    int showCount() const;

    /// "colorizedShows": default false.
    bool colorizedShows() const;
    void setColorizedShows(bool colorized);

    /// "data_update": how old a list may become before it is loaded again; default one day.
    std::chrono::seconds automaticUpdateInterval() const;

  private:
    UserDefaults& m_userDefaults;
};

} // namespace guide
