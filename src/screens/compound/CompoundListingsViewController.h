#pragma once

#include "screens/MinuteTick.h"
#include "screens/RecordedShows.h"
#include "screens/compound/CompoundRows.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"
#include "text/categories/TVListingsCategory.h"

#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace guide {

/// The shows of favourites.
struct FavoriteListings {};
/// A category, or one of the selectors "All Shows", "Evening Shows" and "Most Watched".
struct CategoryListings {
    TVListingsCategory category = TVListingsCategoryAllShows;
};
/// All broadcasts of one title.
struct TitleListings {
    QString title;
    /// Whether past broadcasts are looked up in the archive as well.
    bool lookForPastShows = false;
};
/// The shows with an alert.
struct AlertListings {};

using CompoundListings = std::variant<FavoriteListings, CategoryListings, TitleListings, AlertListings>;

/// Lists shows of several channels, a section for each day. Rows are made in the background.
class CompoundListingsViewController final : public ListingsScreen {
  public:
    CompoundListingsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                   CompoundListings listings);

    void applicationDidBecomeActive() override;
    /// Shows the screen as busy until the next answer, which the return to the foreground asks for.
    void applicationDidEnterBackground() override;
    void offerTopShows(const TopShows&) override { reloadData(); }
    /// At a high priority while the screen is visible. Does nothing before the screen has loaded.
    void reloadData() override;
    void recolor() override { reloadData(); }
    void favoritesUpdated() override { reloadData(); }
    void notificationsSynched() override;
    void selectionCleanedUp() override { reloadData(); }

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;

  private:
    template <class Listings>
    bool lists() const {
        return std::holds_alternative<Listings>(m_listings);
    }
    QString titleNow() const;
    void query(QueuePriority priority);
    void group(const ShowSpan& shows, QueuePriority priority);
    void setGroups(CompoundSections groups);
    void answered();
    void reloadTable(std::vector<Section> days);
    void minuteBegan();
    void updateBusy();
    void openShow(const ShowItem& show);
    const ShowItem* shownShow(const RowId& id) const;

    void lookForPastShows();
    std::optional<Section> pastShows() const;

    void updateBarButtons();
    void edit();
    void alerts();
    void journal();
    bool isRoot() const;
    void explainIfEmpty();
    EmptyNote emptyNote();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const CompoundListings m_listings;
    std::vector<DaySection> m_days;
    std::vector<RecordedShow> m_recordedShows;
    MinuteTick m_minuteTick;
    /// Of the query, and of the grouping that follows it.
    LatestAnswer m_latest;
    LatestAnswer m_archive;
    /// The priority of the query under way.
    std::optional<QueuePriority> m_asking;
    /// The listings changed while a query was under way.
    bool m_askAgain = false;
    bool m_archiveAsked = false;
    bool m_visible = false;
    bool m_busy = true;
    /// The screen has appeared and has not explained yet why it is empty.
    bool m_mustExplain = false;
};

} // namespace guide
