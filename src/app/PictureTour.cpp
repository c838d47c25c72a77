#include "app/PictureTour.h"

#include "screens/Localized.h"
#include "screens/kit/PicturePagesContent.h"
#include "screens/kit/PlayerContent.h"

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPollInterval = 100;
/// The first screen waits for its channels to load.
constexpr int kMaxPollsAtStart = 300;
constexpr int kMaxPolls = 50;
/// Time for the renderer to finish, including the software renderer.
constexpr int kSettle = 400;

bool isChannel(const Row& row) {
    return row.kind() == RowKind::Channel;
}
bool isShow(const Row& row) {
    return row.kind() == RowKind::Show;
}
bool isShowWithPicture(const Row& row) {
    const auto* show = std::get_if<ShowRow>(&row.content);
    return show && !show->picture.empty();
}
bool hasStream(const Row& row) {
    const auto* channel = std::get_if<ChannelRow>(&row.content);
    return channel && channel->accessory == Accessory::Play;
}

bool isOwnChannel(const Row& row) {
    return isChannel(row) && row.id.channel() && row.id.channel()->isOwn();
}

bool isText(const Row& row) {
    return row.kind() == RowKind::Text;
}
bool isTitled(const Row& row, const QString& title) {
    return isText(row) && std::get<TextRow>(row.content).title == title;
}
bool isReview(const Row& row) {
    return isTitled(row, Localized::tr("Review matches"));
}
bool isSettings(const Row& row) {
    return isTitled(row, Localized::tr("Settings of channels"));
}
/// Of the channels to choose from.
bool isChecked(const Row& row) {
    return isChannel(row) && std::get<ChannelRow>(row.content).checked;
}

bool isRunning(const Row& row) {
    const auto* show = std::get_if<ShowRow>(&row.content);
    return show && show->running;
}
bool isLater(const Row& row) {
    return isShow(row) && !isRunning(row);
}
bool isSilentHoursSwitch(const Row& row) {
    const auto* content = std::get_if<SwitchRow>(&row.content);
    return content && content->title == Localized::tr("Scheduled no alarm time");
}
bool isDestructive(const Row& row) {
    const auto* content = std::get_if<ButtonRow>(&row.content);
    return content && content->style == ButtonRow::Style::Destructive;
}
bool isTime(const Row& row) {
    return row.kind() == RowKind::Time;
}
bool isAcrossMidnight(const Row& row) {
    return row.kind() == RowKind::Switch;
}
bool isEveryBroadcast(const Row& row) {
    return isTitled(row, Localized::tr("Any broadcast"));
}
bool isTenMinutes(const Row& row) {
    return isTitled(row, Localized::tr("%1min before").arg(10));
}

bool isFilms(const Row& row) {
    const auto* tile = std::get_if<TileRow>(&row.content);
    return tile && tile->symbol == Symbol::Films;
}

/// Where a stop can be made.
enum class Stops {
    Everywhere,
    /// Where the channels have what it shows, as in the demo.
    Perhaps,
    /// Where the profile may be changed: the stop adds or removes something.
    WithChanges,
    /// The same, where the guide takes sources of the user and there is one to be added.
    WithSources,
};

struct Stop {
    const char* name;
    /// Opens the screen from the one before.
    bool (*open)(PictureTour& tour);
    Stops where = Stops::Everywhere;
    /// Without this tab the stop is left out.
    Symbol tab = Symbol::Currently;
};

