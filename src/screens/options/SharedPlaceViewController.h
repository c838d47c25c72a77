#pragma once

#include "cloud/SharedPlaceActions.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"

#include <QString>

#include <memory>

namespace guide {

/// Where the user's data is for their other devices, and the choice of another place.
class SharedPlaceViewController final : public TableViewController {
  public:
    explicit SharedPlaceViewController(std::shared_ptr<const ScreenEnvironment> environment)
        : m_environment(std::move(environment)) {}

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void reloadTable();
    Section placeSection(const SharedPlace& place) const;
    Section choiceSection(const SharedPlace& place) const;
    void inputEvent(const RowEvent& event);
    void ask(const QString& address);
    void choose(const QString& address);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    QString m_input;
    QString m_problem;
    bool m_isTrying = false;
    LatestAnswer m_chosen;
};

/// One line on the state of the place: why nothing is shared now, or which device stored something last and
/// when. Empty when there is nothing to say.
QString sharedStateText(const SharedStoreState& state, const Device& device);

} // namespace guide
