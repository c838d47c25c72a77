#pragma once

#include <QString>

#include <cstdint>

namespace guide {

/// Of a title with a character that may not become exactly one when it is lowercased.
inline constexpr std::uint32_t kNoTitleHash = 0;

/// The same for titles that differ only in case, made without a lowercased copy. kNoTitleHash says nothing
/// about a title.
std::uint32_t titleHash(QStringView title);

} // namespace guide
