#pragma once

#include "platform/FileWatch.h"

#include <utility>
#include <vector>

namespace guide {

/// Reports changes when it is told to.
class ManualFileWatch final : public FileWatch {
  public:
    [[nodiscard]] Token watch(const QString& path, std::function<void()> changed) override {
        auto watching = std::make_shared<Watching>(path, std::move(changed));
        m_watching.push_back(watching);
        return watching;
    }

    /// The path changed. False when nobody watches it.
    bool change(const QString& path) {
        bool isWatched = false;
        for (const std::weak_ptr<Watching>& each : std::vector(m_watching)) {
            if (const auto watching = each.lock(); watching && watching->first == path) {
                isWatched = true;
                watching->second();
            }
        }
        return isWatched;
    }

  private:
    using Watching = std::pair<QString, std::function<void()>>;

    std::vector<std::weak_ptr<Watching>> m_watching;
};

} // namespace guide
