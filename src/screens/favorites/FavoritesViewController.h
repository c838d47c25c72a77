#pragma once

#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>

namespace guide {

/// The titles of the favourites, to be opened or removed.
class FavoritesViewController final : public ListingsScreen {
  public:
    explicit FavoritesViewController(std::shared_ptr<const ScreenEnvironment> environment);

    void notificationsSynched() override { reloadTable(); }
    void recolor() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;

  private:
    void reloadTable();
    /// Offers to undo it.
    void remove(const QStringList& titles);
    void askToRemoveAll();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    /// In alphabetical order.
    QStringList m_titles;
};

} // namespace guide
