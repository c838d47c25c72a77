#pragma once

#include <QString>

#include <string_view>

namespace guide {

/// The visible text of a piece of HTML: without tags, references decoded, white space collapsed, a line for
/// each paragraph and break. Takes linear time for any input.
QString plainText(std::string_view html);

} // namespace guide
