#include "alarms/ShowAlarm.h"

namespace guide {

namespace {

bool isRuleFor(const TVEntry& entry, const Favorite& rule) {
    return rule.minutes && (!rule.previouslyShown || *rule.previouslyShown == entry.previouslyShown());
}

/// Of a show without an event.
ShowAlarmReason reasonForNone(const TVEntry& entry, const Favorite* rule,
                              const ShowAlarmSituation& situation) {
    const AlarmSituation& run = situation.run;
    if (situation.access != CalendarAccess::Granted) {
        return ShowAlarmReason::NoCalendarAccess;
    }
    if (!situation.calendar) {
        return ShowAlarmReason::NoCalendar;
    }
    if (!situation.calendar->allowsContentModifications) {
        return ShowAlarmReason::ReadOnlyCalendar;
    }
    if (!entry.dateTime() || *entry.dateTime() <= run.now) {
        return ShowAlarmReason::Begun;
    }
    if (!rule) {
        return ShowAlarmReason::NoRule;
    }
    if (!rule->minutes) {
        return ShowAlarmReason::RuleWithoutAlarm;
    }
    if (!isRuleFor(entry, *rule)) {
        return *rule->previouslyShown ? ShowAlarmReason::OnlyReplays : ShowAlarmReason::OnlyPremieres;
    }
    if (!run.silentHours.mayBeAlarmedAt(*entry.dateTime() - std::chrono::minutes(*rule->minutes))) {
        return ShowAlarmReason::SilentHours;
    }
    if (const auto digest = entry.digest(); digest && run.refused.contains(*digest)) {
        return ShowAlarmReason::Refused;
    }
    const CatalogueChannel* channel = run.catalogue->find(entry.channel());
    if (!channel || !run.settledChannels.contains(channel->title)) {
        return ShowAlarmReason::ChannelNotLoaded;
    }
    return *entry.dateTime() >= run.end ? ShowAlarmReason::TooFar : ShowAlarmReason::NextRun;
}

} // namespace

ShowAlarm alarmReasonFor(const TVEntry& entry, const ShowAlarmSituation& situation) {
    const Favorite* rule = situation.run.rules->ruleNamed(entry.identificator().value_or(QString()));
    ShowAlarm alarm;
    alarm.rule = rule ? rule->identificator : QString();
    if (situation.alarms->hasEvent(entry)) {
        alarm.minutes = situation.alarms->alarmedEntry(entry);
        alarm.reason = !alarm.minutes                    ? ShowAlarmReason::AlarmRemoved
                       : rule && isRuleFor(entry, *rule) ? ShowAlarmReason::HasByRule
                                                         : ShowAlarmReason::HasByUser;
        return alarm;
    }
    alarm.reason = reasonForNone(entry, rule, situation);
    if (rule && alarm.reason == ShowAlarmReason::NextRun) {
        alarm.minutes = rule->minutes;
    }
    return alarm;
}

} // namespace guide
