#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace guide {

/// Caches a value for each text of a feed. Cleared when it reaches its limit.
template <class Value>
class FeedMemo {
  public:
    /// Null when the text is not cached.
    const Value* find(std::string_view text) const {
        const auto place = m_values.find(text);
        return place == m_values.end() ? nullptr : &place->second;
    }
    /// The reference is valid until the next addition.
    const Value& add(std::string_view text, Value value) {
        if (m_values.size() >= kMost) {
            m_values.clear();
        }
        return m_values.insert_or_assign(std::string(text), std::move(value)).first->second;
    }

  private:
    static constexpr std::size_t kMost = 16'384;

    /// Deliberately not noexcept: the library then stores the hash of each key and does not hash every key of
    /// a chain again.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    std::unordered_map<std::string, Value, Hash, std::equal_to<>> m_values;
};

} // namespace guide