constexpr std::array kStops{
    Stop{"currently", [](PictureTour& tour) { return tour.selectTab(Symbol::Currently); }},
    Stop{"channel", [](PictureTour& tour) { return tour.send(Tapped{}, isChannel); }},
    // Of a show on the first screen: only there do rows tell which shows have pictures.
    Stop{"show",
         [](PictureTour& tour) {
             return tour.selectTab(Symbol::Currently) &&
                    (tour.send(Tapped{}, isShowWithPicture) || tour.send(Tapped{}, isShow));
         }},
    Stop{"show-broadcasts", [](PictureTour& tour) { return tour.pressAction(ActionSymbol::Broadcasts); }},
    Stop{"show-pictures",
         [](PictureTour& tour) { return tour.back() && tour.pressAction(ActionSymbol::Pictures); },
         Stops::Perhaps},
    Stop{"streams",
         [](PictureTour& tour) {
             return tour.selectTab(Symbol::Currently) && tour.pressButton(Localized::tr("Channels"));
         },
         Stops::Perhaps},
    Stop{"categories", [](PictureTour& tour) { return tour.selectTab(Symbol::Categories); }},
    Stop{"films", [](PictureTour& tour) { return tour.send(Tapped{}, isFilms); }},
    Stop{"search", [](PictureTour& tour) { return tour.selectTab(Symbol::Search); }},
    // A syllable that titles of most languages contain.
    Stop{"search-results", [](PictureTour& tour) { return tour.search(u"ni"_s); }, Stops::WithChanges},
    Stop{"all-shows", [](PictureTour& tour) { return tour.selectTab(Symbol::AllShows); }, Stops::Everywhere,
         Symbol::AllShows},
    Stop{"schedule-empty", [](PictureTour& tour) { return tour.selectTab(Symbol::Schedule); }},
    Stop{"schedule",
         [](PictureTour& tour) {
             return tour.selectTab(Symbol::Currently) && tour.addFavourites() &&
                    tour.selectTab(Symbol::Schedule);
         },
         Stops::WithChanges},
    Stop{"favourites", [](PictureTour& tour) { return tour.pressButton(Localized::tr("Edit")); }},
    Stop{"title", [](PictureTour& tour) { return tour.send(Tapped{}, isText); }, Stops::WithChanges},
    Stop{"favourites-removed", [](PictureTour& tour) { return tour.back() && tour.send(Deleted{}, isText); },
         Stops::WithChanges},
    Stop{"alert-settings",
         [](PictureTour& tour) {
             return tour.selectTab(Symbol::Schedule) && tour.send(Tapped{}, isLater) &&
                    tour.pressAction(ActionSymbol::Alert);
         },
         Stops::WithChanges},
    Stop{"alert-chosen",
         [](PictureTour& tour) {
             return tour.send(Tapped{}, isEveryBroadcast) && tour.send(Tapped{}, isTenMinutes);
         },
         Stops::WithChanges},
    Stop{"show-alert", [](PictureTour& tour) { return tour.back(); }, Stops::WithChanges},
    Stop{"alerts",
         [](PictureTour& tour) {
             return tour.selectTab(Symbol::Schedule) && tour.pressButton(Localized::tr("Alerts"));
         },
         Stops::WithChanges},
    Stop{"journal", [](PictureTour& tour) { return tour.pressButton(Localized::tr("Journal")); },
         Stops::WithChanges},
    Stop{"selected-channels", [](PictureTour& tour) { return tour.selectTab(Symbol::SelectedChannels); }},
    Stop{"selected-channels-edit", [](PictureTour& tour) { return tour.pressButton(Localized::tr("Edit")); }},
    Stop{"alert", [](PictureTour& tour) { return tour.pressButton(Localized::tr("Unselect all")); }},
    Stop{"options",
         [](PictureTour& tour) {
             return tour.pressButton(Localized::tr("Done")) && tour.pressButton(Localized::tr("Options"));
         }},
    Stop{"options-silent", [](PictureTour& tour) { return tour.send(Toggled{true}, isSilentHoursSwitch); },
         Stops::WithChanges},
    Stop{"options-delete", [](PictureTour& tour) { return tour.send(Tapped{}, isDestructive); },
         Stops::WithChanges},
    Stop{"calendars",
         [](PictureTour& tour) { return tour.back() && tour.pressButton(Localized::tr("Calendars")); },
         Stops::WithChanges},
    Stop{"silent-hours",
         [](PictureTour& tour) {
             return tour.back() && tour.send(Tapped{}, isText) &&
                    tour.send(TimePicked{QTime(22, 30)}, isTime);
         },
         Stops::WithChanges},
    Stop{"silent-hours-all-day",
         [](PictureTour& tour) { return tour.send(Toggled{false}, isAcrossMidnight); }, Stops::WithChanges},
    Stop{"catalogue",
         [](PictureTour& tour) {
             return tour.selectTab(Symbol::SelectedChannels) &&
                    tour.pressButton(Localized::tr("Add channels"));
         }},
    Stop{"catalogue-group", [](PictureTour& tour) { return tour.send(Tapped{}, isText); }},
    Stop{"catalogue-removed", [](PictureTour& tour) { return tour.send(Tapped{}, isChecked); },
         Stops::WithChanges},
    Stop{"adding", [](PictureTour& tour) { return tour.openAdding(); }, Stops::WithSources},
    Stop{"preview", [](PictureTour& tour) { return tour.enterSource(); }, Stops::WithSources},
    Stop{"choosing", [](PictureTour& tour) { return tour.search(u"m"_s); }, Stops::WithSources},
    Stop{"sources",
         [](PictureTour& tour) {
             return tour.send(Tapped{}, isChannel) && tour.pressButton(Localized::tr("Done")) &&
                    tour.selectTab(Symbol::SelectedChannels) && tour.pressButton(Localized::tr("My sources"));
         },
         Stops::WithSources},
    Stop{"source", [](PictureTour& tour) { return tour.send(Tapped{}, isText); }, Stops::WithSources},
    Stop{"own-channel-settings",
         [](PictureTour& tour) { return tour.send(Tapped{}, isSettings) && tour.send(Tapped{}, isText); },
         Stops::WithSources},
    Stop{"own-channel",
         [](PictureTour& tour) {
             return tour.selectTab(Symbol::Currently) && tour.send(Tapped{}, isOwnChannel);
         },
         Stops::WithSources},
    Stop{"own-show", [](PictureTour& tour) { return tour.send(Tapped{}, isShow); }, Stops::WithSources},
    Stop{"playlist", [](PictureTour& tour) { return tour.openAdding() && tour.enterPlaylist(); },
         Stops::WithSources},
    Stop{"matches", [](PictureTour& tour) { return tour.send(Tapped{}, isReview); }, Stops::WithSources},
    Stop{"player",
         [](PictureTour& tour) {
             return tour.selectTab(Symbol::Currently) && tour.send(AccessoryTapped{}, hasStream);
         },
         Stops::Perhaps},
};

} // namespace

