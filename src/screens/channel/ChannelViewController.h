#pragma once

#include "screens/DaySections.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

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

    void applicationDidBecomeActive() override { reloadChannelData(); }
    void offerTopShows(const TopShows&) override { reloadChannelData(); }
    void reloadData() override { reloadChannelData(); }
    void recolor() override;
    void notificationsSynched() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidDisappear() override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;
    void didPullToRefresh() override { refresh(); }

  private:
    void initializeContentWithEntriesArray(const ShowSpan& entries);
    void reloadTable();
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
    LatestAnswer m_list;
};

} // namespace guide
