#pragma once

#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"

#include <QTime>

#include <memory>

namespace guide {

/// The daily period in which generated alarms do not ring. A change reaches the alarms when the screen is
/// left.
class SilentHoursViewController final : public TableViewController {
  public:
    explicit SilentHoursViewController(std::shared_ptr<const ScreenEnvironment> environment);

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override { reloadTable(); }
    void viewDidDisappear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void reloadTable();
    void timeChanged(bool isEnd, const QTime& time);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    bool m_modified = false;
};

} // namespace guide