PictureTour::PictureTour(TabBarController& tabs, GuideWindow& window, Plan plan,
                         std::function<void(bool complete)> done)
    : m_tabs(tabs)
    , m_window(window)
    , m_plan(std::move(plan))
    , m_done(std::move(done)) {}

void PictureTour::start() {
    m_timer.callOnTimeout([this] { poll(); });
    open();
}

bool PictureTour::selectTab(Symbol symbol) {
    const auto& tabs = m_tabs.tabs();
    const auto tab = std::ranges::find(tabs, symbol, [](const auto& each) { return each.item.symbol; });
    if (tab == tabs.end() || !tab->item.enabled) {
        return false;
    }
    m_tabs.selectedNavigationController().dismiss();
    tab->navigationController->popToRoot();
    m_tabs.setSelectedIndex(static_cast<int>(tab - tabs.begin()));
    return true;
}

bool PictureTour::back() {
    NavigationController& stack = m_tabs.selectedNavigationController();
    stack.presentedStack() ? stack.dismiss() : stack.pop();
    return true;
}

bool PictureTour::send(const RowEvent& event, const std::function<bool(const Row&)>& matches) {
    TableViewController* screen = table();
    for (int row = 0; screen && row < screen->table().rowCount(); ++row) {
        if (matches(screen->table().rowAt(row))) {
            screen->sendRowEvent(screen->table().rowAt(row).id, event);
            return true;
        }
    }
    return false;
}

bool PictureTour::addFavourites() {
    TableViewController* screen = table();
    for (int row = 0; screen && row < screen->table().rowCount(); row += 2) {
        // The last action on a show that is no favourite yet.
        const auto actions = screen->rowActions(screen->table().rowAt(row).id);
        if (!actions.empty()) {
            actions.back().action();
        }
    }
    return screen;
}

bool PictureTour::pressAction(ActionSymbol symbol) {
    TableViewController* screen = table();
    for (int row = 0; screen && row < screen->table().rowCount(); ++row) {
        const Row& each = screen->table().rowAt(row);
        const auto* actions = std::get_if<ActionsRow>(&each.content);
        if (!actions) {
            continue;
        }
        const auto button = std::ranges::find(actions->buttons, symbol, &ActionButton::symbol);
        if (button != actions->buttons.end()) {
            screen->sendRowEvent(each.id, Chosen{static_cast<int>(button - actions->buttons.begin())});
            return true;
        }
    }
    return false;
}

bool PictureTour::hasTab(Symbol symbol) const {
    return std::ranges::any_of(m_tabs.tabs(),
                               [symbol](const auto& each) { return each.item.symbol == symbol; });
}

bool PictureTour::search(const QString& text) {
    if (!top().searchField()) {
        return false;
    }
    top().editSearchText(text);
    return true;
}

bool PictureTour::pressButton(const QString& title) {
    const auto press = [&title](const std::vector<BarButton>& buttons) {
        return std::ranges::find(buttons, title, &BarButton::title) - buttons.begin();
    };
    if (const auto right = static_cast<std::size_t>(press(top().rightBarButtons()));
        right < top().rightBarButtons().size()) {
        top().pressRightBarButton(right);
        return true;
    }
    if (const auto left = static_cast<std::size_t>(press(top().leftBarButtons()));
        left < top().leftBarButtons().size()) {
        top().pressLeftBarButton(left);
        return true;
    }
    return false;
}

bool PictureTour::openAdding() {
    return selectTab(Symbol::SelectedChannels) && pressButton(Localized::tr("My sources")) &&
           pressButton(Localized::tr("Add a source"));
}

bool PictureTour::enter(const QString& address) {
    return send(TextEdited{address, true, true}, [](const Row& row) { return row.kind() == RowKind::Input; });
}

bool PictureTour::enterSource() {
    return enter(m_plan.source);
}

bool PictureTour::enterPlaylist() {
    return enter(m_plan.playlist);
}

