#pragma once

#include "screens/kit/LatestAnswer.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"
#include "text/categories/TVListingsCategory.h"

#include <memory>
#include <span>
#include <vector>

namespace guide {

/// The categories of shows as tiles: as the first screen of its stack the kinds of shows, otherwise the
/// genres of films.
class CategoriesViewController final : public ListingsScreen {
  public:
    explicit CategoriesViewController(std::shared_ptr<const ScreenEnvironment> environment)
        : m_environment(std::move(environment)) {}

    /// Whether the row of a category can be opened.
    static bool isEnabled(const Row& row);

    void applicationDidBecomeActive() override { countAgain(); }
    void offerTopShows(const TopShows&) override { countAgain(); }
    void reloadData() override { countAgain(); }
    void selectionCleanedUp() override { countAgain(); }

  protected:
    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    struct Category;

    bool isTopLevel() const;
    std::span<const Category> categories() const;
    /// One query for all tiles.
    void count();
    void countAgain();
    void reloadTable();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    /// Of the shows of today in each category; empty until the first answer.
    std::vector<int> m_counts;
    bool m_visible = false;
    LatestAnswer m_answer;
};

} // namespace guide
