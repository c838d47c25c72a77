#include "screens/favorites/FavoriteSettingsTimeThresholdViewController.h"

#include "alarms/AlarmText.h"
#include "screens/Localized.h"
#include "screens/alarms/AlarmTexts.h"

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kRepetition = "repetition"_L1;
constexpr auto kTrigger = "trigger"_L1;

QString repetitionText(AlarmRepetition repetition) {
    switch (repetition) {
    case AlarmRepetition::OnlyThis:
        return Localized::tr("Only this broadcast");
    case AlarmRepetition::Any:
        return Localized::tr("Any broadcast");
    case AlarmRepetition::Premieres:
        return Localized::tr("Every premiere");
    case AlarmRepetition::Replays:
        return Localized::tr("Every replay");
    }
    return {};
}

Row choiceRow(const SectionId& section, int choice, const QString& title, bool checked) {
    return {.id = {section, QString::number(choice)},
            .content = TextRow{.title = title, .checked = checked},
            .selectable = true};
}

} // namespace

FavoriteSettingsTimeThresholdViewController::FavoriteSettingsTimeThresholdViewController(
    std::shared_ptr<const ScreenEnvironment> environment, std::shared_ptr<const TVEntry> entry,
    const AlarmSettings::Current& current)
    : m_environment(std::move(environment))
    , m_entry(std::move(entry))
    , m_hasOtherType(current.hasOtherType)
    , m_minuteTick(m_environment->clock, m_environment->mainQueue, m_environment->applicationState) {
    m_settings.emplace(m_entry, current, m_environment->clock);
}

void FavoriteSettingsTimeThresholdViewController::viewDidLoad() {
    setTitle(Localized::tr("Alert"));
    reloadTable();
}

void FavoriteSettingsTimeThresholdViewController::viewDidAppear() {
    m_minuteTick.start(weak_from_this(), [this] { reloadTable(); });
}

void FavoriteSettingsTimeThresholdViewController::viewDidDisappear() {
    m_minuteTick.stop();
    apply();
}

void FavoriteSettingsTimeThresholdViewController::reloadTable() {
    Section repetition{.id = kRepetition, .header = Localized::tr("Repetition:")};
    for (int choice = 0; choice < m_settings->repetitionCount(); ++choice) {
        const auto each = static_cast<AlarmRepetition>(choice);
        repetition.rows.push_back(
            choiceRow(repetition.id, choice, repetitionText(each), each == m_settings->repetition()));
    }
    Section trigger{.id = kTrigger, .header = Localized::tr("Trigger time:")};
    for (int choice = 0; choice < m_settings->triggerCount(); ++choice) {
        trigger.rows.push_back(choiceRow(trigger.id, choice,
                                         leadTimeText(AlarmSettings::minutesOfTrigger(choice)),
                                         choice == m_settings->trigger()));
    }
    trigger.footer =
        alarmEffectText(m_settings->repetition(), AlarmSettings::minutesOfTrigger(m_settings->trigger()));
    std::vector<Section> sections;
    sections.push_back(std::move(repetition));
    sections.push_back(std::move(trigger));
    table().setSections(std::move(sections));
}

void FavoriteSettingsTimeThresholdViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (!std::holds_alternative<Tapped>(event)) {
        return;
    }
    const int choice = id.name()->toInt();
    if (id.section == kRepetition) {
        m_settings->chooseRepetition(choice);
    } else {
        m_settings->chooseTrigger(choice);
    }
    table().deselectRow();
    reloadTable();
}

void FavoriteSettingsTimeThresholdViewController::apply() {
    if (!m_settings->isChanged()) {
        return;
    }
    const AlarmSettings chosen = *m_settings;
    // The screen may be shown and left again.
    const std::optional<int> minutes = AlarmSettings::minutesOfTrigger(chosen.trigger());
    AlarmSettings::Current current{.hasOtherType = m_hasOtherType};
    if (chosen.repetition() == AlarmRepetition::OnlyThis) {
        current.minutes = minutes;
    } else if (minutes) {
        current.recurring = {.minutes = *minutes};
        if (chosen.repetition() != AlarmRepetition::Any) {
            current.recurring->previouslyShown = chosen.repetition() == AlarmRepetition::Replays;
        }
    }
    m_settings.emplace(m_entry, current, m_environment->clock);
    chosen.removeFormerAlarm(m_environment->alarmActions);
    chosen.setChosenAlarm(m_environment->alarmActions, m_environment->favoriteActions);
}

} // namespace guide
