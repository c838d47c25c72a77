#pragma once

#include "platform/LifeCycle.h"

#include <atomic>

namespace guide {

/// Active while the window is visible, otherwise in the background. Any thread.
class WindowState final : public ApplicationStateSource {
  public:
    ApplicationState applicationState() const override {
        return m_visible ? ApplicationState::Active : ApplicationState::Background;
    }
    /// Returns whether that is a change.
    bool setVisible(bool visible) { return m_visible.exchange(visible) != visible; }

  private:
    std::atomic<bool> m_visible{false};
};

} // namespace guide
