#pragma once

#include "platform/NetworkWatch.h"

namespace guide {

/// A network that appears when the test says so.
class FakeNetworkWatch final : public NetworkWatch {
  public:
    void watch(std::function<void()> appeared) override { m_appeared = std::move(appeared); }
    void appear() const {
        if (m_appeared) {
            m_appeared();
        }
    }

  private:
    std::function<void()> m_appeared;
};

} // namespace guide
