#include "platform/linux/calendar/ICalendarZones.h"

#include <QDateTime>

#include <algorithm>
#include <libical/ical.h>
#include <utility>

namespace guide {

namespace {

constexpr qsizetype kLongestName = 120;
constexpr qsizetype kLongestTime = 40;
constexpr qsizetype kLargestDefinition = 32'768;
constexpr std::size_t kMostObservances = 64;
constexpr qsizetype kMostNames = 1'000;
/// Of one text; libical needs up to a millisecond for each.
constexpr int kMostDefinitions = 200;

/// Only rules as zones have them: libical computes all their dates for centuries.
bool isHarmlessRule(const QByteArray& rule) {
    const QList<QByteArray> parts = rule.toUpper().split(';');
    bool isYearly = false;
    for (const QByteArray& part : parts) {
        const QByteArray key = part.left(part.indexOf('='));
        isYearly = isYearly || part == "FREQ=YEARLY";
        if (key != "FREQ" && key != "BYMONTH" && key != "BYDAY" && key != "BYMONTHDAY" && key != "UNTIL" &&
            key != "INTERVAL" && key != "WKST") {
            return false;
        }
    }
    return isYearly;
}

bool isHarmless(const ICalendarText& text, std::size_t index) {
    const ICalendarText::Component& definition = text.components()[index];
    if (definition.end - definition.begin > kLargestDefinition) {
        return false;
    }
    // What it encloses follows it.
    for (std::size_t i = index + 1; i < text.components().size(); ++i) {
        const ICalendarText::Component& component = text.components()[i];
        if (component.begin >= definition.end) {
            break;
        }
        if (i - index > kMostObservances) {
            return false;
        }
        for (const ICalendarText::Line& line : component.lines) {
            const ICalendarProperty property = text.property(line);
            if (property.parameters.size() > kLongestName ||
                (property.name == "RRULE" && !isHarmlessRule(property.value))) {
                return false;
            }
        }
    }
    return true;
}

std::optional<QTimeZone> deviceZone(const QByteArray& name) {
    // Some programs put a prefix in front of the name: "/example.org/20210210_1/Europe/Prague".
    for (qsizetype at = 0; at < name.size();) {
        const QByteArray tail = name.mid(at);
        if (!tail.startsWith('/') && QTimeZone::isTimeZoneIdAvailable(tail)) {
            return QTimeZone(tail);
        }
        const qsizetype slash = name.indexOf('/', at);
        at = slash < 0 ? name.size() : slash + 1;
    }
    const QByteArray fromWindows = QTimeZone::windowsIdToDefaultIanaId(name);
    return fromWindows.isEmpty() ? std::nullopt : std::optional(QTimeZone(fromWindows));
}

/// Null when it is unusable.
std::shared_ptr<icaltimezone> definedZone(const ICalendarText& text, std::size_t index) {
    if (!isHarmless(text, index)) {
        return nullptr;
    }
    icalcomponent* parsed =
        icalcomponent_new_from_string(text.textOf(text.components()[index]).toByteArray().constData());
    if (parsed == nullptr) {
        return nullptr;
    }
    icaltimezone* zone = icaltimezone_new();
    // The zone owns the component from then on.
    if (icaltimezone_set_component(zone, parsed) != 0) {
        return {zone, [](icaltimezone* ended) { icaltimezone_free(ended, 1); }};
    }
    icalcomponent_free(parsed);
    icaltimezone_free(zone, 1);
    return nullptr;
}

} // namespace

/// One of the two is set.
struct ICalendarZones::Zone {
    std::optional<QTimeZone> device;
    std::shared_ptr<icaltimezone> defined;
};

std::shared_ptr<const ICalendarZones::Zone> ICalendarZones::Definitions::zone(const QByteArray& name) {
    if (!m_definitions) {
        m_definitions.emplace();
        for (std::size_t i = 0; i < m_text.components().size(); ++i) {
            const ICalendarText::Component& component = m_text.components()[i];
            const auto id = component.name == "VTIMEZONE" ? m_text.property(component, "TZID") : std::nullopt;
            if (id && !m_definitions->contains(id->value)) {
                m_definitions->insert(id->value, Definition{i, false, nullptr});
            }
        }
    }
    const auto found = m_definitions->find(name);
    if (found == m_definitions->end()) {
        return nullptr;
    }
    if (!std::exchange(found->isRead, true) && m_readCount++ < kMostDefinitions) {
        if (const auto defined = definedZone(m_text, found->component)) {
            found->zone = std::make_shared<const Zone>(Zone{std::nullopt, defined});
        }
    }
    return found->zone;
}

ICalendarZones::ICalendarZones(LookUp lookUp)
    : m_lookUp(std::move(lookUp)) {}

ICalendarZones::~ICalendarZones() = default;

std::shared_ptr<const ICalendarZones::Zone> ICalendarZones::zone(const QByteArray& name, Definitions& text) {
    if (name.isEmpty() || name.size() > kLongestName) {
        return nullptr;
    }
    if (m_known.size() > kMostNames || m_lookedUp.size() > kMostNames) {
        m_known.clear();
        m_lookedUp.clear();
    }
    auto known = m_known.constFind(name);
    if (known == m_known.constEnd()) {
        const std::optional<QTimeZone> device = deviceZone(name);
        known = m_known.insert(name, device ? std::make_shared<const Zone>(Zone{device, nullptr}) : nullptr);
    }
    if (*known != nullptr) {
        return *known;
    }
    // Another text may define the same name differently.
    if (auto defined = text.zone(name)) {
        return defined;
    }
    if (m_lookUp == nullptr) {
        return nullptr;
    }
    const auto before = m_lookedUp.constFind(name);
    if (before != m_lookedUp.constEnd()) {
        return *before;
    }
    const std::optional<QByteArray> answer = m_lookUp(name);
    if (!answer) {
        return nullptr;
    }
    const std::optional<ICalendarText> parsed = ICalendarText::parse(*answer);
    const auto found = parsed ? Definitions(*parsed).zone(name) : nullptr;
    m_lookedUp.insert(name, found);
    return found;
}

std::optional<ICalendarTime> ICalendarZones::time(const ICalendarProperty& property, Definitions& text) {
    if (property.value.size() > kLongestTime) {
        return std::nullopt;
    }
    const icaltimetype read = icaltime_from_string(property.value.trimmed().constData());
    const QDate date(read.year, read.month, read.day);
    // A leap second counts as the one before.
    const QTime time(read.hour, read.minute, std::min(read.second, 59));
    if (icaltime_is_null_time(read) != 0 || !date.isValid() || (read.is_date == 0 && !time.isValid())) {
        return std::nullopt;
    }
    const auto moment = [](qint64 milliseconds) { return Moment(std::chrono::milliseconds(milliseconds)); };
    if (read.is_date != 0) {
        return ICalendarTime{moment(date.startOfDay().toMSecsSinceEpoch()), true};
    }
    if (icaltime_is_utc(read) != 0) {
        return ICalendarTime{moment(QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch())};
    }
    const std::shared_ptr<const Zone> zone = this->zone(iCalendarParameter(property, "TZID"), text);
    if (zone == nullptr) {
        return ICalendarTime{moment(QDateTime(date, time, Qt::LocalTime).toMSecsSinceEpoch())};
    }
    if (zone->device) {
        return ICalendarTime{moment(QDateTime(date, time, *zone->device).toMSecsSinceEpoch())};
    }
    return ICalendarTime{
        Moment(std::chrono::seconds(icaltime_as_timet_with_zone(read, zone->defined.get())))};
}

} // namespace guide
