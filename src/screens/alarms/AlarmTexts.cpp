#include "screens/alarms/AlarmTexts.h"

#include "screens/Localized.h"
#include "screens/ShowRowText.h"
#include "screens/ShowRows.h"
#include "screens/TimeTexts.h"
#include "text/display/DayFormat.h"

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString leadText(int minutes) {
    return minutes % 60 == 0 ? Localized::tr("%n hour(s)", nullptr, minutes / 60)
                             : Localized::tr("%n minute(s)", nullptr, minutes);
}

QString removalText(AlarmReason reason) {
    switch (reason) {
    case AlarmReason::NotListed:
        return Localized::tr("Removed: no longer listed");
    case AlarmReason::SilentHours:
        return Localized::tr("Removed: it would ring in the silent hours");
    case AlarmReason::AlarmRemoved:
        return Localized::tr("Removed: its alert was removed in the calendar");
    case AlarmReason::NoChannel:
        return Localized::tr("Removed: it had no channel");
    case AlarmReason::Duplicate:
        return Localized::tr("Removed: it was there twice");
    case AlarmReason::RecurringEnded:
        return Localized::tr("Removed: the recurring alert was ended");
    case AlarmReason::ShowMoved:
        return Localized::tr("Removed: the broadcast was moved");
    case AlarmReason::User:
        return Localized::tr("Removed by you");
    case AlarmReason::Rule:
    case AlarmReason::RuleAgain:
        break;
    }
    return Localized::tr("Removed");
}

QString ruleText(const JournalEntry& entry) {
    if (!entry.previouslyShown) {
        return Localized::tr("“%1”").arg(entry.rule);
    }
    return (*entry.previouslyShown ? Localized::tr("“%1”, replays") : Localized::tr("“%1”, premieres"))
        .arg(entry.rule);
}

QString additionText(const JournalEntry& entry) {
    switch (entry.reason) {
    case AlarmReason::Rule:
        return Localized::tr("New: rule %1").arg(ruleText(entry));
    case AlarmReason::RuleAgain:
        return Localized::tr("Set again by the rule %1: it was removed in the calendar").arg(ruleText(entry));
    case AlarmReason::User:
        return Localized::tr("Set by you");
    default:
        return Localized::tr("New");
    }
}

QString moveText(const JournalEntry& entry, const Device& device) {
    if (!entry.oldStart || !entry.newStart) {
        return Localized::tr("Moved");
    }
    if (*entry.oldStart == *entry.newStart) {
        return Localized::tr("Changed: the broadcast has another end or channel");
    }
    const QLocale locale = device.locale();
    const ShowRowText text(locale, device.timeZone());
    QString from = text.shortTime(entry.oldStart);
    QString to = text.shortTime(entry.newStart);
    const QDate oldDay = localTime(device, *entry.oldStart).date();
    const QDate newDay = localTime(device, *entry.newStart).date();
    if (oldDay != newDay) {
        const QString format = dayFormat(locale);
        from = locale.toString(oldDay, format) + u' ' + from;
        to = locale.toString(newDay, format) + u' ' + to;
    }
    return Localized::tr("Moved from %1 to %2").arg(from, to);
}

QString failureText(const QString& what, const QString& message) {
    return message.isEmpty() ? what : u"%1 (%2)"_s.arg(what, message);
}

} // namespace

QString shortLeadText(int minutes) {
    return minutes == 0 ? Localized::tr("At start") : durationText(std::chrono::minutes(minutes));
}

