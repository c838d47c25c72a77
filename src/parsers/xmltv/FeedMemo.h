#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace guide {

/// What is known of texts of a feed, by their bytes. Forgets everything when it has grown to its bound.
template <class Value>
class FeedMemo {
  public:
    /// Null for a text that is not known.
    const Value* find(std::string_view text) const {
        const auto place = m_values.find(text);
        return place == m_values.end() ? nullptr : &place->second;
    }
    /// The reference holds until the next addition.
    const Value& add(std::string_view text, Value value) {
        if (m_values.size() >= kMost) {
            m_values.clear();
        }
        return m_values.insert_or_assign(std::string(text), std::move(value)).first->second;
    }

  private:
    static constexpr std::size_t kMost = 16'384;

    /// Not noexcept, so that the library takes it for slow and keeps each key's hash: a chain is then walked
    /// without hashing every text on the way anew.
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    std::unordered_map<std::string, Value, Hash, std::equal_to<>> m_values;
};

} // namespace guide
