#pragma once

#include "platform/queues/MainBlock.h"
#include "store/ShowItem.h"

#include <QImage>
#include <QSizeF>
#include <QString>
#include <QUrl>

#include <functional>
#include <vector>

namespace guide {

/// Loads the pictures of show rows. Called on the main queue, works in the background.
class ShowPictures {
  public:
    virtual ~ShowPictures() = default;

    /// One picture at the size of a row's picture; a null image when loading fails.
    virtual void asyncLoadOfShowImageAtURL(const QUrl& url, MainBlock<QImage> mainBlock) = 0;

    /// One picture that the user waits for, within the size in points; a null image when loading fails.
    virtual void imageAtURL(const QUrl& url, const QSizeF& size, MainBlock<QImage> mainBlock) = 0;

    using SetShowImage =
        std::function<void(const QImage& image, const ObjectId& channel, const QString& showIdentifier)>;

    /// Answers with the same shows, completed with their details, and one picture for each of them: a null
    /// image for a show without a picture. Pictures that are found on IMDb are passed to `setShowImage` on
    /// the main queue, also after the answer.
    virtual void loadDetailsOfShows(ShowItems shows, SetShowImage setShowImage,
                                    MainBlock<ShowItems, std::vector<QImage>> mainBlock) = 0;
};

/// For a guide that loads no pictures. Never answers.
class NoShowPictures final : public ShowPictures {
  public:
    void asyncLoadOfShowImageAtURL(const QUrl&, MainBlock<QImage>) override {}
    void imageAtURL(const QUrl&, const QSizeF&, MainBlock<QImage>) override {}
    void loadDetailsOfShows(ShowItems, SetShowImage, MainBlock<ShowItems, std::vector<QImage>>) override {}
};

} // namespace guide