QString showAlarmText(const ShowAlarm& alarm) {
    switch (alarm.reason) {
    case ShowAlarmReason::HasByRule:
        return Localized::tr("Set by the rule “%1”.").arg(alarm.rule);
    case ShowAlarmReason::HasByUser:
        return Localized::tr("Set for this broadcast only.");
    case ShowAlarmReason::AlarmRemoved:
        return Localized::tr("Its alert was removed in the calendar.");
    case ShowAlarmReason::NoCalendarAccess:
        return Localized::tr("No alert: the guide cannot use your calendars.");
    case ShowAlarmReason::NoCalendar:
        return Localized::tr("No alert: there is no calendar for it.");
    case ShowAlarmReason::ReadOnlyCalendar:
        return Localized::tr("No alert: the calendar is read-only.");
    case ShowAlarmReason::Begun:
        return Localized::tr("No alert: the show has begun.");
    case ShowAlarmReason::NoRule:
        break;
    case ShowAlarmReason::RuleWithoutAlarm:
        return Localized::tr("No alert: the favourite has no recurring alert.");
    case ShowAlarmReason::OnlyPremieres:
        return Localized::tr("No alert: this is a replay, and the rule is for premieres.");
    case ShowAlarmReason::OnlyReplays:
        return Localized::tr("No alert: this is a premiere, and the rule is for replays.");
    case ShowAlarmReason::SilentHours:
        return Localized::tr("No alert: it would ring in the silent hours.");
    case ShowAlarmReason::Refused:
        return Localized::tr("No alert: you wanted none for this broadcast.");
    case ShowAlarmReason::ChannelNotLoaded:
        return Localized::tr("No alert yet: the channel’s schedule is not up to date.");
    case ShowAlarmReason::TooFar:
        return Localized::tr("No alert yet: the show is more than 60 days away.");
    case ShowAlarmReason::NextRun:
        return Localized::tr("It will be set with the next update.");
    }
    return {};
}

QString alarmEffectText(AlarmRepetition repetition, std::optional<int> minutes) {
    if (!minutes) {
        return Localized::tr("There will be no alert.");
    }
    const bool atBeginning = *minutes == 0;
    const QString lead = leadText(*minutes);
    switch (repetition) {
    case AlarmRepetition::OnlyThis:
        return atBeginning ? Localized::tr("At the beginning of this broadcast")
                           : Localized::tr("%1 before this broadcast").arg(lead);
    case AlarmRepetition::Any:
        return atBeginning ? Localized::tr("At the beginning of every broadcast on any channel")
                           : Localized::tr("%1 before every broadcast on any channel").arg(lead);
    case AlarmRepetition::Premieres:
        return atBeginning ? Localized::tr("At the beginning of every premiere on any channel")
                           : Localized::tr("%1 before every premiere on any channel").arg(lead);
    case AlarmRepetition::Replays:
        return atBeginning ? Localized::tr("At the beginning of every replay on any channel")
                           : Localized::tr("%1 before every replay on any channel").arg(lead);
    }
    return {};
}

QString journalText(const JournalEntry& entry, const Device& device) {
    switch (entry.deed) {
    case AlarmDeed::Made:
        return additionText(entry);
    case AlarmDeed::Moved:
        return moveText(entry, device);
    case AlarmDeed::Removed:
        return removalText(entry.reason);
    case AlarmDeed::NotMade:
        return failureText(Localized::tr("Could not be set: the calendar refused it"), entry.message);
    case AlarmDeed::NotMoved:
        return failureText(Localized::tr("Could not be moved: the calendar refused it"), entry.message);
    case AlarmDeed::NotRemoved:
        return failureText(Localized::tr("Could not be removed: the calendar refused it"), entry.message);
    case AlarmDeed::HeldBack:
        return Localized::tr("Not removed: too many alerts would have been removed at once");
    }
    return {};
}

Symbol journalSymbol(const JournalEntry& entry) {
    switch (entry.deed) {
    case AlarmDeed::Made:
        return Symbol::Bell;
    case AlarmDeed::Moved:
        return Symbol::Moved;
    case AlarmDeed::Removed:
        return Symbol::Removed;
    default:
        return Symbol::Warning;
    }
}

Alert heldBackAlert(std::size_t count, std::function<void()> remove, std::function<void()> keep) {
    return {Localized::tr("Remove %n alert(s)?", nullptr, static_cast<int>(count)),
            Localized::tr(
                "Most of your alerts would go at once, because their shows are no longer listed or they "
                "would ring in the silent hours. That may be a mistake, so none was removed."),
            {{Localized::tr("Remove"), AlertAction::Style::Destructive, std::move(remove)},
             {Localized::tr("Keep"), AlertAction::Style::Cancel, std::move(keep)}}};
}

} // namespace guide
