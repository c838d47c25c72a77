#pragma once

#include "platform/queues/MainBlock.h"
#include "store/ShowItem.h"

#include <QImage>
#include <QUrl>

#include <vector>

namespace guide {

/// Where the pictures of show rows come from. Asked on the main queue, works in the background.
class ShowPictures {
  public:
    virtual ~ShowPictures() = default;

    /// One picture, at the size of a row's picture; a null image when it could not be had.
    virtual void asyncLoadOfShowImageAtURL(const QUrl& url, MainBlock<QImage> mainBlock) = 0;

    /// The same shows, completed with what can be found out about each, and a picture for each of them: a
    /// null image for a show that has none.
    virtual void loadDetailsOfShows(ShowItems shows, MainBlock<ShowItems, std::vector<QImage>> mainBlock) = 0;
};

/// For a guide without pictures from the network: never answers.
class NoShowPictures final : public ShowPictures {
  public:
    void asyncLoadOfShowImageAtURL(const QUrl&, MainBlock<QImage>) override {}
    void loadDetailsOfShows(ShowItems, MainBlock<ShowItems, std::vector<QImage>>) override {}
};

} // namespace guide
