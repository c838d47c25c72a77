#include "platform/linux/calendar/EventStoreChoice.h"

#include "platform/linux/calendar/EDSConnection.h"
#include "platform/linux/calendar/EDSEventStore.h"
#include "platform/linux/calendar/EDSSources.h"
#include "platform/linux/calendar/FolderEventStore.h"

#include <QStringList>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

bool canStartService(const QString& busAddress) {
    if (busAddress.isEmpty()) {
        return false;
    }
    EDSConnection connection(busAddress);
    if (!connection.isConnected()) {
        return false;
    }
    const EDSObject bus{u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s};
    const EDSReply names = connection.call(bus, u"ListActivatableNames"_s, {}, std::chrono::seconds(5));
    const QStringList list = names.values.value(0).toStringList();
    return list.contains(kEDSSourcesService) && list.contains(kEDSCalendarService);
}

} // namespace

std::unique_ptr<EventStore> eventStoreFor(const EventStoreOptions& options, const Clock& clock) {
    if (canStartService(options.busAddress)) {
        return std::make_unique<EDSEventStore>(options.busAddress, options.scheme, clock);
    }
    return std::make_unique<FolderEventStore>(options.folder, options.scheme, clock);
}

bool isOfDesktop(const EventStore& store) {
    return dynamic_cast<const EDSEventStore*>(&store) != nullptr;
}

} // namespace guide
