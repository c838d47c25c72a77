#pragma once

#include "screens/ShowPictures.h"
#include "screens/kit/PicturePagesContent.h"
#include "screens/kit/ViewController.h"

#include <QUrl>

#include <functional>
#include <memory>
#include <vector>

namespace guide {

/// Shows pictures at full size, one a page. A page loads its picture when it is turned to; until then, and if
/// there is none, it shows that it is loading.
class ScreenShotViewController final : public ViewController, private PicturePagesContent {
  public:
    /// `pictures` must outlive the screen. `left` is called when the user leaves, and at once, when the
    /// screen appears, if there are no URLs.
    ScreenShotViewController(ShowPictures& pictures, std::vector<QUrl> urls, std::function<void()> left);

    PicturePagesContent& content() override { return *this; }

  protected:
    void viewDidAppear() override;

  private:
    struct Page {
        QUrl url;
        QImage picture = {};
        bool loading = false;
    };

    int pageCount() const override { return static_cast<int>(m_pages.size()); }
    int currentPage() const override { return m_current; }
    QImage picture(int page) const override { return m_pages[static_cast<std::size_t>(page)].picture; }
    void showPage(int page) override;
    void setRoom(const QSizeF& size) override;
    void leave() override { m_left(); }

    void selected();
    void refreshWithIndex(int index);
    void dropDistantPictures();

    ShowPictures& m_pictures;
    std::vector<Page> m_pages;
    const std::function<void()> m_left;
    QSizeF m_room;
    int m_current = 0;
};

} // namespace guide
