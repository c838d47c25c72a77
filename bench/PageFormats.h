#pragma once

#include "FamilyPages.h"

#include <string>
#include <string_view>
#include <vector>

namespace guide::bench {

/// How a format writes its fields, and what its reader does with them beside finding them.
struct PageFormat {
    const char* name;
    FamilyPages (*make)(std::size_t size);
    /// What stands before a time.
    std::string_view time;
    /// Every marker that the reader looks for, the changing ones as one of them.
    std::vector<std::string> markers;
    /// Of the schedule; none where moments are numbers.
    const char* zone = nullptr;
    bool classifies = false;
    /// Which texts the reader trims.
    bool trimsTimes = false;
    bool trimsTitles = false;
    bool trimsDescriptions = false;
    bool casesTitles = false;
};

/// Those of pages that are walked from marker to marker.
const std::vector<PageFormat>& pageFormats();

} // namespace guide::bench
