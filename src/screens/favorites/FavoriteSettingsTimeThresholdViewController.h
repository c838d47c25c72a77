#pragma once

#include "alarms/AlarmSettings.h"
#include "screens/MinuteTick.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>
#include <optional>

namespace guide {

/// How the alarm of a show repeats and how long before the show it rings. The choice is applied when the
/// screen is left.
class FavoriteSettingsTimeThresholdViewController final : public ListingsScreen {
  public:
    FavoriteSettingsTimeThresholdViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                std::shared_ptr<const TVEntry> entry,
                                                const AlarmSettings::Current& current);

    void applicationDidBecomeActive() override { m_minuteTick.resume(); }
    /// The program may end there.
    void applicationDidEnterBackground() override { apply(); }

  protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void reloadTable();
    void apply();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const std::shared_ptr<const TVEntry> m_entry;
    const bool m_hasOtherType;
    /// Made anew when a choice has been applied.
    std::optional<AlarmSettings> m_settings;
    MinuteTick m_minuteTick;
};

} // namespace guide
