#include "screens/options/OptionsViewController.h"

#include "alarms/SilentHours.h"
#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/options/CalendarsViewController.h"
#include "screens/options/SilentHoursViewController.h"
#include "screens/options/SilentSpan.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// The names of sections and rows.
constexpr auto kColors = "colors"_L1;
constexpr auto kRinging = "ringing"_L1;
constexpr auto kUpdates = "updates"_L1;
constexpr auto kSilentHours = "silent hours"_L1;
constexpr auto kSilentSpan = "silent span"_L1;
constexpr auto kDisplay = "display"_L1;
constexpr auto kPictures = "pictures"_L1;
constexpr auto kLargePictures = "large pictures"_L1;
constexpr auto kWholePictures = "whole pictures"_L1;
constexpr auto kShowCount = "shows"_L1;
constexpr auto kInterval = "interval"_L1;

Row row(const QString& section, const QString& name, RowContent content, bool selectable = false) {
    return {.id = {section, name}, .content = std::move(content), .selectable = selectable};
}

/// The values that are offered, with the current one, in ascending order.
template <class Value>
std::vector<Value> withCurrent(std::vector<Value> offered, Value current) {
    const auto place = std::ranges::lower_bound(offered, current);
    if (place == offered.end() || *place != current) {
        offered.insert(place, current);
    }
    return offered;
}

template <class Value, class Text>
ChoiceRow choiceRow(const QString& title, const std::vector<Value>& offered, Value current,
                    const Text& textOf) {
    ChoiceRow content{.title = title};
    std::ranges::transform(offered, std::back_inserter(content.choices), textOf);
    content.chosen = static_cast<int>(std::ranges::find(offered, current) - offered.begin());
    return content;
}

QString intervalText(std::chrono::seconds interval) {
    if (interval % 1h != 0s || interval <= 0s) {
        return Localized::tr(
            "Every %n min", nullptr,
            static_cast<int>(std::max(1min, std::chrono::ceil<std::chrono::minutes>(interval)).count()));
    }
    return interval % 24h != 0s ? Localized::tr("Every %n h", nullptr, static_cast<int>(interval / 1h))
                                : Localized::tr("Every %n day(s)", nullptr, static_cast<int>(interval / 24h));
}

} // namespace

OptionsViewController::OptionsViewController(std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment))
    , m_userData(m_environment, *this) {}

void OptionsViewController::viewDidLoad() {
    setTitle(Localized::tr("Options"));
}

void OptionsViewController::viewWillAppear() {
    table().deselectRow();
    setButtons();
    loadRinging();
    loadUpdates();
    reloadTable();
}

// Access to the calendars may have been granted meanwhile.
void OptionsViewController::notificationsSynched() {
    if (viewLoaded()) {
        setButtons();
        reloadTable();
    }
}

void OptionsViewController::setButtons() {
    if (!m_environment->calendarActions || !m_environment->alarmSynchronisation.hasCalendarAccess()) {
        setRightBarButtons({});
        return;
    }
    setRightBarButtons({{BarButton::Kind::Title, Localized::tr("Calendars"), [this] {
                             if (NavigationController* navigation = navigationController()) {
                                 navigation->pushFrom(
                                     *this, std::make_shared<CalendarsViewController>(m_environment));
                             }
                         }}});
}

void OptionsViewController::reloadTable() {
    const ScreenSettings& settings = m_environment->settings;
    Section colors{.id = kColors,
                   .rows = {row(kColors, kColors,
                                SwitchRow{Localized::tr("Show coloring"), {}, settings.colorizedShows()})}};
    std::vector<Section> sections;
    sections.push_back(std::move(colors));
    if (std::optional<Section> ringing = ringingSection()) {
        sections.push_back(*std::move(ringing));
    }
    if (std::optional<Section> updates = updatesSection()) {
        sections.push_back(*std::move(updates));
    }
    sections.push_back(silentHoursSection());
    sections.push_back(displaySection());
    if (m_environment->userData) {
        sections.push_back(m_userData.section());
    }
    table().setSections(std::move(sections));
}

void OptionsViewController::loadRinging() {
    if (m_environment->alarmRinging) {
        m_environment->alarmRinging->state(
            m_ringingRead.expect(weak_from_this(), [this](const AlarmRingingState& state) {
                m_ringing = state;
                reloadTable();
            }));
    }
}

std::optional<Section> OptionsViewController::ringingSection() const {
    if (!m_ringing) {
        return std::nullopt;
    }
    QString note = Localized::tr("Alerts are notifications, also while the guide is closed.");
    if (m_ringing->desktopRings) {
        note =
            m_ringing->isOn
                ? Localized::tr("The reminders of your desktop ring. The guide rings when they do not run.")
                : Localized::tr("The reminders of your desktop ring already.");
    }
    return Section{
        .id = kRinging,
        .rows = {row(kRinging, kRinging,
                     SwitchRow{Localized::tr("Ring alerts on this device"), note, m_ringing->isOn})}};
}

void OptionsViewController::setRinging(bool on) {
    m_ringing->isOn = on;
    m_environment->alarmRinging->setOn(on, m_ringingSet.expect(weak_from_this(), [this](bool isDone) {
        loadRinging();
        if (!isDone) {
            presentSessionError(
                Localized::tr("Ringing could not be changed: a file of your session cannot be written."));
        }
    }));
}

