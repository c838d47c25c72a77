#pragma once

#include "screens/shell/ScreenEnvironment.h"

#include <QImage>
#include <QSet>
#include <QString>
#include <QUrl>

#include <chrono>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace guide {

/// A screen whose rows show pictures. Main queue.
class RowPicturesScreen {
  public:
    virtual ~RowPicturesScreen() = default;

    /// Null when the channel is not shown.
    virtual const ShowItems* showsOf(const ObjectId& channel) = 0;
    /// Of the shows with that identifier on the channel; a null image means that they have none.
    virtual void setShowImage(const QImage& image, const ObjectId& channel,
                              const QString& showIdentifier) = 0;
    /// The details of the channel's shows were loaded, with a picture for each, which may be null.
    virtual void detailsLoaded(const ObjectId& channel, const ShowItems& completed,
                               const std::vector<QImage>& images) = 0;
};

/// Loads the pictures of a screen's shows when their rows are displayed, and once for each channel what its
/// shows lack. The screen owns it and is the owner that is passed. Main queue.
class RowPictures {
  public:
    RowPictures(const ScreenEnvironment& environment, RowPicturesScreen& screen)
        : m_environment(environment)
        , m_screen(screen) {}

    void rowDisplayed(const ShowItem& show, const std::weak_ptr<const void>& owner);
    /// The channel has other shows now.
    void forgetChannel(const ObjectId& channel) { m_loading.erase(channel); }

  private:
    static constexpr std::chrono::milliseconds kDelay{200};

    void loadPicture(const QUrl& url, const ObjectId& channel, const QString& showIdentifier,
                     const std::weak_ptr<const void>& owner);
    void startDetailPass(const ObjectId& channel, const std::weak_ptr<const void>& owner);
    bool applicationActive() const;

    const ScreenEnvironment& m_environment;
    RowPicturesScreen& m_screen;
    /// By channel, the identifiers of the shows whose pictures are being loaded.
    std::unordered_map<ObjectId, QSet<QString>> m_loading;
    std::unordered_set<ObjectId> m_channelsWithLoadedShowDetails;
};

} // namespace guide
