#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace guide {

// Tags on which libxml2 would spend minutes: it compares every attribute of a tag with every other one.

/// Longer stretches without a "<" are looked at more closely.
inline constexpr std::size_t kLongStretch = std::size_t{64} << 10;
inline constexpr std::size_t kMostTagBytes = std::size_t{1} << 20;
inline constexpr auto kUnreadableTag = "a tag is longer than 1 MB or has too many attributes";

/// Whether the library can read the tag, comment or instruction that begins the text in reasonable time.
/// Looks at the first kMostTagBytes.
bool isReadableTag(std::string_view text);

/// The offset of the first tag that must not reach the library.
std::optional<std::size_t> unreadableTag(std::string_view document);

} // namespace guide
