#pragma once

#include "cloud/UserDataActions.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>
#include <optional>

namespace guide {

/// Says what erasing the user's data removes, and does it.
class EraseViewController final : public TableViewController {
  public:
    explicit EraseViewController(std::shared_ptr<const ScreenEnvironment> environment)
        : m_environment(std::move(environment)) {}

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void count();
    void reloadTable();
    void ask();
    void erase();
    void erased(const UserDataCounts& removed);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    /// What there is; unset before it is known.
    std::optional<UserDataCounts> m_counts;
    /// Also what is left otherwise.
    bool m_more = true;
    bool m_erasing = false;
    LatestAnswer m_counted;
    LatestAnswer m_erased;
};

} // namespace guide
