#pragma once

#include "screens/kit/Content.h"

#include <QImage>
#include <QSizeF>

namespace guide {

class PicturePagesObserver {
  public:
    virtual ~PicturePagesObserver() = default;
    /// picture() changed.
    virtual void pageChanged(int page) = 0;
    virtual void currentPageChanged() = 0;
};

/// Pictures, one a page. Main queue.
class PicturePagesContent : public Content {
  public:
    ContentKind kind() const final { return ContentKind::PicturePages; }

    virtual int pageCount() const = 0;
    virtual int currentPage() const = 0;
    /// Null while it is loading, and when it cannot be had.
    virtual QImage picture(int page) const = 0;

    /// One observer at a time. It must outlive the content or be unregistered with nullptr.
    void setObserver(PicturePagesObserver* observer) { m_observer = observer; }

    // ---- the user's events

    virtual void showPage(int page) = 0;
    /// The room for a picture, in points.
    virtual void setRoom(const QSizeF& size) = 0;
    virtual void leave() = 0;

  protected:
    PicturePagesObserver* observer() const { return m_observer; }

  private:
    PicturePagesObserver* m_observer = nullptr;
};

} // namespace guide
