#pragma once

#include "parsers/formats/ListReader.h"

#include <QString>

#include <vector>

namespace guide {

/// Reads each page as a separate feed. Daily files extend one list.
void readXMLTVLists(const ListReaderInput& input, ParsedLists& lists);

/// The channel ids to filter a feed by, in the order of the items. An item whose family has one file per
/// channel adds none. No ids means no filter.
std::vector<QString> wantedFeedChannels(const std::vector<LoadItem>& items);

} // namespace guide
