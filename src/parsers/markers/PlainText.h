#pragma once

#include <QString>

#include <string_view>

namespace guide {

/// What a reader of the page sees of a stretch of it: no tags, references decoded, white space as one blank,
/// a line for each paragraph and break. In linear time, whatever the stretch holds.
QString plainText(std::string_view html);

} // namespace guide
