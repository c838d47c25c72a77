#pragma once

#include "alarms/Favorites.h"
#include "alarms/SilentHours.h"
#include "core/Catalogue.h"
#include "platform/calendar/EventStore.h"
#include "store/ShowDigest.h"
#include "store/ShowItem.h"

#include <QSet>

#include <chrono>
#include <memory>
#include <unordered_set>
#include <vector>

namespace guide {

/// How far alarms reach into the future, and events of the past are looked at.
inline constexpr std::chrono::seconds kAlarmReach{5'184'000};

/// Broadcasts by digest.
using ShowDigests = std::unordered_set<ShowDigest, ShowDigestHash>;

/// All that a run decides by, at one moment.
struct AlarmSituation {
    Moment now;
    /// The end of the range of events.
    Moment end;
    /// The guide's URL scheme.
    QString scheme;
    /// The calendar of the alarms.
    EventCalendar calendar;
    /// Those of the calendar in the range, in ascending start time, whoever made them.
    std::vector<CalendarEvent> events;
    /// The shows with favourite titles that have not begun, in ascending start time.
    ShowItems shows;
    std::shared_ptr<const FavoritesSnapshot> rules = std::make_shared<const FavoritesSnapshot>();
    SilentHours silentHours;
    SharedCatalogueSnapshot catalogue = std::make_shared<const CatalogueSnapshot>();
    /// The titles of the selected channels whose lists are complete. A channel that is being loaded or is due
    /// proves nothing about the shows it had.
    QSet<QString> settledChannels;
    /// Broadcasts for which the user wants no alarm from a rule.
    ShowDigests refused;
};

} // namespace guide
