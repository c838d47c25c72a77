#pragma once

#include "alarms/CalendarActions.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>

namespace guide {

/// Lists the calendars of the device by account, and lets the user choose the one for alarms while there are
/// none.
class CalendarsViewController final : public ListingsScreen {
  public:
    /// Needs calendar actions.
    explicit CalendarsViewController(std::shared_ptr<const ScreenEnvironment> environment);

    void notificationsSynched() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void load();
    void reloadTable();
    Row calendarRow(const SectionId& section, const EventCalendar& calendar) const;
    /// Says so when the calendar cannot be changed.
    bool mayChange() const;
    void select(const EventCalendar& calendar);
    void create();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    CalendarChoice m_choice;
    bool m_loaded = false;
    bool m_creating = false;
    LatestAnswer m_calendars;
    LatestAnswer m_created;
};

} // namespace guide
