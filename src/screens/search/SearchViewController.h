#pragma once

#include "screens/MinuteTick.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/search/RecentSearches.h"
#include "screens/search/SearchResults.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>
#include <vector>

namespace guide {

/// Searches the shows of the selected channels while the user types. Until a result arrives the one before it
/// stays; of a new result the first rows come at once and the rest when the user pauses. Without a text it
/// shows what was searched for lately.
class SearchViewController final : public ListingsScreen {
  public:
    explicit SearchViewController(std::shared_ptr<const ScreenEnvironment> environment);

    void applicationDidBecomeActive() override;
    void offerTopShows(const TopShows&) override { searchAgain(); }
    void reloadData() override { searchAgain(); }
    void recolor() override { searchAgain(); }
    void notificationsSynched() override { searchAgain(); }
    void selectionCleanedUp() override { searchAgain(); }

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void searchTextEdited(const QString& text) override;
    void searchFinished() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;

  private:
    void search(const QString& pattern);
    /// Makes the rows behind the first ones when no key has been pressed for a moment.
    void completeAfterTyping(const std::shared_ptr<const FirstResults>& first);
    void complete(const std::shared_ptr<const FirstResults>& first);
    /// For new lists: at once while visible, else when the screen appears.
    void searchAgain();
    void show(const SearchResults& results);
    void showRecentSearches();
    EmptyNote nothingFound(const QString& pattern);
    const ShowItem* shownShow(const RowId& id) const;
    int channelCount() const { return static_cast<int>(m_environment->channels.selected().size()); }
    QString text() const { return searchField()->text; }

    void open(const RowId& id);
    void setText(const QString& text);
    /// Counts the text as searched for.
    void remember();
    void forgetRecentSearches();
    void info();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    RecentSearches m_recentSearches;
    /// What is shown; empty while the field is, and until the first answer.
    std::vector<DaySection> m_days;
    /// The pattern of these shows.
    QString m_shownPattern;
    /// What was last remembered since the field was empty.
    QString m_remembered;
    bool m_visible = false;
    bool m_stale = false;
    LatestAnswer m_answer;
    MinuteTick m_minuteTick;
};

} // namespace guide
