#include "screens/options/SilentHoursViewController.h"

#include "alarms/SilentHours.h"
#include "screens/Localized.h"
#include "screens/ShowRows.h"
#include "screens/options/SilentSpan.h"

#include <QDateTime>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSpan = "span"_L1;
constexpr auto kFrom = "from"_L1;
constexpr auto kTo = "to"_L1;
constexpr auto kMidnight = "midnight"_L1;

/// A moment at which clocks in the zone show the time. Where the change to summer time leaves it out today,
/// it is tomorrow's.
Moment momentAt(const QTime& time, const Device& device, Moment now) {
    const QTimeZone zone = device.timeZone();
    const QDate today = localTime(device, now).date();
    const auto on = [&](const QDate& day) {
        return Moment(std::chrono::milliseconds(QDateTime(day, time, zone).toMSecsSinceEpoch()));
    };
    const Moment moment = on(today);
    return localTime(device, moment).time() == time ? moment : on(today.addDays(1));
}

} // namespace

SilentHoursViewController::SilentHoursViewController(std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment)) {}

void SilentHoursViewController::viewDidLoad() {
    setTitle(Localized::tr("Silent Hours"));
}

void SilentHoursViewController::apply() {
    if (std::exchange(m_modified, false)) {
        applySilentHours(*m_environment);
    }
}

void SilentHoursViewController::reloadTable() {
    const SilentPeriod period = SilentHours(m_environment->keyValueStore, m_environment->device).period();
    Section span{.id = kSpan};
    span.footer = Localized::tr("Alerts that you set on a single broadcast ring at any time.");
    span.rows = {
        {.id = {kSpan, QString(kFrom)}, .content = TimeRow{Localized::tr("From"), timeOfMinute(period.from)}},
        {.id = {kSpan, QString(kTo)}, .content = TimeRow{Localized::tr("To"), timeOfMinute(period.to)}},
        {.id = {kSpan, u"bar"_s}, .content = silentBar(period, m_environment->device.locale())},
    };
    Section midnight{.id = kMidnight};
    if (isAllSilent(period)) {
        midnight.rows.push_back({.id = {kMidnight, u"warning"_s},
                                 .content = TextRow{.title = allSilentText(period),
                                                    .titleColor = ColorRole::Alarm,
                                                    .symbol = Symbol::Warning}});
    }
    if (period.from > period.to) {
        midnight.rows.push_back(
            {.id = {kMidnight, QString(kMidnight)},
             .content = SwitchRow{Localized::tr("Across midnight"),
                                  Localized::tr("Silent from %1 to midnight and from midnight to %2")
                                      .arg(minuteText(period.from, m_environment->device.locale()),
                                           minuteText(period.to, m_environment->device.locale())),
                                  period.acrossMidnight}});
    }
    std::vector<Section> sections;
    sections.push_back(std::move(span));
    sections.push_back(std::move(midnight));
    table().setSections(std::move(sections));
}

void SilentHoursViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (const auto* picked = std::get_if<TimePicked>(&event)) {
        timeChanged(*id.name() == kTo, picked->time);
    } else if (const auto* toggled = std::get_if<Toggled>(&event)) {
        setSilentHoursAcrossMidnight(m_environment->keyValueStore, toggled->on);
    } else {
        return;
    }
    m_modified = true;
    reloadTable();
}

void SilentHoursViewController::timeChanged(bool isEnd, const QTime& time) {
    KeyValueStore& store = m_environment->keyValueStore;
    const SilentPeriod before = SilentHours(store, m_environment->device).period();
    const Moment moment = momentAt(time, m_environment->device, m_environment->clock.now());
    if (isEnd) {
        setSilentHoursTo(store, moment);
    } else {
        setSilentHoursFrom(store, moment);
    }
    const SilentPeriod after = SilentHours(store, m_environment->device).period();
    // Who switched it off for a span across midnight keeps it off while the span still crosses it.
    if (after.from > after.to && (before.from <= before.to || !isSilentHoursAcrossMidnightSet(store))) {
        setSilentHoursAcrossMidnight(store, true);
    }
}

} // namespace guide
