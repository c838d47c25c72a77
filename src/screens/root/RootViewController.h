#pragma once

#include "platform/queues/DispatchQueue.h"
#include "screens/MinuteTick.h"
#include "screens/ShowRows.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/root/RowPictures.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <QImage>
#include <QUrl>

#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace guide {

/// What is on now: a section for each selected channel, identified by its hexadecimal id, with the channel's
/// own row first and its current and next shows below. Shows that end give way on the minute while the screen
/// is visible.
class RootViewController final : public ListingsScreen, private RowPicturesScreen {
  public:
    explicit RootViewController(std::shared_ptr<const ScreenEnvironment> environment);

    /// Rebuilds all sections from a query; the load queue is suspended until they are complete. Does nothing
    /// before the screen is loaded.
    void selectedChannelsChanged();
    /// Replaces the shows of one channel. Does nothing when the list is empty or the channel has no section.
    void reloadChannel(const ObjectId& channel, const ShowSpan& entries);
    void setShowImage(const QImage& image, const ObjectId& channel, const QString& showIdentifier) override;

    void applicationDidBecomeActive() override;
    void offerTopShows(const TopShows& top) override;
    void loadsEnded(const std::unordered_set<ObjectId>& channels) override;
    void recolor() override;
    void notificationsSynched() override;
    void selectionCleanedUp() override;
    void setModifiedSelectedChannels(bool modified) override { m_modifiedSelectedChannels = modified; }

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void didPullToRefresh() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;
    void rowWillBeDisplayed(const RowId& id) override;

  private:
    /// The content of one section.
    struct Channel {
        ObjectId identificator;
        QString title;
        QString iconName = {};
        PictureKey icon = {};
        std::optional<QUrl> stream = {};
        ShowItems entries = {};
    };

    Channel channelNamed(const ObjectId& identificator, const CatalogueSnapshot& catalogue) const;
    void setChannels(const std::vector<ObjectId>& selected, const std::vector<ShowSpan>& entries);
    /// Null when the channel has no section.
    Channel* shownChannel(const ObjectId& identificator);
    /// Null for a row that is not a show.
    const ShowItem* shownShow(const RowId& id);
    /// Returns whether the channel's list was replaced.
    bool takeList(const ObjectId& channel, const ShowSpan& entries);

    void minuteBegan();
    /// Asks for the shows that take the place of those that have ended.
    void refill();
    /// Asks for a check if a channel has run out of shows although its list is not due.
    void loadWhatRanOut();

    std::vector<Row> rowsOf(const Channel& channel, const ShowRows& showRows) const;
    Row channelRow(const Channel& channel) const;
    /// Why the last load of the channel stored nothing, unless it is being tried again.
    std::optional<LoadFailure> failureOf(const TVChannel& record) const;
    void reloadTable();
    void reloadRows(const std::unordered_set<ObjectId>& channels);
    void reloadRows(const ObjectId& channel) { reloadRows(std::unordered_set{channel}); }

    void selectedChannel(const Channel& channel);
    void openShow(const ShowItem& show);
    void tryAgain(const ObjectId& channel);
    /// Opens the channels with their streams.
    void list();

    static QString identificatorOf(const ShowItem& show);
    const ShowItems* showsOf(const ObjectId& channel) override;
    void detailsLoaded(const ObjectId& channel, const ShowItems& completed,
                       const std::vector<QImage>& images) override;

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    std::vector<Channel> m_channels;
    RowPictures m_pictures;
    /// When the rows were made.
    bool m_imagesEnabled = true;
    bool m_modifiedSelectedChannels = false;
    LatestAnswer m_rebuild;
    /// Held until the latest rebuild is answered.
    SuspensionToken m_loadQueueSuspension;
    LatestAnswer m_refill;
    LatestAnswer m_opening;
    MinuteTick m_minuteTick;
    /// When the shows that have ended were last removed.
    Moment m_upToDateAt = Moment::min();
    /// The channels that the user wants to load again, until their loads begin.
    std::unordered_set<ObjectId> m_tryingAgain;
};

} // namespace guide
