#include "screens/shell/GuideTabs.h"

#include "screens/Localized.h"
#include "screens/categories/CategoriesViewController.h"
#include "screens/channels/EditChannelListViewController.h"
#include "screens/compound/CompoundListingsViewController.h"
#include "screens/root/RootViewController.h"
#include "screens/search/SearchViewController.h"

#include <utility>

namespace guide {

std::unique_ptr<TabBarController> makeGuideTabs(const std::shared_ptr<const ScreenEnvironment>& environment) {
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
    tabs->addTab(
        {Localized::tr("Selected Channels"), Symbol::SelectedChannels, true, {}, Localized::tr("Channels")},
        std::make_shared<EditChannelListViewController>(environment, *tabs));
    return tabs;
}

int currentlyTabIndex(UserInterfaceIdiom idiom) {
    return idiom == UserInterfaceIdiom::Tablet ? 1 : 0;
}

int scheduleTabIndex(UserInterfaceIdiom idiom) {
    return idiom == UserInterfaceIdiom::Tablet ? 4 : 3;
}

} // namespace guide
