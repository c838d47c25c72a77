#pragma once

#include "app/WebShowLookup.h"
#include "platform/Device.h"
#include "platform/queues/DispatchQueue.h"
#include "screens/ShowPictures.h"
#include "sources/PictureFetcher.h"
#include "store/TVListings.h"

#include <chrono>
#include <functional>
#include <memory>

namespace guide {

/// What the loader works with. All of it must outlive the last block on the queues.
struct ShowPictureLoaderEnvironment {
    DispatchQueues& queues;
    const Device& device;
    PictureFetcher& fetcher;
    const WebShowLookup& lookup;
    TVListings& listings;
    /// Whether schedules are being loaded, which the pictures of rows wait for.
    std::function<bool()> loadsSchedules;
    /// Ends a pass that is at work.
    std::function<bool()> stopped;
};

/// Fetches and decodes the pictures of shows one at a time. The pictures of rows wait, for a limited time,
/// until schedules are loaded.
class ShowPictureLoader final : public ShowPictures {
  public:
    static constexpr std::chrono::seconds kLongestWait{30};

    explicit ShowPictureLoader(ShowPictureLoaderEnvironment environment);

    void asyncLoadOfShowImageAtURL(const QUrl& url, MainBlock<QImage> mainBlock) override;
    void imageAtURL(const QUrl& url, const QSizeF& size, MainBlock<QImage> mainBlock) override;
    void loadDetailsOfShows(ShowItems shows, SetShowImage setShowImage,
                            MainBlock<ShowItems, std::vector<QImage>> mainBlock) override;

  private:
    struct CompletedShow {
        ShowItem show;
        QImage image;
    };

    QImage imageAtURL(const QUrl& url, const QSizeF& size, PictureFetcher::Load load) const;
    /// A picture at the size of a row's picture.
    QImage image100AtURL(const QUrl& url) const;
    QImage anyImage(const PictureURLs& pictures) const;
    CompletedShow completed(const ShowItem& show) const;
    void askForIMDbLink(const ShowItem& show, const SetShowImage& setShowImage);
    void behindSchedules(Block work, std::chrono::milliseconds waited = {});

    const ShowPictureLoaderEnvironment m_environment;
    const QSizeF m_rowPicture;
    const double m_scale;
    const std::shared_ptr<DispatchQueue> m_rowQueue;
    const std::shared_ptr<DispatchQueue> m_loadImageQueue;
};

} // namespace guide
