#pragma once

#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"
#include "screens/sources/SourceActions.h"

#include <functional>
#include <memory>

namespace guide {

/// The sources that the user added, those with a problem first.
class OwnSourcesViewController final : public ListingsScreen {
  public:
    /// `openCatalogue` is offered where a source is added; it may be empty.
    OwnSourcesViewController(std::shared_ptr<const ScreenEnvironment> environment,
                             std::function<void()> openCatalogue);

    void ownSourcesChanged() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;

  private:
    void show();
    Section iconSection() const;
    Row sourceRow(const OwnSource& source) const;
    void add();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const std::function<void()> m_openCatalogue;
};

} // namespace guide
