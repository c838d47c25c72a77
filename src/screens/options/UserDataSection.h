#pragma once

#include "screens/kit/LatestAnswer.h"
#include "screens/kit/Table.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>

namespace guide {

class NavigationController;
class ViewController;

/// The part of the options about the user's data: what other devices share, export, lists that were replaced
/// and erasure. Main queue.
class UserDataSection {
  public:
    UserDataSection(std::shared_ptr<const ScreenEnvironment> environment, ViewController& screen);

    Section section() const;
    /// Whether the row was one of this section.
    bool tapped(const RowId& id);

  private:
    void askToExport();
    void exportData();
    void open(const std::shared_ptr<ViewController>& screen) const;

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    ViewController& m_screen;
    LatestAnswer m_exported;
};

} // namespace guide
