#include "core/Settings.h"

#include <algorithm>
#include <cmath>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

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
    return m_userDefaults.boolForKey(u"show_img"_s).value_or(true);
}

bool Settings::showBgImages() const {
    return m_userDefaults.boolForKey(u"bg_img"_s).value_or(true);
}

bool Settings::iconsFromOtherHosts() const {
    return m_userDefaults.boolForKey(u"own_icons_from_other_hosts"_s).value_or(false);
}

void Settings::setIconsFromOtherHosts(bool on) {
    m_userDefaults.setBool(u"own_icons_from_other_hosts"_s, on);
}

int Settings::showCount() const {
    const auto stored =
        static_cast<std::uint8_t>(m_userDefaults.integerForKey(u"currently_show_count"_s).value_or(0) & 0xff);
    return stored == 0 ? kDefaultShowCount : stored;
}

bool Settings::colorizedShows() const {
    return m_userDefaults.boolForKey(u"colorizedShows"_s).value_or(false);
}

void Settings::setColorizedShows(bool colorized) {
    m_userDefaults.setBool(u"colorizedShows"_s, colorized);
}

std::chrono::seconds Settings::automaticUpdateInterval() const {
    const QString key = u"data_update"_s;
    if (const std::optional<std::int64_t> seconds = m_userDefaults.integerForKey(key)) {
        return updateInterval(static_cast<double>(*seconds));
    }
    if (const std::optional<double> seconds = m_userDefaults.doubleForKey(key)) {
        return updateInterval(*seconds);
    }
    return kDefaultUpdateInterval;
}

} // namespace guide
