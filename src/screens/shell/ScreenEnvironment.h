#pragma once

#include "core/Catalogue.h"
#include "core/TVChannels.h"
#include "core/TVStationIcons.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/LifeCycle.h"
#include "platform/queues/DispatchQueue.h"
#include "screens/AppActions.h"
#include "screens/ShowPictures.h"
#include "store/ShowQuestions.h"
#include "store/TVListings.h"
#include "text/display/Alphabet.h"

namespace guide {

/// What every screen is made of and asks; all of it outlives the screens.
struct ScreenEnvironment {
    const Clock& clock;
    const Device& device;
    DispatchQueue& mainQueue;
    /// Where lists are read; suspended while the first screen rebuilds.
    DispatchQueue& loadQueue;
    const ApplicationStateSource& applicationState;
    TVListings& listings;
    TVChannels& channels;
    TVStationIcons& icons;
    const Catalogue& catalogue;
    const Alphabet& alphabet;
    const FavoriteQuestions& favorites;
    const AlarmQuestions& alarms;
    const PopularShows& popularShows;
    ShowPictures& pictures;
    AppActions& app;
};

} // namespace guide