void OptionsViewController::loadUpdates() {
    if (m_environment->backgroundUpdates) {
        m_environment->backgroundUpdates->state(
            m_updatesRead.expect(weak_from_this(), [this](BackgroundUpdates::State state) {
                m_updates = state;
                reloadTable();
            }));
    }
}

std::optional<Section> OptionsViewController::updatesSection() const {
    if (m_updates == BackgroundUpdates::State::Unavailable) {
        return std::nullopt;
    }
    return Section{
        .id = kUpdates,
        .rows = {row(kUpdates, kUpdates,
                     SwitchRow{Localized::tr("Update while the guide is closed"),
                               Localized::tr("Twice a day, so that alerts follow shows that move."),
                               m_updates == BackgroundUpdates::State::On})}};
}

void OptionsViewController::setUpdates(bool on) {
    m_updates = on ? BackgroundUpdates::State::On : BackgroundUpdates::State::Off;
    m_environment->backgroundUpdates->setOn(on, m_updatesSet.expect(weak_from_this(), [this](bool isDone) {
        loadUpdates();
        if (!isDone) {
            presentSessionError(
                Localized::tr("Updates could not be changed: a file of your session cannot be written."));
        }
    }));
}

void OptionsViewController::presentSessionError(const QString& text) {
    m_environment->navigation.presentAlert({Localized::tr("Error"), text, {{Localized::tr("OK")}}});
}

Section OptionsViewController::silentHoursSection() const {
    const SilentHours hours(m_environment->keyValueStore, m_environment->device);
    Section section{.id = kSilentHours};
    section.rows.push_back(
        row(section.id, kSilentHours,
            SwitchRow{Localized::tr("Scheduled no alarm time"),
                      Localized::tr("Don't automatically create any recurring alarms in this time span"),
                      hours.enabled()}));
    if (!hours.enabled()) {
        return section;
    }
    const QLocale locale = m_environment->device.locale();
    const SilentPeriod& period = hours.period();
    section.rows.push_back(
        row(section.id, kSilentSpan,
            TextRow{.title = u"%1:\n%2:"_s.arg(Localized::tr("From"), Localized::tr("To")),
                    .subtitle = isAllSilent(period) ? allSilentText(period) : QString(),
                    .detail = minuteText(period.from, locale) + u'\n' + minuteText(period.to, locale),
                    .accessory = Accessory::Disclosure},
            true));
    return section;
}

Section OptionsViewController::displaySection() {
    const ScreenSettings& settings = m_environment->settings;
    const bool pictures = settings.imagesEnabled();
    const QLocale locale = m_environment->device.locale();
    m_showCounts = withCurrent({1, 2, 3, 4, 5, 6, 8, 10}, settings.showCount());
    m_intervals =
        withCurrent<std::chrono::seconds>({3h, 6h, 12h, 24h, 48h, 168h}, settings.automaticUpdateInterval());
    Section section{.id = kDisplay, .header = Localized::tr("Display")};
    section.rows = {
        row(section.id, kPictures, SwitchRow{Localized::tr("Pictures of shows"), {}, pictures}),
        row(section.id, kLargePictures,
            SwitchRow{Localized::tr("Large pictures on the pages of shows"),
                      {},
                      settings.showBgImages(),
                      pictures}),
        row(section.id, kWholePictures,
            SwitchRow{Localized::tr("Large pictures without cutting"),
                      Localized::tr("A picture of another shape is shown whole and does not fill its place."),
                      settings.alwaysMaintainsAspectRatio(), pictures && settings.showBgImages()}),
        row(section.id, kShowCount,
            choiceRow(Localized::tr("Shows per channel"), m_showCounts, settings.showCount(),
                      [&locale](int count) { return locale.toString(count); })),
        row(section.id, kInterval,
            choiceRow(Localized::tr("Look for new schedules"), m_intervals,
                      settings.automaticUpdateInterval(), intervalText)),
    };
    return section;
}

void OptionsViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (const auto* toggle = std::get_if<Toggled>(&event)) {
        toggled(*id.name(), toggle->on);
        reloadTable();
    } else if (const auto* choice = std::get_if<Chosen>(&event)) {
        chosen(*id.name(), static_cast<std::size_t>(choice->choice));
        reloadTable();
    } else if (m_userData.tapped(id)) {
        table().deselectRow();
    } else if (NavigationController* navigation = navigationController();
               navigation && *id.name() == kSilentSpan) {
        navigation->pushFrom(*this, std::make_shared<SilentHoursViewController>(m_environment));
    }
}

void OptionsViewController::toggled(const QString& name, bool on) {
    ScreenSettings& settings = m_environment->settings;
    if (name == kColors) {
        settings.setColorizedShows(on);
    } else if (name == kRinging) {
        setRinging(on);
    } else if (name == kUpdates) {
        setUpdates(on);
    } else if (name == kSilentHours) {
        setSilentHoursEnabled(m_environment->keyValueStore, on);
        applySilentHours(*m_environment);
    } else if (name == kPictures) {
        settings.setImagesEnabled(on);
    } else if (name == kLargePictures) {
        settings.setShowBgImages(on);
    } else if (name == kWholePictures) {
        settings.setAlwaysMaintainsAspectRatio(on);
    }
}

void OptionsViewController::chosen(const QString& name, std::size_t choice) {
    if (name == kShowCount && choice < m_showCounts.size()) {
        m_environment->settings.setShowCount(m_showCounts[choice]);
    } else if (name == kInterval && choice < m_intervals.size()) {
        m_environment->settings.setAutomaticUpdateInterval(m_intervals[choice]);
    }
}

} // namespace guide
