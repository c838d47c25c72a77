#include "screens/favorites/FavoritesViewController.h"

#include "alarms/AlarmText.h"
#include "screens/Localized.h"
#include "screens/compound/CompoundListingsViewController.h"
#include "screens/kit/NavigationController.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Empty for a rule without a recurring alarm.
QString alarmText(const Favorite& rule) {
    return rule.minutes ? Localized::tr("Alert: %1").arg(leadTimeText(&rule, {})) : QString();
}

} // namespace

FavoritesViewController::FavoritesViewController(std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment)) {
    setTitle(Localized::tr("Favorites"));
}

void FavoritesViewController::viewDidLoad() {
    table().setEditing(true);
    table().setEmptyNote(
        EmptyNote{Localized::tr("No favourites yet"),
                  Localized::tr("Swipe a show to the left, or right-click it, to make it a favourite."),
                  Localized::tr("See what is on now"),
                  [this] { m_environment->navigation.selectTab(Symbol::Currently); }});
    reloadTable();
}

void FavoritesViewController::viewWillAppear() {
    table().deselectRow();
    reloadTable();
}

void FavoritesViewController::recolor() {
    m_environment->mainQueue.async([weak = weakFromThis<FavoritesViewController>()] {
        if (const auto self = weak.lock()) {
            self->reloadTable();
        }
    });
}

void FavoritesViewController::reloadTable() {
    if (!viewLoaded()) {
        return;
    }
    const auto favorites = m_environment->favorites.snapshot();
    std::vector<const Favorite*> rules;
    rules.reserve(favorites->rules().size());
    for (const Favorite& rule : favorites->rules()) {
        rules.push_back(&rule);
    }
    std::ranges::stable_sort(rules, [](const Favorite* one, const Favorite* other) {
        const int order = one->identificator.compare(other->identificator, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : one->identificator < other->identificator;
    });
    Section section{.id = u"favorites"_s};
    m_titles.clear();
    for (const Favorite* rule : rules) {
        const QString& title = rule->identificator;
        if (!m_titles.isEmpty() && m_titles.last() == title) {
            continue;
        }
        m_titles << title;
        section.rows.push_back(
            {.id = {section.id, title},
             .content =
                 TextRow{.title = title, .subtitle = alarmText(*rule), .accessory = Accessory::Disclosure},
             .selectable = true,
             .deletable = true});
    }
    if (m_titles.isEmpty()) {
        setRightBarButtons({});
        table().setSections({});
        return;
    }
    setRightBarButtons({{BarButton::Kind::Title, Localized::tr("Remove all"), [this] { askToRemoveAll(); }}});
    std::vector<Section> sections;
    sections.push_back(std::move(section));
    table().setSections(std::move(sections));
}

void FavoritesViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (std::holds_alternative<Deleted>(event)) {
        remove({*id.name()});
    } else if (navigationController()) {
        navigationController()->pushFrom(*this, std::make_shared<CompoundListingsViewController>(
                                                    m_environment, TitleListings{.title = *id.name()}));
    }
}

std::vector<RowAction> FavoritesViewController::actionsForRow(const RowId& id) {
    return {{Localized::tr("Remove"), Localized::tr("Remove favorite"), ColorRole::Alarm,
             [weak = weakFromThis<FavoritesViewController>(), title = *id.name()] {
                 if (const auto self = weak.lock()) {
                     self->remove({title});
                 }
             }}};
}

void FavoritesViewController::remove(const QStringList& titles) {
    const auto before = m_environment->favorites.snapshot();
    m_environment->favoriteActions.removeFavorites(titles);
    reloadTable();
    m_environment->navigation.presentNotice(
        {.text = titles.size() == 1 ? Localized::tr("“%1” is no longer a favourite").arg(titles.first())
                                    : Localized::tr("All favourites removed"),
         .actionTitle = Localized::tr("Undo"),
         .action = [environment = m_environment, before, titles] {
             environment->favoriteActions.restoreFavorites(*before, titles);
         }});
}

void FavoritesViewController::askToRemoveAll() {
    m_environment->navigation.presentAlert({Localized::tr("Warning"),
                                            Localized::tr("Remove all favorite shows?"),
                                            {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
                                             {Localized::tr("Remove"), AlertAction::Style::Destructive,
                                              [weak = weakFromThis<FavoritesViewController>()] {
                                                  if (const auto self = weak.lock()) {
                                                      self->remove(self->m_titles);
                                                  }
                                              }}}});
}

} // namespace guide
