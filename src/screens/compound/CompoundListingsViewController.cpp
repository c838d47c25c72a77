#include "screens/compound/CompoundListingsViewController.h"

#include "screens/CategoryTitle.h"
#include "screens/Localized.h"
#include "screens/alarms/AlarmJournalViewController.h"
#include "screens/detail/DetailViewController.h"
#include "screens/favorites/FavoritesViewController.h"
#include "screens/kit/NavigationController.h"
#include "store/ShownEnds.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QueuePriority kVisible = QueuePriority::UserInitiated;
constexpr QueuePriority kHidden = QueuePriority::Background;

const QLatin1StringView kPastShows("past shows");

template <class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};

QString emptyTitle() {
    return Localized::tr("No TV shows in this category");
}

QString emptyCategoryMessage() {
    return Localized::tr(
        "Currently, there are no TV shows in this category for the TV channels you have selected or have not "
        "being loaded yet.\nTV Shows are categorized heuristically.");
}

} // namespace

CompoundListingsViewController::CompoundListingsViewController(
    std::shared_ptr<const ScreenEnvironment> environment, CompoundListings listings)
    : m_environment(std::move(environment))
    , m_listings(std::move(listings))
    , m_minuteTick(m_environment->clock, m_environment->mainQueue, m_environment->applicationState) {}

void CompoundListingsViewController::viewDidLoad() {
    updateBarButtons();
    lookForPastShows();
    updateBusy();
}

void CompoundListingsViewController::viewWillAppear() {
    setTitle(titleNow());
    table().deselectRow();
}

void CompoundListingsViewController::viewDidAppear() {
    m_visible = true;
    m_mustExplain = true;
    m_minuteTick.start(weak_from_this(), [this] { minuteBegan(); });
    updateBarButtons();
    reloadData();
}

void CompoundListingsViewController::viewDidDisappear() {
    m_visible = false;
    m_mustExplain = false;
    m_minuteTick.stop();
    table().deselectRow();
}

QString CompoundListingsViewController::titleNow() const {
    return std::visit(Overloaded{[](const FavoriteListings&) { return Localized::tr("Schedule"); },
                                 [this](const CategoryListings& listings) {
                                     if (isRoot()) {
                                         return Localized::tr("Schedule");
                                     }
                                     return listings.category == TVListingsCategoryAllFilm
                                                ? Localized::tr("All")
                                                : categoryTitle(listings.category);
                                 },
                                 [](const TitleListings& listings) { return listings.title; },
                                 [](const AlertListings&) { return Localized::tr("Alerts"); }},
                      m_listings);
}

// ---- changes outside the screen

void CompoundListingsViewController::applicationDidBecomeActive() {
    m_minuteTick.resume();
    reloadData();
}

void CompoundListingsViewController::applicationDidEnterBackground() {
    m_busy = true;
    updateBusy();
}

void CompoundListingsViewController::notificationsSynched() {
    reloadData();
    updateBarButtons();
}

// ---- the query

void CompoundListingsViewController::reloadData() {
    if (!viewLoaded()) {
        return;
    }
    const QueuePriority priority = m_visible || !navigationController() ? kVisible : kHidden;
    // Loads that end close together cost two queries, not one for each of them.
    if (m_asking && *m_asking >= priority) {
        m_askAgain = true;
        return;
    }
    m_asking = priority;
    m_askAgain = false;
    query(priority);
}

void CompoundListingsViewController::query(QueuePriority priority) {
    const auto answer = [this, priority] {
        return m_latest.expect(weak_from_this(),
                               [this, priority](const ShowSpan& shows) { group(shows, priority); });
    };
    TVListings& listings = m_environment->listings;
    std::visit(
        Overloaded{
            [&](const FavoriteListings&) { listings.favoritesScheduleWithPriority(priority, answer()); },
            [&](const CategoryListings& of) {
                const bool isSelector = of.category == TVListingsCategoryAllShows ||
                                        of.category == TVListingsCategoryEveningShows ||
                                        of.category == TVListingsCategoryMostWatched;
                if (isSelector) {
                    listings.allShowsWithCategory(of.category, priority, answer());
                } else {
                    listings.showsWithCategory(of.category, priority, answer());
                }
            },
            [&](const TitleListings& of) { listings.showScheduleForTitle(of.title, priority, answer()); },
            [&](const AlertListings&) {
                m_environment->alertsSchedule.alertsScheduleWithPriority(priority, answer());
            }},
        m_listings);
}

