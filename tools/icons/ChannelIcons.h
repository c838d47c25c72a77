#pragma once

#include "Brush.h"

#include <vector>

struct ChannelIcon {
    const char* name;
    void (*draw)(Brush& brush);
};

/// The icon of each channel of the demo, by the name that the catalogue uses.
const std::vector<ChannelIcon>& channelIcons();

/// Those of the channels that have their schedules on a broadcaster's own site.
const std::vector<ChannelIcon>& townIcons();
