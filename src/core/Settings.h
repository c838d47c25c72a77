#pragma once

#include "platform/UserDefaults.h"

#include <chrono>

namespace guide {

/// The user's settings with their defaults; each call reads the stored value again. Any thread.
class Settings {
  public:
    explicit Settings(UserDefaults& userDefaults)
        : m_userDefaults(userDefaults) {}

    /// "show_img": whether shows have pictures, and "bg_img": also large ones on their pages; default true.
    bool imagesEnabled() const;
    void setImagesEnabled(bool enabled);
    bool showBgImages() const;
    void setShowBgImages(bool show);

    /// "always_maintain_aspect_ratio": whether large pictures are never cut; default false.
    bool alwaysMaintainsAspectRatio() const;
    void setAlwaysMaintainsAspectRatio(bool maintains);

    /// "own_icons_from_other_hosts": whether the icons of the user's own channels are fetched from hosts
    /// other than those of their feeds and playlists; default false.
    bool iconsFromOtherHosts() const;
    void setIconsFromOtherHosts(bool on);

    /// "currently_show_count": how many shows per channel the now-on-air list holds, 1 to 255.
    int showCount() const;
    void setShowCount(int count);

    /// "colorizedShows": default false.
    bool colorizedShows() const;
    void setColorizedShows(bool colorized);

    /// "data_update": how old a list may become before it is loaded again; default one day.
    std::chrono::seconds automaticUpdateInterval() const;
    void setAutomaticUpdateInterval(std::chrono::seconds interval);

  private:
    UserDefaults& m_userDefaults;
};

} // namespace guide
