#include "screens/search/SearchViewController.h"

#include "screens/Localized.h"
#include "screens/ShowRows.h"
#include "screens/detail/DetailViewController.h"
#include "screens/kit/NavigationController.h"
#include "store/ScheduleQueries.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// A shorter text that was typed, but neither confirmed nor used, does not count as searched for.
constexpr qsizetype kShortestSearch = 2;
/// More than a window shows.
constexpr std::size_t kFirstRows = 60;
/// Longer than between two keys of a word.
constexpr std::chrono::milliseconds kPause{300};

constexpr auto kRecent = "recent"_L1;
constexpr auto kClear = "clear"_L1;

} // namespace

SearchViewController::SearchViewController(std::shared_ptr<const ScreenEnvironment> environment)
    : m_environment(std::move(environment))
    , m_recentSearches(m_environment->userDefaults)
    , m_minuteTick(m_environment->clock, m_environment->mainQueue, m_environment->applicationState) {
    setTitle(Localized::tr("Search"));
    setSearchField(SearchField{.placeholder = Localized::tr("Search pattern"), .focusOnOpening = true});
}

void SearchViewController::viewDidLoad() {
    setRightBarButtons({{BarButton::Kind::Info, Localized::tr("Info"), [this] { info(); }}});
}

void SearchViewController::viewWillAppear() {
    table().deselectRow();
}

void SearchViewController::viewDidAppear() {
    m_visible = true;
    m_minuteTick.start(weak_from_this(), [this] { searchAgain(); });
    if (text().isEmpty()) {
        showRecentSearches();
    } else if (m_stale) {
        searchAgain();
    }
}

void SearchViewController::viewDidDisappear() {
    m_visible = false;
    // Shows may begin and end until the screen appears again.
    m_stale = true;
    m_minuteTick.stop();
    table().deselectRow();
    searchFinished();
}

void SearchViewController::applicationDidBecomeActive() {
    m_minuteTick.resume();
    searchAgain();
}

// ---- searching

void SearchViewController::searchTextEdited(const QString& text) {
    if (text.isEmpty()) {
        m_remembered.clear();
        showRecentSearches();
    }
    search(text);
}

void SearchViewController::search(const QString& pattern) {
    m_stale = false;
    // Rows that are shown already keep their places when they are searched for again.
    const std::size_t atOnce = pattern == m_shownPattern ? kMostShows : kFirstRows;
    MainBlock<std::shared_ptr<const FirstResults>> answer =
        m_answer.expect(weak_from_this(), [this](const auto& first) {
            if (!text().isEmpty()) {
                show(first->results);
                if (!first->isComplete()) {
                    completeAfterTyping(first);
                }
            }
        });
    m_environment->listings.showsContainingPattern(
        pattern, [&mainQueue = m_environment->mainQueue, pattern, atOnce,
                  rows = std::make_shared<const CompoundRows>(*m_environment),
                  answer = std::move(answer)](const ShowItems& shows) mutable {
            answer.post(mainQueue,
                        std::make_shared<const FirstResults>(firstResults(pattern, shows, atOnce, rows)));
        });
}

void SearchViewController::completeAfterTyping(const std::shared_ptr<const FirstResults>& first) {
    MainBlock<> pause = m_answer.expect(weak_from_this(), [this, first] { complete(first); });
    m_environment->mainQueue.asyncAfter(kPause,
                                        [&mainQueue = m_environment->mainQueue,
                                         pause = std::move(pause)]() mutable { pause.post(mainQueue); });
}

void SearchViewController::complete(const std::shared_ptr<const FirstResults>& first) {
    MainBlock<std::shared_ptr<const SearchResults>> answer =
        m_answer.expect(weak_from_this(), [this](const auto& results) { show(*results); });
    m_environment->queues.globalQueue(QueuePriority::UserInitiated)
        .async([&mainQueue = m_environment->mainQueue, first, answer = std::move(answer)]() mutable {
            answer.post(mainQueue, std::make_shared<const SearchResults>(
                                       searchResults(first->results.pattern, first->shows, *first->rows)));
        });
}

void SearchViewController::searchAgain() {
    m_stale = true;
    if (m_visible && !text().isEmpty()) {
        search(text());
    }
}

// ---- rows

void SearchViewController::show(const SearchResults& results) {
    m_days = results.found.days;
    m_shownPattern = results.pattern;
    table().setEmptyNote(nothingFound(results.pattern));
    table().setSections(results.found.sections);
}

