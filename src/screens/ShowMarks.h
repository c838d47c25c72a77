#pragma once

#include "screens/shell/ScreenEnvironment.h"

#include <memory>

namespace guide {

/// The favourites and alarms that are marked in a list of shows. Screens create one per rebuild.
struct ShowMarks {
    explicit ShowMarks(const ScreenEnvironment& environment)
        : favorites(environment.favorites.snapshot())
        , alarms(environment.alarms.snapshot()) {}

    bool isFavourite(const TVEntry& entry) const {
        return entry.title() && favorites->containsFavoriteNamed(*entry.title());
    }
    bool isAlarmed(const TVEntry& entry) const { return alarms->alarmedEntry(entry).has_value(); }

    std::shared_ptr<const FavoritesSnapshot> favorites;
    std::shared_ptr<const AlarmsSnapshot> alarms;
};

} // namespace guide
