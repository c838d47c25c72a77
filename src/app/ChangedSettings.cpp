// Settings that the user changes in the options.

#include "app/QuellinGuideAppDelegate.h"

namespace guide {

void QuellinGuideAppDelegate::setImagesEnabled(bool enabled) {
    m_settings.setImagesEnabled(enabled);
    readSettings();
    m_screens->recolor();
}

void QuellinGuideAppDelegate::setShowBgImages(bool show) {
    m_settings.setShowBgImages(show);
    readSettings();
    m_screens->recolor();
}

void QuellinGuideAppDelegate::setAlwaysMaintainsAspectRatio(bool maintains) {
    m_settings.setAlwaysMaintainsAspectRatio(maintains);
    m_screens->recolor();
}

void QuellinGuideAppDelegate::setColorizedShows(bool colorized) {
    m_settings.setColorizedShows(colorized);
    m_colorizedShows = colorized;
    m_screens->recolor();
}

void QuellinGuideAppDelegate::setShowCount(int count) {
    m_settings.setShowCount(count);
    readSettings();
    // The first screen asks for its shows again.
    m_screens->selectionCleanedUp();
    // A channel that has fewer shows left is due now.
    checkAndUpdateAllChannels();
}

void QuellinGuideAppDelegate::setAutomaticUpdateInterval(std::chrono::seconds interval) {
    m_settings.setAutomaticUpdateInterval(interval);
    checkAndUpdateAllChannels();
}

} // namespace guide