EmptyNote SearchViewController::nothingFound(const QString& pattern) {
    return {Localized::tr("No show matches “%1” on your %n channel(s)", nullptr, channelCount()).arg(pattern),
            Localized::tr("Only the shows of selected channels are searched."),
            Localized::tr("Choose channels"),
            [this] { m_environment->navigation.selectTab(Symbol::SelectedChannels); }};
}

void SearchViewController::showRecentSearches() {
    const QString searched =
        Localized::tr("Titles, descriptions and people in the shows of your %n channel(s) are searched.",
                      nullptr, channelCount());
    m_days.clear();
    m_shownPattern.clear();
    table().setEmptyNote(EmptyNote{Localized::tr("What are you looking for?"), searched});
    std::vector<Section> sections;
    if (const QStringList recent = m_recentSearches.all(); !recent.isEmpty()) {
        Section section{.id = kRecent, .header = Localized::tr("Recent searches")};
        for (const QString& text : recent) {
            section.rows.push_back({.id = {kRecent, text},
                                    .content = TextRow{.title = text, .symbol = Symbol::Recent},
                                    .selectable = true,
                                    .deletable = true});
        }
        sections.push_back(std::move(section));
        sections.push_back({.id = kClear,
                            .footer = searched,
                            .rows = {{.id = {kClear, kClear},
                                      .content = ButtonRow{Localized::tr("Clear recent searches")},
                                      .selectable = true}}});
    }
    table().setSections(std::move(sections));
}

const ShowItem* SearchViewController::shownShow(const RowId& id) const {
    const auto day =
        std::ranges::find_if(m_days, [&id](const DaySection& each) { return each.id() == id.section; });
    return day == m_days.end() || !id.show() ? nullptr : findShow(day->shows, *id.show());
}

// ---- the user's events

void SearchViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (id.section == kRecent) {
        const QString text = *id.name();
        table().deselectRow();
        if (std::holds_alternative<Deleted>(event)) {
            m_recentSearches.remove(text);
            showRecentSearches();
        } else if (std::holds_alternative<Tapped>(event)) {
            setText(text);
            remember();
        }
    } else if (id.section == kClear) {
        table().deselectRow();
        forgetRecentSearches();
    } else if (std::holds_alternative<Tapped>(event)) {
        open(id);
    }
}

void SearchViewController::open(const RowId& id) {
    const ShowItem* show = shownShow(id);
    if (!show) {
        return;
    }
    remember();
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    const CatalogueChannel* channel = catalogue->find(show->entry()->channel());
    navigationController()->pushFrom(*this, std::make_shared<DetailViewController>(
                                                m_environment, *show, channel ? channel->icon : QString()));
}

std::vector<RowAction> SearchViewController::actionsForRow(const RowId& id) {
    if (id.section == kRecent) {
        return {{Localized::tr("Remove"), {}, ColorRole::Alarm, [this, text = *id.name()] {
                     m_recentSearches.remove(text);
                     showRecentSearches();
                 }}};
    }
    const ShowItem* show = shownShow(id);
    return show ? m_environment->swipeActions(show->entry(), shared_from_this()) : std::vector<RowAction>();
}

void SearchViewController::setText(const QString& text) {
    SearchField field = *searchField();
    field.text = text;
    setSearchField(std::move(field));
    search(text);
}

void SearchViewController::searchFinished() {
    if (text().size() >= kShortestSearch) {
        remember();
    }
}

void SearchViewController::remember() {
    if (!text().isEmpty()) {
        m_recentSearches.add(text(), m_remembered);
        m_remembered = text();
    }
}

void SearchViewController::forgetRecentSearches() {
    const QStringList forgotten = m_recentSearches.all();
    m_recentSearches.set({});
    showRecentSearches();
    m_environment->navigation.presentNotice({Localized::tr("Recent searches cleared"), Localized::tr("Undo"),
                                             [weak = weakFromThis<SearchViewController>(), forgotten] {
                                                 if (const auto self = weak.lock()) {
                                                     self->m_recentSearches.set(forgotten);
                                                     if (self->text().isEmpty()) {
                                                         self->showRecentSearches();
                                                     }
                                                 }
                                             }});
}

void SearchViewController::info() {
    m_environment->navigation.presentAlert({Localized::tr("Note"),
                                            Localized::tr("Only selected channels will be searched."),
                                            {{Localized::tr("OK")}}});
}

} // namespace guide
