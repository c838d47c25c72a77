#include "screens/root/RowPictures.h"

namespace guide {

void RowPictures::rowDisplayed(const ShowItem& show, const std::weak_ptr<const void>& owner) {
    const ObjectId channel = show.entry()->channel();
    const QString identifier = show.entry()->identificator().value_or(QString());
    const bool imagesEnabled = m_environment.settings.imagesEnabled();
    if (imagesEnabled && m_environment.pictureCache.find(channel, identifier)) {
        return;
    }
    if (imagesEnabled && !show.pictures().isEmpty()) {
        loadPicture(show.pictures().first(), channel, identifier, owner);
    }
    if (!imagesEnabled || m_channelsWithLoadedShowDetails.contains(channel)) {
        return;
    }
    const auto record = m_environment.channels.channelWithChannelId(channel);
    if (record &&
        record->reloadNeeded(m_environment.clock.now(), m_environment.settings.automaticUpdateInterval())) {
        return;
    }
    m_channelsWithLoadedShowDetails.insert(channel);
    if (applicationActive()) {
        m_environment.mainQueue.asyncAfter(kDelay, [this, channel, owner] {
            if (const auto alive = owner.lock(); alive && applicationActive()) {
                startDetailPass(channel, owner);
            }
        });
    }
}

void RowPictures::loadPicture(const QUrl& url, const ObjectId& channel, const QString& showIdentifier,
                              const std::weak_ptr<const void>& owner) {
    QSet<QString>& loading = m_loading[channel];
    if (loading.contains(showIdentifier)) {
        return;
    }
    loading.insert(showIdentifier);
    m_environment.mainQueue.asyncAfter(kDelay, [this, url, channel, showIdentifier, owner] {
        const auto alive = owner.lock();
        if (!alive) {
            return;
        }
        m_environment.pictures.asyncLoadOfShowImageAtURL(
            url, {owner, [this, channel, showIdentifier](const QImage& image) {
                      // The cache has the answer from now on, and may drop it.
                      if (const auto shows = m_loading.find(channel); shows != m_loading.end()) {
                          shows->second.remove(showIdentifier);
                      }
                      m_screen.setShowImage(image, channel, showIdentifier);
                  }});
    });
}

void RowPictures::startDetailPass(const ObjectId& channel, const std::weak_ptr<const void>& owner) {
    const ShowItems* shows = m_screen.showsOf(channel);
    if (!shows) {
        return;
    }
    m_environment.pictures.loadDetailsOfShows(
        *shows,
        [this, owner](const QImage& image, const ObjectId& of, const QString& showIdentifier) {
            if (const auto alive = owner.lock(); alive && applicationActive()) {
                m_screen.setShowImage(image, of, showIdentifier);
            }
        },
        {owner, [this, channel](const ShowItems& completed, const std::vector<QImage>& images) {
             if (applicationActive()) {
                 m_screen.detailsLoaded(channel, completed, images);
             }
         }});
}

bool RowPictures::applicationActive() const {
    return m_environment.applicationState.applicationState() == ApplicationState::Active;
}

} // namespace guide
