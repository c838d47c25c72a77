// What screens open outside themselves.

#include "app/QuellinGuideAppDelegate.h"
#include "screens/Localized.h"
#include "screens/ShowRows.h"
#include "screens/detail/DetailViewController.h"
#include "screens/pictures/ScreenShotViewController.h"
#include "screens/web/WebViewController.h"
#include "sources/WebURL.h"
#include "store/ShowDigest.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestAddress = 200;
constexpr auto kPlayPath = "/play"_L1;

} // namespace

void QuellinGuideAppDelegate::playURL(const QUrl& url) {
    if (m_playback) {
        m_playback->playURL(url);
    } else if (isWebURL(url) && m_environment.openExternally) {
        m_environment.openExternally(url);
    }
}

void QuellinGuideAppDelegate::openWebPage(const QUrl& url, const QString& title) {
    if (!isWebURL(url) || !m_environment.openExternally) {
        return;
    }
    if (!m_environment.drawsWebPages) {
        m_environment.openExternally(url);
        return;
    }
    m_tabBarController->selectedNavigationController().push(std::make_shared<WebViewController>(
        url, title,
        WebViewController::Surroundings{.userAgent = QString::fromLatin1(m_userAgent->value()),
                                        .networkActivity = *m_networkActivity,
                                        .openExternally = m_environment.openExternally}));
}

void QuellinGuideAppDelegate::openFolder(const QString& path) {
    if (m_environment.openExternally) {
        m_environment.openExternally(QUrl::fromLocalFile(path));
    }
}

void QuellinGuideAppDelegate::showPictures(const std::vector<QUrl>& urls) {
    m_tabBarController->presentCover(std::make_shared<ScreenShotViewController>(
        m_screenEnvironment->pictures, urls, [this] { m_tabBarController->dismissCover(); }));
}

void QuellinGuideAppDelegate::openURL(const QString& address) {
    const QUrl url = address.size() <= kLongestAddress ? QUrl(address, QUrl::StrictMode) : QUrl();
    const std::optional<ShowDigest> digest = digestOfUrl(url);
    const QUrl known = digest ? urlOfDigest(*digest, m_environment.scheme) : QUrl();
    const bool plays = url.path() == kPlayPath;
    // Some programs add a slash.
    if (!digest || url.adjusted(QUrl::StripTrailingSlash | QUrl::RemovePath) != known ||
        (url.path().size() > 1 && !plays)) {
        presentNotice({.text = Localized::tr("This is not the address of a show.")});
        return;
    }
    // The owner of the blocks is gone after the destruction.
    m_listings->showWithURL(known, {m_alive, [this, plays](const ShowItem& show) { openShow(show, plays); }},
                            {m_alive, [this] { sayShowIsGone(); }});
}

void QuellinGuideAppDelegate::sayShowIsGone() {
    presentNotice({.text = Localized::tr("This show is over, or not on your channels.")});
}

void QuellinGuideAppDelegate::openShow(const ShowItem& show, bool plays) {
    const TVEntry& entry = *show.entry();
    if (entry.endDateTime() && *entry.endDateTime() < m_environment.clock.now()) {
        sayShowIsGone();
        return;
    }
    if (!m_tabBarController) {
        return;
    }
    moviePlayerPlaybackDidFinish();
    m_tabBarController->dismissCover();
    const SharedCatalogueSnapshot catalogue = m_catalogue.snapshot();
    const CatalogueChannel* channel = catalogue->find(entry.channel());
    m_tabBarController->selectedNavigationController().push(std::make_shared<DetailViewController>(
        m_screenEnvironment, show, channel ? channel->icon : QString()));
    const std::optional<QUrl> stream = streamURLOf(*catalogue, entry.channel());
    if (plays && stream) {
        playURL(*stream);
    }
}

} // namespace guide
