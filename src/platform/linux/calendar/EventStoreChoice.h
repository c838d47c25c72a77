#pragma once

#include "platform/Clock.h"
#include "platform/calendar/EventStore.h"

#include <QString>

#include <memory>

namespace guide {

struct EventStoreOptions {
    /// The parent of calendars that are folders.
    QString folder;
    /// The scheme of the guide's URLs.
    QString scheme;
    /// The address of the session bus; empty to leave the calendars of the desktop alone.
    QString busAddress;
};

/// The calendars of the desktop where the bus can start evolution-data-server, otherwise folders. Asks the
/// bus, which answers at once, and starts nothing. Needs a QCoreApplication.
std::unique_ptr<EventStore> eventStoreFor(const EventStoreOptions& options, const Clock& clock);

/// Whether the store has the calendars of the desktop, which other programs of the desktop know as well.
bool isOfDesktop(const EventStore& store);

} // namespace guide
