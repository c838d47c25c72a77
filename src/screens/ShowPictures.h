#pragma once

#include "platform/queues/MainBlock.h"
#include "store/ShowItem.h"

#include <QImage>
#include <QUrl>

#include <vector>

namespace guide {

/// Loads the pictures of show rows. Called on the main queue, works in the background.
class ShowPictures {
  public:
    virtual ~ShowPictures() = default;

    /// One picture at the size of a row's picture; a null image when loading fails.
    virtual void asyncLoadOfShowImageAtURL(const QUrl& url, MainBlock<QImage> mainBlock) = 0;

    /// Answers with the same shows, completed with their details, and one picture for each of them: a null
    /// image for a show without a picture.
    virtual void loadDetailsOfShows(ShowItems shows, MainBlock<ShowItems, std::vector<QImage>> mainBlock) = 0;
};

/// For a guide that loads no pictures. Never answers.
class NoShowPictures final : public ShowPictures {
  public:
    void asyncLoadOfShowImageAtURL(const QUrl&, MainBlock<QImage>) override {}
    void loadDetailsOfShows(ShowItems, MainBlock<ShowItems, std::vector<QImage>>) override {}
};

} // namespace guide
