#pragma once

#include "core/TVChannels.h"

#include <memory>
#include <utility>
#include <vector>

namespace guide {

/// Marks the channels of a load as loading while its pages are read.
class LoadingMark {
  public:
    template <class Ids>
    LoadingMark(const TVChannels& channels, const Ids& ids) {
        for (const ObjectId& id : ids) {
            if (auto channel = channels.channelWithChannelId(id)) {
                channel->setLoading(true);
                m_marked.push_back(std::move(channel));
            }
        }
    }
    LoadingMark(const LoadingMark&) = delete;
    LoadingMark& operator=(const LoadingMark&) = delete;
    ~LoadingMark() {
        for (const auto& channel : m_marked) {
            channel->setLoading(false);
        }
    }

  private:
    std::vector<std::shared_ptr<TVChannel>> m_marked;
};

} // namespace guide
