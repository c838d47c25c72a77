#pragma once

#include "cloud/SharedPlaceActions.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/kit/TableViewController.h"
#include "screens/options/AddressTexts.h"
#include "screens/shell/ScreenEnvironment.h"

#include <QString>

#include <memory>
#include <optional>

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
    Section nameSection(const SharedPlace& place) const;
    Row passwordRow(const QString& section, const QString& password, bool hasProblem) const;
    bool canUse() const;
    void inputEdited(const TextEdited& edited, bool isPassword);
    void passwordEdited(const TextEdited& edited);
    void usePassword();
    void nameEdited(const TextEdited& edited);
    void setInput(PlaceInput input);
    void chooseFolder();
    void ask();
    void choose(const QString& address);
    void offerToCreate(const QString& path);
    void create(const QString& path);
    void begin();
    void end(const QString& why);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    PlaceInput m_input;
    /// Raised when the screen, rather than the user, changes the input.
    int m_revision = 0;
    QString m_problem;
    bool m_isPasswordProblem = false;
    /// About the current place rather than another one.
    bool m_isProblemHere = false;
    /// For the current place.
    QString m_newPassword;
    bool m_entersPassword = false;
    /// While it is being edited.
    std::optional<QString> m_name;
    int m_nameRevision = 0;
    bool m_isTrying = false;
    LatestAnswer m_chosen;
};

/// One line on the state of the place: why nothing is shared now, or which device stored something last and
/// when. Empty when there is nothing to say.
QString sharedStateText(const SharedPlace& place, const Device& device);

} // namespace guide
