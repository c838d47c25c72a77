#pragma once

#include "screens/DaySections.h"
#include "screens/MinuteTick.h"
#include "screens/ShowRows.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"
#include "store/ShownEnds.h"

#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

namespace guide {

/// The whole remaining schedule of one channel, a section for each day.
class ChannelViewController final : public ListingsScreen {
  public:
    /// `entries` is the part of the schedule that the opener already has.
    ChannelViewController(std::shared_ptr<const ScreenEnvironment> environment, const QString& title,
                          const ShowSpan& entries, const QString& channelIconName, const ObjectId& channel);

    const ObjectId& channel() const { return m_channel; }

    /// Shows what the update cycle has stored, unless the channel is still being loaded or due.
    void reloadChannelData();

    void applicationDidBecomeActive() override;
    void offerTopShows(const TopShows&) override { reloadChannelData(); }
    void loadsEnded(const std::unordered_set<ObjectId>& channels) override;
    void reloadData() override { reloadChannelData(); }
    void recolor() override;
    void notificationsSynched() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;
    void didPullToRefresh() override { refresh(); }

  private:
    /// Null for a row that is not a show.
    const ShowItem* shownShow(const RowId& id) const;
    void initializeContentWithEntriesArray(const ShowSpan& entries);
    void reloadTable();
    Row showRow(RowId id, const ShowItem& show, const ShowRows& showRows) const;
    bool isRunning(const TVEntry& entry, Moment now) const;
    void minuteBegan();
    /// Empty unless the last load of the channel stored nothing.
    QString failure() const;
    bool dueForReload(const TVChannel& record) const;
    void refresh();
    void refreshActive();
    void refreshDone();
    void setButtons(BarButton first);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const QString m_channelTitle;
    const QString m_channelIconName;
    const ObjectId m_channel;
    std::optional<QUrl> m_streamURL;
    std::vector<DaySection> m_days;
    ShownEnds m_ends;
    MinuteTick m_minuteTick;
    LatestAnswer m_list;
};

} // namespace guide
