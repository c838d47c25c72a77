#include "core/Settings.h"

#include <algorithm>
#include <cmath>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kShowImages = "show_img"_L1;
constexpr auto kLargeImages = "bg_img"_L1;
constexpr auto kAspectRatio = "always_maintain_aspect_ratio"_L1;
constexpr auto kShowCount = "currently_show_count"_L1;
constexpr auto kUpdateInterval = "data_update"_L1;

constexpr int kDefaultShowCount = 4;
constexpr std::chrono::seconds kDefaultUpdateInterval{86'400};
constexpr double kLongestUpdateInterval = 100.0 * 366 * 86'400;

// Truncated to whole seconds and limited to what can be subtracted from a date.
std::chrono::seconds updateInterval(double seconds) {
    if (std::isnan(seconds)) {
        return kDefaultUpdateInterval;
    }
    return std::chrono::seconds(
        static_cast<std::int64_t>(std::clamp(seconds, -kLongestUpdateInterval, kLongestUpdateInterval)));
}

} // namespace

bool Settings::imagesEnabled() const {
    return m_userDefaults.boolForKey(kShowImages).value_or(true);
}

void Settings::setImagesEnabled(bool enabled) {
    m_userDefaults.setBool(kShowImages, enabled);
}

bool Settings::showBgImages() const {
    return m_userDefaults.boolForKey(kLargeImages).value_or(true);
}

void Settings::setShowBgImages(bool show) {
    m_userDefaults.setBool(kLargeImages, show);
}

bool Settings::alwaysMaintainsAspectRatio() const {
    return m_userDefaults.boolForKey(kAspectRatio).value_or(false);
}

void Settings::setAlwaysMaintainsAspectRatio(bool maintains) {
    m_userDefaults.setBool(kAspectRatio, maintains);
}

bool Settings::iconsFromOtherHosts() const {
    return m_userDefaults.boolForKey(u"own_icons_from_other_hosts"_s).value_or(false);
}

void Settings::setIconsFromOtherHosts(bool on) {
    m_userDefaults.setBool(u"own_icons_from_other_hosts"_s, on);
}

int Settings::showCount() const {
    const auto stored =
        static_cast<std::uint8_t>(m_userDefaults.integerForKey(kShowCount).value_or(0) & 0xff);
    return stored == 0 ? kDefaultShowCount : stored;
}

void Settings::setShowCount(int count) {
    m_userDefaults.setInteger(kShowCount, count);
}

bool Settings::colorizedShows() const {
    return m_userDefaults.boolForKey(u"colorizedShows"_s).value_or(false);
}

void Settings::setColorizedShows(bool colorized) {
    m_userDefaults.setBool(u"colorizedShows"_s, colorized);
}

std::chrono::seconds Settings::automaticUpdateInterval() const {
    if (const std::optional<std::int64_t> seconds = m_userDefaults.integerForKey(kUpdateInterval)) {
        return updateInterval(static_cast<double>(*seconds));
    }
    if (const std::optional<double> seconds = m_userDefaults.doubleForKey(kUpdateInterval)) {
        return updateInterval(*seconds);
    }
    return kDefaultUpdateInterval;
}

void Settings::setAutomaticUpdateInterval(std::chrono::seconds interval) {
    m_userDefaults.setInteger(kUpdateInterval, interval.count());
}

} // namespace guide
