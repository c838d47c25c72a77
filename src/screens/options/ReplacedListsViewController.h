#pragma once

#include "cloud/ReplacedList.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>
#include <vector>

namespace guide {

/// The favourites and channels that other devices have replaced. A tap brings a list back.
class ReplacedListsViewController final : public TableViewController {
  public:
    explicit ReplacedListsViewController(std::shared_ptr<const ScreenEnvironment> environment)
        : m_environment(std::move(environment)) {}

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void load();
    void reloadTable();
    void ask(const ReplacedList& list);
    void restore(const ReplacedList& list);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    std::vector<ReplacedList> m_lists;
    LatestAnswer m_loaded;
    LatestAnswer m_restored;
};

} // namespace guide
