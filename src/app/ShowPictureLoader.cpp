#include "app/ShowPictureLoader.h"

#include "core/PictureDecoding.h"

#include <algorithm>
#include <utility>

namespace guide {

namespace {

/// Of the smaller side of the screen.
constexpr double kRowPictureShare = 0.3125;
constexpr std::chrono::milliseconds kLookForSchedulesEvery{500};

QSizeF rowPictureSize(const Device& device) {
    const QSizeF screen = device.screenSize();
    const double side = std::min(screen.width(), screen.height()) * kRowPictureShare - 1;
    return {side, side};
}

} // namespace

ShowPictureLoader::ShowPictureLoader(ShowPictureLoaderEnvironment environment)
    : m_environment(std::move(environment))
    , m_rowPicture(rowPictureSize(m_environment.device))
    , m_scale(m_environment.device.screenScale())
    , m_rowQueue(m_environment.queues.makeQueue("vorel.tv.rowImage.load", QueueKind::Serial,
                                                QueuePriority::Background))
    , m_loadImageQueue(m_environment.queues.makeQueue("vorel.tv.image.load", QueueKind::Serial,
                                                      QueuePriority::UserInitiated)) {}

void ShowPictureLoader::asyncLoadOfShowImageAtURL(const QUrl& url, MainBlock<QImage> mainBlock) {
    behindSchedules([this, url, mainBlock]() mutable {
        mainBlock.post(m_environment.queues.mainQueue(), image100AtURL(url));
    });
}

void ShowPictureLoader::imageAtURL(const QUrl& url, const QSizeF& size, MainBlock<QImage> mainBlock) {
    m_loadImageQueue->async([this, url, size, mainBlock]() mutable {
        mainBlock.post(m_environment.queues.mainQueue(), imageAtURL(url, size, PictureFetcher::Load::Again));
    });
}

void ShowPictureLoader::loadDetailsOfShows(ShowItems shows, SetShowImage setShowImage,
                                           MainBlock<ShowItems, std::vector<QImage>> mainBlock) {
    behindSchedules(
        [this, shows = std::move(shows), setShowImage = std::move(setShowImage), mainBlock]() mutable {
            std::vector<QImage> images;
            for (ShowItem& show : shows) {
                if (m_environment.stopped()) {
                    return;
                }
                askForIMDbLink(show, setShowImage);
                CompletedShow made = completed(show);
                show = std::move(made.show);
                images.push_back(std::move(made.image));
            }
            mainBlock.post(m_environment.queues.mainQueue(), std::move(shows), std::move(images));
        });
}

ShowPictureLoader::CompletedShow ShowPictureLoader::completed(const ShowItem& show) const {
    if (show.details()) {
        return {show, anyImage(show.pictures())};
    }
    const auto found =
        show.entry()->encodedUrl() ? m_environment.lookup.description(show.entry()) : std::nullopt;
    if (!found) {
        return {show, {}};
    }
    const TVListingsCategory categories = show.categories().value_or(0) | found->categories().value_or(0);
    return {ShowItem(show.entry(), categories, found->details(), found->pictures()),
            anyImage(found->pictures())};
}

void ShowPictureLoader::askForIMDbLink(const ShowItem& show, const SetShowImage& setShowImage) {
    if (!show.pictures().isEmpty() || (show.details() && show.details()->imdbURL)) {
        return;
    }
    m_environment.lookup.imdbLink(show, [this, show, setShowImage](const IMDbLink& link) {
        const TVEntry& entry = *show.entry();
        const QString identificator = entry.identificator().value_or(QString());
        m_environment.listings.updateIMDBForChannel(
            entry.channel(), identificator, show.categories().value_or(0), link.page,
            link.picture ? PictureURLs{*link.picture} : PictureURLs());
        if (!link.picture) {
            return;
        }
        behindSchedules([this, url = *link.picture, channel = entry.channel(), identificator, setShowImage] {
            const QImage image = image100AtURL(url);
            if (!image.isNull()) {
                m_environment.queues.mainQueue().async([channel, identificator, image, setShowImage] {
                    setShowImage(image, channel, identificator);
                });
            }
        });
    });
}

QImage ShowPictureLoader::anyImage(const PictureURLs& pictures) const {
    return pictures.isEmpty() ? QImage() : image100AtURL(pictures.first());
}

QImage ShowPictureLoader::image100AtURL(const QUrl& url) const {
    return imageAtURL(url, m_rowPicture, PictureFetcher::Load::Yes);
}

QImage ShowPictureLoader::imageAtURL(const QUrl& url, const QSizeF& size, PictureFetcher::Load load) const {
    const QByteArray file = m_environment.fetcher.fetch(url, load);
    return decodedPicture(file, kShowPictureLimits, [this, &size](const QSize& own, bool) {
        return scaledPictureSize(own, size, m_scale);
    });
}

void ShowPictureLoader::behindSchedules(Block work, std::chrono::milliseconds waited) {
    m_rowQueue->async([this, work = std::move(work), waited]() mutable {
        if (waited < kLongestWait && m_environment.loadsSchedules() && !m_environment.stopped()) {
            m_rowQueue->asyncAfter(kLookForSchedulesEvery, [this, work = std::move(work), waited]() mutable {
                behindSchedules(std::move(work), waited + kLookForSchedulesEvery);
            });
            return;
        }
        work();
    });
}

} // namespace guide
