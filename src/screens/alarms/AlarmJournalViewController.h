#pragma once

#include "alarms/AlarmExplanations.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>
#include <vector>

namespace guide {

/// What was done to alarms and why, the newest first, a section for each day. Rows are made in the
/// background.
class AlarmJournalViewController final : public ListingsScreen {
  public:
    /// Needs explanations of alarms.
    explicit AlarmJournalViewController(std::shared_ptr<const ScreenEnvironment> environment);

    void notificationsSynched() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;

  private:
    void load();
    void makeRows(const JournalEntries& entries);
    /// Null when there is no such entry any more.
    const JournalEntry* entryOf(const RowId& id) const;
    /// Whether the user removed the alarm in the calendar, it came back, and the broadcast can be refused.
    bool canRefuse(const JournalEntry& entry) const;
    void refuse(const JournalEntry& entry);
    void openBroadcasts(const QString& title);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    /// The newest last.
    JournalEntries m_entries;
    /// Of their rows.
    QStringList m_names;
    /// Of the query, and of the rows that are made of its answer.
    LatestAnswer m_latest;
};

} // namespace guide
