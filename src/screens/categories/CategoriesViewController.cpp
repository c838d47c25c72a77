#include "screens/categories/CategoriesViewController.h"

#include "screens/CategoryTitle.h"
#include "screens/Localized.h"
#include "screens/compound/CompoundListingsViewController.h"
#include "screens/kit/NavigationController.h"

#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

struct CategoriesViewController::Category {
    TVListingsCategory selector;
    Symbol symbol;
    /// In degrees.
    int hue;
};

namespace {

RowId rowIdOf(TVListingsCategory selector) {
    return {u"categories"_s, QString::number(selector, 16)};
}

} // namespace

bool CategoriesViewController::isEnabled(const Row& row) {
    const auto* tile = std::get_if<TileRow>(&row.content);
    return tile && tile->enabled;
}

bool CategoriesViewController::isTopLevel() const {
    return navigationController() && navigationController()->viewControllers().front().get() == this;
}

std::span<const CategoriesViewController::Category> CategoriesViewController::categories() const {
    static constexpr std::array kTop{
        Category{TVListingsCategoryAllShows, Symbol::AllShows, 244},
        Category{TVListingsCategoryMostWatched, Symbol::MostWatched, 350},
        Category{TVListingsCategoryEveningShows, Symbol::Evening, 268},
        Category{TVListingsCategoryAllFilm, Symbol::Films, 8},
        Category{TVListingsCategorySeries, Symbol::Series, 205},
        Category{TVListingsCategoryDocumentaries, Symbol::Documentaries, 165},
        Category{TVListingsCategoryForChildren, Symbol::Children, 42},
        Category{TVListingsCategoryNews, Symbol::News, 220},
        Category{TVListingsCategoryEntertainment, Symbol::Entertainment, 312},
        Category{TVListingsCategoryMusic, Symbol::Music, 290},
        Category{TVListingsCategorySports, Symbol::Sports, 120},
    };
    // Together with the bit of films a genre would list every film.
    static constexpr std::array kFilms{
        Category{TVListingsCategoryAllFilm, Symbol::Films, 8},
        Category{TVListingsCategoryComedies, Symbol::Comedies, 46},
        Category{TVListingsCategoryAdventure, Symbol::Adventure, 95},
        Category{TVListingsCategoryCrime, Symbol::Crime, 215},
        Category{TVListingsCategoryWesterns, Symbol::Westerns, 28},
        Category{TVListingsCategoryDramas, Symbol::Dramas, 335},
        Category{TVListingsCategoryThrillers, Symbol::Thrillers, 0},
        Category{TVListingsCategorySF, Symbol::ScienceFiction, 190},
        Category{TVListingsCategoryFantasy, Symbol::Fantasy, 285},
        Category{TVListingsCategoryHorrors, Symbol::Horrors, 255},
    };
    if (!isTopLevel()) {
        return kFilms;
    }
    // A tablet has a tab with all shows.
    const bool tablet = m_environment->device.userInterfaceIdiom() == UserInterfaceIdiom::Tablet;
    return std::span<const Category>(kTop).subspan(tablet ? 1 : 0);
}

void CategoriesViewController::viewWillAppear() {
    setTitle(isTopLevel() ? Localized::tr("Categories") : categoryTitle(TVListingsCategoryAllFilm));
    table().deselectRow();
    reloadTable();
    count();
}

void CategoriesViewController::viewDidAppear() {
    m_visible = true;
}

void CategoriesViewController::viewDidDisappear() {
    m_visible = false;
    table().deselectRow();
}

void CategoriesViewController::countAgain() {
    if (m_visible) {
        count();
    }
}

void CategoriesViewController::count() {
    std::vector<TVListingsCategory> selectors;
    for (const Category& category : categories()) {
        selectors.push_back(category.selector);
    }
    m_environment->listings.showCountsOfToday(
        std::move(selectors), QueuePriority::Background,
        m_answer.expect(weak_from_this(), [this](const std::vector<int>& counts) {
            m_counts = counts;
            reloadTable();
        }));
}

void CategoriesViewController::reloadTable() {
    const ShowList popular = m_environment->popularShows.popularShows();
    const bool hasPopular = popular && !popular->empty();
    Section section{.id = u"categories"_s, .layout = SectionLayout::Tiles};
    const std::span<const Category> shown = categories();
    for (std::size_t place = 0; place < shown.size(); ++place) {
        const Category& category = shown[place];
        const bool allFilms = !isTopLevel() && category.selector == TVListingsCategoryAllFilm;
        TileRow tile{.title = allFilms ? Localized::tr("All") : categoryTitle(category.selector),
                     .symbol = category.symbol,
                     .hue = category.hue};
        if (category.selector == TVListingsCategoryMostWatched && !hasPopular) {
            tile.enabled = false;
            const bool isShared = m_environment->popularShows.isShared();
            tile.detail = isShared ? Localized::tr("No list yet") : Localized::tr("Off");
            section.footer =
                isShared
                    ? Localized::tr("Most Watched counts the alarms and favourites of everyone who shares a "
                                    "cloud store with you. No such list was received yet.")
                    : Localized::tr(
                          "Most Watched is off: it counts the alarms and favourites of everyone who "
                          "shares a database with you. To switch it on, choose a database in the "
                          "options, under “Your devices”.");
        } else if (place < m_counts.size()) {
            tile.detail = m_counts[place] == 0 ? Localized::tr("None today")
                                               : Localized::tr("%n show(s) today", nullptr, m_counts[place]);
        }
        const bool enabled = tile.enabled;
        section.rows.push_back(
            {.id = rowIdOf(category.selector), .content = std::move(tile), .selectable = enabled});
    }
    table().setSections({std::move(section)});
}

void CategoriesViewController::rowEvent(const RowId& id, const RowEvent& event) {
    const Row* row = table().find(id);
    if (!row || !isEnabled(*row) || !std::holds_alternative<Tapped>(event)) {
        return;
    }
    const auto selector = static_cast<TVListingsCategory>(id.name()->toUInt(nullptr, 16));
    if (isTopLevel() && selector == TVListingsCategoryAllFilm) {
        navigationController()->pushFrom(*this, std::make_shared<CategoriesViewController>(m_environment));
        return;
    }
    navigationController()->pushFrom(
        *this, std::make_shared<CompoundListingsViewController>(m_environment, CategoryListings{selector}));
}

} // namespace guide