void CompoundListingsViewController::group(const ShowSpan& shows, QueuePriority priority) {
    MainBlock<std::shared_ptr<CompoundSections>> answer =
        m_latest.expect(weak_from_this(), [this](const std::shared_ptr<CompoundSections>& groups) {
            setGroups(std::move(*groups));
            answered();
        });
    m_environment->queues.globalQueue(priority).async(
        [&main = m_environment->mainQueue, rows = CompoundRows(*m_environment, lists<AlertListings>()), shows,
         answer = std::move(answer)]() mutable {
            answer.post(main, std::make_shared<CompoundSections>(rows.sectionsOf(shows)));
        });
}

void CompoundListingsViewController::setGroups(CompoundSections groups) {
    m_days = std::move(groups.days);
    table().setEmptyNote(emptyNote());
    reloadTable(std::move(groups.sections));
}

void CompoundListingsViewController::answered() {
    m_asking.reset();
    m_busy = false;
    updateBusy();
    explainIfEmpty();
    if (m_askAgain) {
        reloadData();
    }
}

void CompoundListingsViewController::updateBusy() {
    setProgress(m_busy || m_archiveAsked ? std::optional(Progress{}) : std::nullopt);
}

// ---- rows

void CompoundListingsViewController::reloadTable(std::vector<Section> days) {
    if (std::optional<Section> past = pastShows()) {
        days.insert(days.begin(), *std::move(past));
    }
    table().setSections(std::move(days));
}

void CompoundListingsViewController::minuteBegan() {
    // A run may end without saying so.
    updateBarButtons();
    if (m_asking) {
        // Its rows will be current.
        return;
    }
    const Moment now = m_environment->clock.now();
    ShowItems left;
    for (const DaySection& day : m_days) {
        std::ranges::copy_if(day.shows, std::back_inserter(left), [now](const ShowItem& show) {
            const std::optional<Moment> end = shownEnd(*show.entry());
            return !end || *end > now;
        });
    }
    group(ShowSpan(std::move(left)), kVisible);
}

const ShowItem* CompoundListingsViewController::shownShow(const RowId& id) const {
    if (!id.show()) {
        return nullptr;
    }
    const auto day =
        std::ranges::find_if(m_days, [&id](const DaySection& each) { return each.id() == id.section; });
    return day == m_days.end() ? nullptr : findShow(day->shows, *id.show());
}

void CompoundListingsViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (!std::holds_alternative<Tapped>(event)) {
        return;
    }
    if (const ShowItem* show = shownShow(id)) {
        openShow(*show);
        return;
    }
    if (!id.name()) {
        return;
    }
    const auto place = static_cast<std::size_t>(id.name()->toULongLong());
    table().deselectRow();
    if (place < m_recordedShows.size() && m_recordedShows[place].url) {
        m_environment->navigation.openWebPage(*m_recordedShows[place].url, titleNow());
    }
}

void CompoundListingsViewController::openShow(const ShowItem& show) {
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    const CatalogueChannel* channel = catalogue->find(show.entry()->channel());
    if (navigationController()) {
        navigationController()->pushFrom(
            *this,
            std::make_shared<DetailViewController>(m_environment, show, channel ? channel->icon : QString()));
    }
}

std::vector<RowAction> CompoundListingsViewController::actionsForRow(const RowId& id) {
    const ShowItem* show = shownShow(id);
    return show ? m_environment->swipeActions(show->entry(), shared_from_this()) : std::vector<RowAction>();
}

// ---- past broadcasts

void CompoundListingsViewController::lookForPastShows() {
    const auto* listings = std::get_if<TitleListings>(&m_listings);
    if (!listings || !listings->lookForPastShows) {
        return;
    }
    m_archiveAsked = true;
    m_environment->recordedShows.recordedShowsWithTitle(
        listings->title, m_archive.expect(weak_from_this(), [this](const std::vector<RecordedShow>& shows) {
            m_archiveAsked = false;
            m_recordedShows = shows;
            reloadTable(table().latestSections());
            updateBusy();
            explainIfEmpty();
        }));
}

