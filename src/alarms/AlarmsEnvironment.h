#pragma once

#include "alarms/ShowCounters.h"
#include "alarms/TVShows.h"
#include "core/Catalogue.h"
#include "core/TVChannels.h"
#include "platform/BackgroundTasks.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/KeyValueStore.h"
#include "platform/LifeCycle.h"
#include "platform/UserDefaults.h"
#include "platform/calendar/EventStore.h"
#include "platform/files/Folders.h"
#include "platform/queues/DispatchQueue.h"
#include "store/TVListings.h"

#include <QString>

#include <chrono>
#include <functional>

namespace guide {

/// What protects the user from a run, beside its rules.
struct AlarmSafety {
    /// Holds back the removal of most events at once.
    bool brake = true;
    /// A run or an operation that could not read the calendar or make a change leaves the mark cleared, so
    /// that the next run is a full one.
    bool repeatsUnfinished = true;
    /// A run that moved an event to where another one is, or into silent hours, is followed by the run that
    /// removes it.
    bool settles = true;
    /// A calendar from which another program has removed the last event leaves no alarms to come, not even
    /// until the next full run.
    bool forgetsAll = true;
};

/// What a run did.
struct AlarmRunResult {
    /// All three phases.
    bool full = false;
    /// The calendar could be read and took all changes.
    bool complete = true;
    /// How many removals the brake held back; they are in the journal.
    std::size_t heldBack = 0;
};

/// The dependencies of alarms. All of them must outlive the last block on the queues.
struct AlarmsEnvironment {
    const Clock& clock;
    const Device& device;
    const Folders& folders;
    DispatchQueues& queues;
    BackgroundTasks& backgroundTasks;
    const ApplicationStateSource& applicationState;
    UserDefaults& userDefaults;
    KeyValueStore& keyValueStore;
    EventStore& eventStore;
    const Catalogue& catalogue;
    TVChannels& channels;
    TVShows& shows;
    TVListings& listings;
    ShowCounters& counters;
    /// The application's URL scheme.
    QString scheme;
    /// After this long the list of a channel is due again. Any thread.
    std::function<std::chrono::seconds()> automaticUpdateInterval;
    /// Refreshes the number of alarms and the screens. Main queue.
    std::function<void()> notificationsSynched;
    /// Refreshes the number of alarms. Main queue.
    std::function<void()> updateBadge;
    /// Called on the main queue at the end of every run that could start. May be empty.
    std::function<void(const AlarmRunResult&)> runEnded;
    AlarmSafety safety = {};
};

} // namespace guide
