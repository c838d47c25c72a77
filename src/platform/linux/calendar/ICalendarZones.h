#pragma once

#include "platform/Moment.h"
#include "platform/linux/calendar/ICalendarText.h"

#include <QHash>
#include <QTimeZone>

#include <functional>
#include <memory>
#include <optional>

namespace guide {

struct ICalendarTime {
    Moment moment;
    /// A day without a time; the moment is its start in the device's zone.
    bool isDate = false;
};

/// Turns times of iCalendar properties into moments. A zone is looked for by name in the device's zones, then
/// in the text, then by `lookUp`. Floating times, and those of a zone that cannot be found, are in the
/// device's zone. Must be used by one thread at a time.
class ICalendarZones {
  public:
    /// Returns the VTIMEZONE of a name, or nothing.
    using LookUp = std::function<QByteArray(const QByteArray& name)>;

    explicit ICalendarZones(LookUp lookUp = nullptr);
    ~ICalendarZones();
    ICalendarZones(const ICalendarZones&) = delete;
    ICalendarZones& operator=(const ICalendarZones&) = delete;

    /// Nothing for a value that is no date or time. `text` is where the property is.
    std::optional<ICalendarTime> time(const ICalendarProperty& property, const ICalendarText& text);

  private:
    struct Zone;

    std::shared_ptr<const Zone> zone(const QByteArray& name, const ICalendarText& text);

    const LookUp m_lookUp;
    /// By name; null for a name that the device does not know.
    QHash<QByteArray, std::shared_ptr<const Zone>> m_known;
    /// By name, from m_lookUp.
    QHash<QByteArray, std::shared_ptr<const Zone>> m_lookedUp;
};

} // namespace guide