bool PictureTour::takesSources() const {
    const auto tab = std::ranges::find(m_tabs.tabs(), Symbol::SelectedChannels,
                                       [](const auto& each) { return each.item.symbol; });
    return !m_plan.source.isEmpty() && tab != m_tabs.tabs().end() &&
           std::ranges::any_of(tab->navigationController->viewControllers().front()->rightBarButtons(),
                               [](const BarButton& button) { return button.kind == BarButton::Kind::List; });
}

bool PictureTour::isLeftOut() const {
    const Stop& stop = kStops[m_stop];
    if (stop.where == Stops::WithSources && !(m_plan.mayChange && takesSources())) {
        return true;
    }
    return !hasTab(stop.tab) || (stop.where == Stops::WithChanges && !m_plan.mayChange);
}

void PictureTour::leaveCover() {
    if (auto* player = covering<PlayerContent>(ContentKind::Player)) {
        player->leave();
    } else if (auto* pictures = covering<PicturePagesContent>(ContentKind::PicturePages)) {
        pictures->leave();
    }
}

void PictureTour::closeAlert() {
    if (const Alert* alert = m_tabs.presentedAlert()) {
        const auto cancel =
            std::ranges::find(alert->actions, AlertAction::Style::Cancel, &AlertAction::style);
        m_tabs.answerAlert(
            cancel == alert->actions.end() ? 0 : static_cast<std::size_t>(cancel - alert->actions.begin()));
    }
}

void PictureTour::open() {
    for (; m_stop < kStops.size(); ++m_stop) {
        if (isLeftOut()) {
            continue;
        }
        // What covers the screen belongs to the picture before.
        while (m_tabs.presentedNotice()) {
            m_tabs.dismissNotice();
        }
        closeAlert();
        leaveCover();
        const Stop& stop = kStops[m_stop];
        if (stop.open(*this)) {
            m_polls = 0;
            m_timer.start(kPollInterval);
            return;
        }
        if (stop.where != Stops::Perhaps || m_plan.mayChange) {
            qWarning("The screen for the picture %s did not open", stop.name);
            m_complete = false;
        }
    }
    m_done(m_complete);
}

void PictureTour::poll() {
    if (!loaded() && ++m_polls < (m_stop == 0 ? kMaxPollsAtStart : kMaxPolls)) {
        return;
    }
    m_timer.stop();
    later(kSettle, &PictureTour::draw);
}

void PictureTour::draw() {
    const QString name = QString::fromLatin1(kStops[m_stop].name);
    for (const auto& [scheme, word] :
         {std::pair(ColorScheme::Light, u"light"_s), std::pair(ColorScheme::Dark, u"dark"_s)}) {
        if (m_plan.appearance.value_or(scheme) != scheme) {
            continue;
        }
        m_window.setColorScheme(scheme);
        m_complete =
            m_window.savePicture(u"%1/%2-%3-%4.png"_s.arg(m_plan.folder, m_plan.prefix, name, word)) &&
            m_complete;
    }
    ++m_stop;
    open();
}

void PictureTour::later(int milliseconds, void (PictureTour::*next)()) {
    QTimer::singleShot(milliseconds, &m_timer, [this, next] { (this->*next)(); });
}

ViewController& PictureTour::top() const {
    const NavigationController& stack = m_tabs.selectedNavigationController();
    return *(stack.presentedStack() ? stack.presentedStack()->topViewController()
                                    : stack.topViewController());
}

template <class Kind>
Kind* PictureTour::covering(ContentKind kind) const {
    const std::shared_ptr<ViewController>& cover = m_tabs.cover();
    return cover && cover->content().kind() == kind ? &static_cast<Kind&>(cover->content()) : nullptr;
}

TableViewController* PictureTour::table() const {
    return dynamic_cast<TableViewController*>(&top());
}

bool PictureTour::loaded() const {
    if (const auto* player = covering<PlayerContent>(ContentKind::Player)) {
        return !player->state().waiting;
    }
    if (const auto* pictures = covering<PicturePagesContent>(ContentKind::PicturePages)) {
        return !pictures->picture(pictures->currentPage()).isNull();
    }
    const TableViewController* screen = table();
    if (top().progress() || top().refreshing()) {
        return false;
    }
    if (screen && std::ranges::any_of(screen->table().sections(), [](const Section& section) {
            return std::ranges::any_of(section.rows,
                                       [](const Row& row) { return row.kind() == RowKind::Progress; });
        })) {
        return false;
    }
    // On the first screen a section without shows is still loading.
    return !screen || m_stop > 0 ||
           (screen->table().rowCount() > 0 &&
            std::ranges::none_of(screen->table().sections(),
                                 [](const Section& section) { return section.rows.size() < 2; }));
}

} // namespace guide
