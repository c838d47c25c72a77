#pragma once

#include "FamilyPages.h"

#include <string>
#include <string_view>
#include <vector>

namespace guide::bench {

/// How a format writes its fields, and what its reader does apart from finding them.
struct PageFormat {
    const char* name;
    FamilyPages (*make)(std::size_t size);
    /// The text before a time.
    std::string_view time;
    /// Every marker that the reader searches for; one example of each marker that varies.
    std::vector<std::string> markers;
    /// The zone of the schedule; none where times are numbers.
    const char* zone = nullptr;
    bool classifies = false;
    /// Which texts the reader trims.
    bool trimsTimes = false;
    bool trimsTitles = false;
    bool trimsDescriptions = false;
    bool casesTitles = false;
};

/// The formats that are read from marker to marker.
const std::vector<PageFormat>& pageFormats();

} // namespace guide::bench
