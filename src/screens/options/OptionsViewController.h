#pragma once

#include "platform/AlarmRinging.h"
#include "platform/BackgroundUpdates.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/kit/TableViewController.h"
#include "screens/options/UserDataSection.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace guide {

/// The settings of the guide: colours, alarms, silent hours, what is displayed, and the user's data. Leads to
/// the calendars.
class OptionsViewController final : public ListingsScreen {
  public:
    explicit OptionsViewController(std::shared_ptr<const ScreenEnvironment> environment);

    void notificationsSynched() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void setButtons();
    void reloadTable();
    Section silentHoursSection() const;
    Section displaySection();
    void loadRinging();
    std::optional<Section> ringingSection() const;
    void setRinging(bool on);
    void loadUpdates();
    std::optional<Section> updatesSection() const;
    void setUpdates(bool on);
    void presentSessionError(const QString& text);
    void toggled(const QString& name, bool on);
    void chosen(const QString& name, std::size_t choice);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    /// Unset before it is known.
    std::optional<AlarmRingingState> m_ringing;
    LatestAnswer m_ringingRead;
    LatestAnswer m_ringingSet;
    BackgroundUpdates::State m_updates = BackgroundUpdates::State::Unavailable;
    LatestAnswer m_updatesRead;
    LatestAnswer m_updatesSet;
    UserDataSection m_userData;
    // What is offered, in order.
    std::vector<int> m_showCounts;
    std::vector<std::chrono::seconds> m_intervals;
};

} // namespace guide
