#include "screens/shell/GuideTabs.h"

#include "screens/Localized.h"
#include "screens/categories/CategoriesViewController.h"
#include "screens/compound/CompoundListingsViewController.h"
#include "screens/root/RootViewController.h"
#include "screens/search/SearchViewController.h"
#include "screens/shell/EmptyViewController.h"

#include <utility>

namespace guide {

namespace {

void addComingTab(TabBarController& tabs, const QString& title, Symbol symbol, const QString& message,
                  const QString& shortTitle = {}) {
    tabs.addTab(
        {title, symbol, true, {}, shortTitle},
        std::make_shared<EmptyViewController>(title, EmptyNote{Localized::tr("Nothing here yet"), message}));
}

} // namespace

std::unique_ptr<TabBarController> makeGuideTabs(std::shared_ptr<const ScreenEnvironment> environment) {
    const UserInterfaceIdiom idiom = environment->device.userInterfaceIdiom();
    auto tabs = std::make_unique<TabBarController>(idiom, environment->mainQueue);
    if (idiom == UserInterfaceIdiom::Tablet) {
        tabs->addTab({Localized::tr("All Shows"), Symbol::AllShows, true, {}},
                     std::make_shared<CompoundListingsViewController>(environment, CategoryListings{}));
    }
    tabs->addTab({Localized::tr("Currently"), Symbol::Currently, true, {}},
                 std::make_shared<RootViewController>(environment));
    tabs->addTab({Localized::tr("Categories"), Symbol::Categories},
                 std::make_shared<CategoriesViewController>(environment));
    tabs->addTab({Localized::tr("Search"), Symbol::Search},
                 std::make_shared<SearchViewController>(environment));
    tabs->addTab({Localized::tr("Schedule"), Symbol::Schedule, true, {}},
                 std::make_shared<CompoundListingsViewController>(environment, FavoriteListings{}));
    addComingTab(*tabs, Localized::tr("Selected Channels"), Symbol::SelectedChannels,
                 Localized::tr("Choosing channels here comes with a later version. Until then the guide "
                               "takes them from a file when it starts."),
                 Localized::tr("Channels"));
    return tabs;
}

int currentlyTabIndex(UserInterfaceIdiom idiom) {
    return idiom == UserInterfaceIdiom::Tablet ? 1 : 0;
}

int scheduleTabIndex(UserInterfaceIdiom idiom) {
    return idiom == UserInterfaceIdiom::Tablet ? 4 : 3;
}

} // namespace guide
