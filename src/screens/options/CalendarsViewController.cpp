#include "screens/options/CalendarsViewController.h"

#include "alarms/AlarmOperations.h"
#include "screens/Localized.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kNew = "new"_L1;

QString newCalendarTitle() {
    return Localized::tr("TV");
}

/// The kind of calendars, which the stores name in English.
QString storeText(const QString& name) {
    static constexpr std::array kKnown{QT_TRANSLATE_NOOP("Guide", "Folder of calendar files"),
                                       QT_TRANSLATE_NOOP("Guide", "Calendars of the desktop")};
    const auto* known =
        std::ranges::find_if(kKnown, [&name](const char* each) { return name == QLatin1StringView(each); });
    return known == kKnown.end() ? name : Localized::tr(*known);
}

/// The name of an account, which a folder says by its path: of a long one, its end.
QString sourceText(const QString& source) {
    if (!source.startsWith(u'/') && !source.startsWith("~/"_L1)) {
        return source;
    }
    const QString path =
        source.count(u'/') > 2 ? source.section(u'/', 0, 0) + u"/…/"_s + source.section(u'/', -2) : source;
    return Localized::tr("Folder %1").arg(path);
}

QString stateText(const EventCalendar& calendar) {
    if (!calendar.allowsContentModifications) {
        return Localized::tr("Read-only");
    }
    switch (calendar.state) {
    case CalendarState::Offline:
        return Localized::tr("Offline; changes are sent later");
    case CalendarState::Unavailable:
        return Localized::tr("Its account needs your attention");
    case CalendarState::Ready:
        break;
    }
    return {};
}

} // namespace

CalendarsViewController::CalendarsViewController(std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment)) {}

void CalendarsViewController::viewDidLoad() {
    setTitle(Localized::tr("Calendars"));
}

void CalendarsViewController::viewWillAppear() {
    table().deselectRow();
    load();
}

void CalendarsViewController::notificationsSynched() {
    if (viewLoaded()) {
        load();
    }
}

void CalendarsViewController::load() {
    if (!m_loaded) {
        setProgress(Progress{});
    }
    m_environment->calendarActions->calendars(
        m_calendars.expect(weak_from_this(), [this](const CalendarChoice& choice) {
            m_loaded = true;
            m_choice = choice;
            setProgress({});
            reloadTable();
        }));
}

void CalendarsViewController::reloadTable() {
    if (!m_choice.calendars) {
        table().setEmptyNote(EmptyNote{Localized::tr("The calendars cannot be read"), QString(),
                                       Localized::tr("Try again"), [this] { load(); }});
        table().setSections({});
        return;
    }
    std::vector<Section> sections;
    for (const EventCalendar& calendar : *m_choice.calendars) {
        const SectionId id = u"source "_s + calendar.source;
        auto section = std::ranges::find(sections, id, &Section::id);
        if (section == sections.end()) {
            section = sections.insert(section, Section{.id = id, .header = sourceText(calendar.source)});
        }
        section->rows.push_back(calendarRow(id, calendar));
    }
    const bool hasNew = std::ranges::any_of(*m_choice.calendars, [](const EventCalendar& calendar) {
        return calendar.title == newCalendarTitle() && calendar.allowsContentModifications;
    });
    if (!hasNew) {
        sections.push_back(
            {.id = kNew,
             .rows = {
                 {.id = {kNew, QString(kNew)},
                  .content = ButtonRow{.title = Localized::tr("New calendar “%1”").arg(newCalendarTitle()),
                                       .enabled = !m_creating},
                  .selectable = true}}});
    }
    if (!sections.empty()) {
        QStringList notes{
            Localized::tr("Alerts are events in the calendar that you choose here, so that your "
                          "other programs and devices show them as well."),
            storeText(m_choice.storeName)};
        notes.removeAll(QString());
        sections.back().footer = notes.join(u'\n');
    }
    table().setSections(std::move(sections));
}

Row CalendarsViewController::calendarRow(const SectionId& section, const EventCalendar& calendar) const {
    return {.id = {section, calendar.identifier},
            .content = TextRow{.title = calendar.title,
                               .subtitle = stateText(calendar),
                               .titleColor = calendar.allowsContentModifications ? ColorRole::Label
                                                                                 : ColorRole::SecondaryLabel,
                               .checked = calendar.identifier == m_choice.selected,
                               .symbol = Symbol::Schedule},
            .selectable = calendar.allowsContentModifications};
}

void CalendarsViewController::rowEvent(const RowId& id, const RowEvent& event) {
    table().deselectRow();
    if (!std::holds_alternative<Tapped>(event)) {
        return;
    }
    if (id.section == kNew) {
        create();
        return;
    }
    const auto calendar = std::ranges::find(*m_choice.calendars, *id.name(), &EventCalendar::identifier);
    if (calendar != m_choice.calendars->end() && calendar->identifier != m_choice.selected && mayChange()) {
        select(*calendar);
    }
}

bool CalendarsViewController::mayChange() const {
    if (mayChangeCalendar(*m_environment->alarms.snapshot())) {
        return true;
    }
    m_environment->navigation.presentAlert(
        {Localized::tr("Error"),
         Localized::tr("You have to remove all your alerts before changing calendar"),
         {{Localized::tr("OK")}}});
    return false;
}

void CalendarsViewController::select(const EventCalendar& calendar) {
    m_environment->calendarActions->selectCalendar(calendar);
    m_choice.selected = calendar.identifier;
    reloadTable();
    load();
}

void CalendarsViewController::create() {
    if (m_creating || !mayChange()) {
        return;
    }
    m_creating = true;
    reloadTable();
    m_environment->calendarActions->createCalendar(
        newCalendarTitle(),
        m_created.expect(weak_from_this(), [this](const std::optional<EventCalendar>& calendar) {
            m_creating = false;
            if (calendar) {
                // An alarm may have been set while the calendar was made.
                mayChange() ? select(*calendar) : load();
                return;
            }
            reloadTable();
            m_environment->navigation.presentAlert({Localized::tr("Error"),
                                                    Localized::tr("The calendar could not be made."),
                                                    {{Localized::tr("OK")}}});
        }));
}

} // namespace guide
