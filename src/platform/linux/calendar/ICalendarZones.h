#pragma once

#include "platform/Moment.h"
#include "platform/linux/calendar/ICalendarText.h"

#include <QHash>
#include <QTimeZone>

#include <cstddef>
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
  private:
    struct Zone;

  public:
    /// Returns the VTIMEZONE of a name, empty when there is none; nothing when that cannot be told now.
    using LookUp = std::function<std::optional<QByteArray>(const QByteArray& name)>;

    /// The zones that a text defines; of several with one name the first. Must not outlive the text.
    class Definitions {
      public:
        explicit Definitions(const ICalendarText& text)
            : m_text(text) {}

      private:
        friend class ICalendarZones;

        struct Definition {
            /// Index in the text's components.
            std::size_t component = 0;
            bool isRead = false;
            /// Null until it is read, and when it is unusable.
            std::shared_ptr<const Zone> zone;
        };

        std::shared_ptr<const Zone> zone(const QByteArray& name);

        const ICalendarText& m_text;
        /// Unset until a zone is asked for.
        std::optional<QHash<QByteArray, Definition>> m_definitions;
        int m_readCount = 0;
    };

    explicit ICalendarZones(LookUp lookUp = nullptr);
    ~ICalendarZones();
    ICalendarZones(const ICalendarZones&) = delete;
    ICalendarZones& operator=(const ICalendarZones&) = delete;

    /// Nothing for a value that is no date or time. `text` has the zones of the text that the property is in.
    std::optional<ICalendarTime> time(const ICalendarProperty& property, Definitions& text);

  private:
    std::shared_ptr<const Zone> zone(const QByteArray& name, Definitions& text);

    const LookUp m_lookUp;
    /// By name; null for a name that the device does not know.
    QHash<QByteArray, std::shared_ptr<const Zone>> m_known;
    /// By name, from m_lookUp; null for a name that it does not know.
    QHash<QByteArray, std::shared_ptr<const Zone>> m_lookedUp;
};

} // namespace guide
