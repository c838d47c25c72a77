#include "alarms/AlarmSettings.h"

#include <QDebug>

#include <algorithm>

namespace guide {

namespace {

constexpr int kAllTriggers = static_cast<int>(kAlarmMinutes.size()) + 1;

AlarmRepetition repetitionOf(const std::optional<RecurringAlarm>& recurring) {
    if (!recurring) {
        return AlarmRepetition::OnlyThis;
    }
    if (!recurring->previouslyShown) {
        return AlarmRepetition::Any;
    }
    return *recurring->previouslyShown ? AlarmRepetition::Replays : AlarmRepetition::Premieres;
}

/// A lead time that is not offered counts as the longest.
int triggerOf(std::optional<int> minutes) {
    if (!minutes || *minutes < 0) {
        return 0;
    }
    const auto found = std::ranges::find(kAlarmMinutes, *minutes);
    return found == kAlarmMinutes.end() ? kAllTriggers - 1
                                        : static_cast<int>(found - kAlarmMinutes.begin()) + 1;
}

} // namespace

AlarmSettings::AlarmSettings(std::shared_ptr<const TVEntry> entry, const Current& current, const Clock& clock)
    : m_entry(std::move(entry))
    , m_clock(clock)
    , m_hasOtherType(current.hasOtherType)
    , m_former{repetitionOf(current.recurring),
               triggerOf(current.recurring ? current.recurring->minutes : current.minutes)}
    , m_choice(m_former) {}

int AlarmSettings::repetitionCount() const {
    const bool isOfOneType =
        m_choice.repetition == AlarmRepetition::OnlyThis || m_choice.repetition == AlarmRepetition::Any;
    return m_hasOtherType || !isOfOneType ? 4 : 2;
}

int AlarmSettings::triggerCount() const {
    if (m_choice.repetition != AlarmRepetition::OnlyThis || !m_entry->dateTime()) {
        return kAllTriggers;
    }
    const auto possible = std::ranges::find_if_not(kAlarmMinutes, [this](int minutes) {
        return *m_entry->dateTime() - std::chrono::minutes(minutes) > m_clock.now();
    });
    return 1 + static_cast<int>(possible - kAlarmMinutes.begin());
}

std::optional<int> AlarmSettings::minutesOfTrigger(int trigger) {
    return trigger > 0 && trigger < kAllTriggers
               ? std::optional(kAlarmMinutes[static_cast<std::size_t>(trigger) - 1])
               : std::nullopt;
}

AlarmSettings::Choice AlarmSettings::choice() const {
    Choice choice = m_choice;
    if (choice != m_former) {
        choice.trigger = std::min(choice.trigger, triggerCount() - 1);
    }
    return choice;
}

void AlarmSettings::chooseRepetition(int repetition) {
    if (repetition < 0 || repetition >= repetitionCount()) {
        return;
    }
    m_choice.repetition = static_cast<AlarmRepetition>(repetition);
    m_choice = choice();
}

void AlarmSettings::chooseTrigger(int trigger) {
    if (trigger >= 0 && trigger < triggerCount()) {
        m_choice.trigger = trigger;
    }
}

// The URL of an alarm on one broadcast is made of the source title, as that of the show is.
void AlarmSettings::removeFormerAlarm(AlarmActions& actions) const {
    if (m_former.repetition == AlarmRepetition::OnlyThis) {
        actions.removeAlarmForTitle(identificator(), m_entry->channel(),
                                    m_entry->dateTime().value_or(Moment()), true, true);
    } else {
        actions.removeAlarmForTitle(title(), true, true);
    }
}

void AlarmSettings::setChosenAlarm(AlarmActions& actions, FavoriteActions& favorites) const {
    const std::optional<int> minutes = minutesOfTrigger(trigger());
    if (!minutes) {
        return;
    }
    if (!favorites.noteAlarmSet(identificator())) {
        qWarning().noquote() << "Error: favorite not found:" << identificator();
    }
    switch (m_choice.repetition) {
    case AlarmRepetition::OnlyThis:
        if (m_entry->dateTime() && m_entry->endDateTime()) {
            actions.setAlarmForTitle(identificator(), m_entry->channel(), *m_entry->dateTime(),
                                     *m_entry->endDateTime(), *minutes, true, true);
        }
        break;
    case AlarmRepetition::Any:
        actions.setAlarmForTitle(title(), *minutes, std::nullopt, true);
        break;
    case AlarmRepetition::Premieres:
    case AlarmRepetition::Replays:
        actions.setAlarmForTitle(title(), *minutes, m_choice.repetition == AlarmRepetition::Replays, true);
        break;
    }
}

} // namespace guide
