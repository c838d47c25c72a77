#pragma once

#include "Brush.h"

#include <vector>

struct ChannelIcon {
    const char* name;
    void (*draw)(Brush& brush);
};

/// The icon of each channel of the demo, by the name that the catalogue uses.
const std::vector<ChannelIcon>& channelIcons();
