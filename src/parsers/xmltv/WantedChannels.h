#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace guide {

/// The wanted channel ids of a feed, for comparison with its attributes.
class WantedChannels {
  public:
    explicit WantedChannels(const std::vector<QString>& channels) {
        for (const QString& channel : channels) {
            m_ids.insert(channel.toStdString());
        }
    }

    /// Whether all channels are wanted.
    bool all() const { return m_ids.empty(); }
    /// `id` is UTF-8 with its references resolved.
    bool contains(std::string_view id) const { return all() || m_ids.contains(id); }

  private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    std::unordered_set<std::string, Hash, std::equal_to<>> m_ids;
};

} // namespace guide
