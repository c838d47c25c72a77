#pragma once

#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"
#include "screens/sources/PlaylistMatches.h"
#include "screens/sources/SourceActions.h"

#include <memory>
#include <optional>

namespace guide {

/// One source: how its loads go, and what can be done with it.
class SourceHealthViewController final : public ListingsScreen {
  public:
    SourceHealthViewController(std::shared_ptr<const ScreenEnvironment> environment,
                               const OwnSourceId& source);

    void ownSourcesChanged() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void didPullToRefresh() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    /// Unset when it was removed, perhaps on another device.
    std::optional<OwnSource> source() const { return actions().sourceWithId(m_source); }
    void show();
    static Section stateSection(const SourceStatus& status);
    Section factSection(const OwnSource& source, const SourceStatus& status) const;
    Section actionSection(const OwnSource& source, const SourceStatus& status) const;
    Section settingSection(const OwnSource& source) const;
    Section endSection() const;

    void tapped(const QString& name);
    void edited(const QString& name, const TextEdited& edit);
    void setShift(int choice);
    void saveAddress();
    void openMatches();
    void matchesChanged();
    void copy() const;
    void askToRemove();
    void remove();
    void push(std::shared_ptr<ViewController> screen);

    SourceActions& actions() const { return *m_environment->sourceActions; }

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const OwnSourceId m_source;
    /// Typed, but not saved.
    std::optional<QString> m_address;
    /// For the review of a playlist's matches.
    SourceActions::Token m_reading;
    std::shared_ptr<PlaylistMatches> m_matches;
};

} // namespace guide