std::optional<Section> CompoundListingsViewController::pastShows() const {
    if (m_recordedShows.empty()) {
        return std::nullopt;
    }
    Section section{.id = kPastShows, .header = Localized::tr("Past shows")};
    for (std::size_t place = 0; place < m_recordedShows.size(); ++place) {
        const RecordedShow& show = m_recordedShows[place];
        section.rows.push_back(
            {.id = {section.id, QString::number(place)},
             .content = TextRow{.title = show.label,
                                .accessory = show.url ? Accessory::Disclosure : Accessory::None},
             .selectable = show.url.has_value()});
    }
    return section;
}

// ---- buttons

void CompoundListingsViewController::updateBarButtons() {
    const bool updating = m_environment->alarmSynchronisation.isRunning();
    const BarButton spinner{BarButton::Kind::Activity, Localized::tr("Updating alerts"), nullptr};
    std::vector<BarButton> buttons;
    if (lists<FavoriteListings>()) {
        buttons.push_back({BarButton::Kind::Title, Localized::tr("Edit"), [this] { edit(); }});
        // The journal is behind them, also when there is no alert any more.
        if (m_environment->alarmExplanations || m_environment->alarms.snapshot()->eventCount() > 0) {
            buttons.push_back({BarButton::Kind::Title, Localized::tr("Alerts"), [this] { alerts(); }});
        }
        if (updating) {
            buttons.push_back(spinner);
        }
    } else if (lists<AlertListings>()) {
        if (m_environment->alarmExplanations) {
            buttons.push_back({BarButton::Kind::Title, Localized::tr("Journal"), [this] { journal(); }});
        }
        if (updating) {
            buttons.push_back(spinner);
        }
    }
    setRightBarButtons(std::move(buttons));
}

void CompoundListingsViewController::edit() {
    if (navigationController()) {
        navigationController()->pushFrom(*this, std::make_shared<FavoritesViewController>(m_environment));
    }
}

void CompoundListingsViewController::alerts() {
    if (navigationController()) {
        navigationController()->pushFrom(
            *this, std::make_shared<CompoundListingsViewController>(m_environment, AlertListings{}));
    }
}

void CompoundListingsViewController::journal() {
    if (navigationController()) {
        navigationController()->pushFrom(*this, std::make_shared<AlarmJournalViewController>(m_environment));
    }
}

// ---- an empty list

bool CompoundListingsViewController::isRoot() const {
    return navigationController() && navigationController()->viewControllers().front().get() == this;
}

void CompoundListingsViewController::explainIfEmpty() {
    const bool complete = !m_asking && !m_archiveAsked;
    if (!complete || !std::exchange(m_mustExplain, false)) {
        return;
    }
    const NavigationController* navigation = navigationController();
    if (table().rowCount() > 0 || !navigation || isRoot() || navigation->topViewController().get() != this) {
        return;
    }
    m_environment->navigation.presentAlert(
        {emptyTitle(),
         lists<CategoryListings>()
             ? emptyCategoryMessage()
             : Localized::tr(
                   "There is nothing to show currently.\nPlease wait until TV listings have loaded."),
         {{Localized::tr("OK"), AlertAction::Style::Default, nullptr}}});
}

EmptyNote CompoundListingsViewController::emptyNote() {
    const auto select = [this](Symbol tab) {
        return [this, tab] { m_environment->navigation.selectTab(tab); };
    };
    if (lists<FavoriteListings>() && m_environment->favorites.snapshot()->empty()) {
        return {Localized::tr("No favourites yet"),
                Localized::tr("The broadcasts of your favourites appear here. Swipe a show to the left, or "
                              "right-click it, to make it a favourite."),
                Localized::tr("See what is on now"), select(Symbol::Currently)};
    }
    if (lists<FavoriteListings>()) {
        return {Localized::tr("No favourite is broadcast soon"),
                Localized::tr("The schedules of your channels do not list any of your favourites."),
                Localized::tr("Edit favourites"), [this] { edit(); }};
    }
    if (lists<CategoryListings>()) {
        return {emptyTitle(), emptyCategoryMessage(), Localized::tr("Choose channels"),
                select(Symbol::SelectedChannels)};
    }
    if (const auto* listings = std::get_if<TitleListings>(&m_listings)) {
        return {Localized::tr("No broadcast to come"),
                Localized::tr("The schedules of your channels do not list “%1”.").arg(listings->title),
                Localized::tr("Choose channels"), select(Symbol::SelectedChannels)};
    }
    return {Localized::tr("No alerts"), Localized::tr("The shows that you are alerted to appear here."),
            Localized::tr("See what is on now"), select(Symbol::Currently)};
}

} // namespace guide
