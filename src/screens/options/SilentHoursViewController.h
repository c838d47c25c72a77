#pragma once

#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <QTime>

#include <memory>

namespace guide {

/// The daily period in which generated alarms do not ring. A change reaches the alarms when the screen is
/// left.
class SilentHoursViewController final : public ListingsScreen {
  public:
    explicit SilentHoursViewController(std::shared_ptr<const ScreenEnvironment> environment);

    /// The program may end there.
    void applicationDidEnterBackground() override { apply(); }

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override { reloadTable(); }
    void viewDidDisappear() override { apply(); }
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void reloadTable();
    void apply();
    void timeChanged(bool isEnd, const QTime& time);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    bool m_modified = false;
};

} // namespace guide
