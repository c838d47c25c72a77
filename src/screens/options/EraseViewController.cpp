#include "screens/options/EraseViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kWhat = "what"_L1;
constexpr auto kMore = "more"_L1;
constexpr auto kDelete = "delete"_L1;

/// What erasing always removes, one text for each kind of which there is any.
QStringList partTexts(const UserDataCounts& counts) {
    QStringList texts;
    if (counts.channels > 0) {
        texts << Localized::tr("%n selected channel(s)", nullptr, static_cast<int>(counts.channels));
    }
    if (counts.rules > 0) {
        texts << Localized::tr("%n favourite(s)", nullptr, static_cast<int>(counts.rules));
    }
    if (counts.alarms > 0) {
        texts << Localized::tr("%n alert(s) in the calendar", nullptr, static_cast<int>(counts.alarms));
    }
    if (counts.replacedLists > 0) {
        texts << Localized::tr("%n kept list(s)", nullptr, static_cast<int>(counts.replacedLists));
    }
    return texts;
}

/// What it removes if the user wants.
QStringList moreTexts(const UserDataCounts& counts) {
    QStringList texts;
    if (counts.silentHours) {
        texts << Localized::tr("silent hours");
    }
    if (counts.calendar) {
        texts << Localized::tr("the choice of the calendar");
    }
    if (counts.otherAlarms > 0) {
        texts << Localized::tr("%n alert(s) of other shows", nullptr, static_cast<int>(counts.otherAlarms));
    }
    return texts;
}

} // namespace

void EraseViewController::viewDidLoad() {
    setTitle(Localized::tr("Delete data"));
}

void EraseViewController::viewWillAppear() {
    table().deselectRow();
    count();
}

void EraseViewController::count() {
    m_environment->userData->count(m_counted.expect(weak_from_this(), [this](const UserDataCounts& counts) {
        m_counts = counts;
        reloadTable();
    }));
}

void EraseViewController::reloadTable() {
    const QStringList parts = partTexts(*m_counts);
    Section what{.id = kWhat,
                 .header = Localized::tr("On this device"),
                 .footer = Localized::tr("Favourites are removed on all your devices.")};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        what.rows.push_back({.id = {kWhat, QString::number(i)}, .content = TextRow{.title = parts[i]}});
    }
    if (parts.isEmpty()) {
        what.rows.push_back(
            {.id = {kWhat, u"nothing"_s}, .content = TextRow{.title = Localized::tr("Nothing")}});
    }
    std::vector<Section> sections{std::move(what)};
    if (m_counts->hasMore()) {
        sections.push_back(
            {.id = kMore,
             .rows = {{.id = {kMore, QString(kMore)},
                       .content = SwitchRow{Localized::tr("Also"), moreTexts(*m_counts).join(u", "_s), m_more,
                                            !m_erasing}}}});
    }
    const bool hasAny = !parts.isEmpty() || (m_more && m_counts->hasMore());
    sections.push_back({.id = kDelete,
                        .rows = {{.id = {kDelete, QString(kDelete)},
                                  .content = ButtonRow{.title = Localized::tr("Delete"),
                                                       .style = ButtonRow::Style::Destructive,
                                                       .enabled = hasAny && !m_erasing},
                                  .selectable = true}}});
    table().setSections(std::move(sections));
}

void EraseViewController::rowEvent(const RowId& id, const RowEvent& event) {
    table().deselectRow();
    if (const auto* toggle = std::get_if<Toggled>(&event)) {
        m_more = toggle->on;
        reloadTable();
    } else if (id.section == kDelete && std::holds_alternative<Tapped>(event) && !m_erasing) {
        ask();
    }
}

void EraseViewController::ask() {
    m_environment->navigation.presentAlert(
        {Localized::tr("Warning"),
         Localized::tr("This will delete all your personal application data stored in iCloud including "
                       "favorites and selected TV channels."),
         {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
          {Localized::tr("Delete"), AlertAction::Style::Destructive,
           [weak = weakFromThis<EraseViewController>()] {
               if (const auto self = weak.lock()) {
                   self->erase();
               }
           }}}});
}

void EraseViewController::erase() {
    m_erasing = true;
    reloadTable();
    m_environment->userData->erase(
        m_more,
        m_erased.expect(weak_from_this(), [this](const UserDataCounts& removed) { erased(removed); }));
}

void EraseViewController::erased(const UserDataCounts& removed) {
    m_erasing = false;
    const QStringList texts = partTexts(removed) + moreTexts(removed);
    m_environment->navigation.presentAlert({Localized::tr("Deleted"),
                                            texts.isEmpty() ? Localized::tr("Nothing") : texts.join(u'\n'),
                                            {{Localized::tr("OK")}}});
    count();
}

} // namespace guide
