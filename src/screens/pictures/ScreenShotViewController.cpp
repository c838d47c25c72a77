#include "screens/pictures/ScreenShotViewController.h"

#include "screens/Localized.h"

#include <cstdlib>
#include <utility>

namespace guide {

namespace {

/// Pictures further from the current page are dropped and loaded again when they are wanted.
constexpr int kKeptAtEitherSide = 2;

} // namespace

ScreenShotViewController::ScreenShotViewController(ShowPictures& pictures, std::vector<QUrl> urls,
                                                   std::function<void()> left)
    : m_pictures(pictures)
    , m_left(std::move(left)) {
    setTitle(Localized::tr("Pictures"));
    m_pages.reserve(urls.size());
    for (QUrl& url : urls) {
        m_pages.push_back({std::move(url)});
    }
}

void ScreenShotViewController::viewDidAppear() {
    if (m_pages.empty()) {
        m_left();
    }
}

void ScreenShotViewController::showPage(int page) {
    if (page < 0 || page >= pageCount() || page == m_current) {
        return;
    }
    m_current = page;
    dropDistantPictures();
    if (observer()) {
        observer()->currentPageChanged();
    }
    selected();
}

void ScreenShotViewController::setRoom(const QSizeF& size) {
    m_room = size;
    selected();
}

void ScreenShotViewController::selected() {
    if (!m_pages.empty() && !m_room.isEmpty()) {
        refreshWithIndex(m_current);
    }
}

void ScreenShotViewController::refreshWithIndex(int index) {
    Page& page = m_pages[static_cast<std::size_t>(index)];
    if (page.loading || !page.picture.isNull()) {
        return;
    }
    page.loading = true;
    m_pictures.imageAtURL(page.url, m_room, {weak_from_this(), [this, index](const QImage& picture) {
                                                 Page& loaded = m_pages[static_cast<std::size_t>(index)];
                                                 loaded.loading = false;
                                                 if (std::abs(index - m_current) <= kKeptAtEitherSide) {
                                                     loaded.picture = picture;
                                                 }
                                                 if (observer()) {
                                                     observer()->pageChanged(index);
                                                 }
                                             }});
}

void ScreenShotViewController::dropDistantPictures() {
    for (int index = 0; index < pageCount(); ++index) {
        QImage& picture = m_pages[static_cast<std::size_t>(index)].picture;
        if (std::abs(index - m_current) > kKeptAtEitherSide && !picture.isNull()) {
            picture = {};
            if (observer()) {
                observer()->pageChanged(index);
            }
        }
    }
}

} // namespace guide
