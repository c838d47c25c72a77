#pragma once

#include "platform/queues/DispatchQueue.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <QHash>
#include <QImage>
#include <QSet>
#include <QUrl>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace guide {

/// What is on now: a section for each selected channel, with the channel's own row first and its current and
/// next shows below.
class RootViewController final : public ListingsScreen {
  public:
    explicit RootViewController(std::shared_ptr<const ScreenEnvironment> environment);

    /// Rebuilds all sections from a query; the load queue is suspended until they stand. Does nothing before
    /// the screen is loaded.
    void selectedChannelsChanged();
    /// A fresh list of one channel: only the rows that say something else change. Ignored when the list is
    /// empty or the channel has no section.
    void reloadChannel(const ObjectId& channel, const ShowSpan& entries);
    /// A picture for the shows of that title on the channel; a null image for shows known to have none.
    void setShowImage(const QImage& image, const ObjectId& channel, const QString& showIdentifier);

    void applicationDidBecomeActive() override;
    void offerTopShows(const TopShows& top) override;
    void recolor() override;
    void notificationsSynched() override;
    void selectionCleanedUp() override;
    void setModifiedSelectedChannels(bool modified) override { m_modifiedSelectedChannels = modified; }

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    std::vector<SwipeAction> swipeActionsForRow(IndexPath path) override;
    void didSelectRow(IndexPath path) override;
    void didTapAccessory(IndexPath path) override;
    void rowWillBeDisplayed(IndexPath path) override;

  private:
    /// One section: a channel and its shows.
    struct Channel {
        ObjectId identificator;
        QString title;
        QString iconName;
        QImage icon;
        ShowItems entries;
    };
    using Images = QHash<QString, QImage>;
    /// The pictures of one channel's shows, by identificator. A null image: looked for, and there is none.
    struct Pictures {
        Images images;
        /// What is being loaded, or has been.
        QSet<QString> asked;
    };
    static constexpr std::chrono::milliseconds kPictureDelay{200};

    Channel channelNamed(const ObjectId& identificator) const;
    void setChannels(const std::vector<ObjectId>& selected, const std::vector<ShowSpan>& entries);
    std::optional<int> sectionOfChannel(const ObjectId& channel) const;
    bool applicationActive() const;

    std::vector<Row> rowsOf(const Channel& channel) const;
    Row channelRow(const Channel& channel) const;
    void reloadTable();

    void selectedChannel(const Channel& channel);

    static QString identificatorOf(const ShowItem& show);
    std::optional<QImage> showImage(const ObjectId& channel, const QString& showIdentifier) const;
    void loadPicture(const QUrl& url, const ObjectId& channel, const QString& showIdentifier);
    void startDetailPass(const ObjectId& channel);
    void detailsLoaded(const ObjectId& channel, const ShowItems& asked, const ShowItems& completed,
                       const std::vector<QImage>& images);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    std::vector<Channel> m_channels;
    std::unordered_map<ObjectId, Pictures> m_pictures;
    std::unordered_set<ObjectId> m_channelsWithLoadedShowDetails;
    bool m_modifiedSelectedChannels = false;
    /// Counts the queries, so that a late answer does not replace a newer one.
    std::uint64_t m_asked = 0;
    std::uint64_t m_shown = 0;
    /// Of the queries that have no answer yet: hold the load queue.
    std::unordered_map<std::uint64_t, SuspensionToken> m_suspensions;
};

} // namespace guide
