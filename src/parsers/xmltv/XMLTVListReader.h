#pragma once

#include "parsers/formats/ListReader.h"

#include <QString>

#include <vector>

namespace guide {

/// Reads each page as a feed of its own; a schedule that comes in daily files grows one list over them.
void readXMLTVLists(const ListReaderInput& input, ParsedLists& lists);

/// The channel ids that a feed is to be filtered by, in the order of the items; an item whose family has a
/// file of its own for each channel adds none. Empty is no filter.
std::vector<QString> wantedFeedChannels(const std::vector<LoadItem>& items);

} // namespace guide
