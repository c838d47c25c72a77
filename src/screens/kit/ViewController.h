#pragma once

#include "screens/kit/BarButton.h"
#include "screens/kit/Content.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace guide {

class NavigationController;

/// The search field below a screen's title.
struct SearchField {
    QString placeholder;
    QString text = {};
    /// Whether it takes the keyboard when the user opens the screen's tab with a keyboard or a pointer.
    bool focusOnOpening = false;
};

/// The thin bar under a screen's title while work is in progress.
struct Progress {
    /// 0 to 1; empty while unknown.
    std::optional<double> fraction = {};

    friend bool operator==(const Progress&, const Progress&) = default;
};

/// Observes a screen, except for its content.
class ViewControllerObserver {
  public:
    virtual ~ViewControllerObserver() = default;
    virtual void titleChanged() = 0;
    virtual void barButtonsChanged() = 0;
    virtual void refreshingChanged() = 0;
    virtual void progressChanged() = 0;
    virtual void searchFieldChanged() = 0;
};

/// One screen: a title, bar buttons and a content. Main queue.
class ViewController : public std::enable_shared_from_this<ViewController> {
  public:
    ViewController() = default;
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;
    virtual ~ViewController() = default;

    virtual Content& content() = 0;

    const QString& title() const { return m_title; }
    /// From the leading edge inwards.
    const std::vector<BarButton>& leftBarButtons() const { return m_leftBarButtons; }
    /// From the trailing edge inwards.
    const std::vector<BarButton>& rightBarButtons() const { return m_rightBarButtons; }
    /// Whether pulling down at the top refreshes.
    bool hasRefreshControl() const { return m_hasRefreshControl; }
    bool refreshing() const { return m_refreshing; }
    const std::optional<Progress>& progress() const { return m_progress; }
    const std::optional<SearchField>& searchField() const { return m_searchField; }
    bool viewLoaded() const { return m_viewLoaded; }
    /// The stack that holds the screen; null when none does.
    NavigationController* navigationController() const { return m_navigationController; }

    /// One observer at a time. It must outlive the screen or be unregistered with nullptr.
    void setObserver(ViewControllerObserver* observer) { m_observer = observer; }

    // ---- the user's events

    void pressLeftBarButton(std::size_t index);
    void pressRightBarButton(std::size_t index);
    void pullToRefresh();
    void editSearchText(const QString& text);
    /// Empties the search field.
    void cancelSearch();
    /// Enter was pressed in the search field, or the field was left.
    void finishSearch();

    // ---- called by the containing controllers

    void loadViewIfNeeded();
    void appear();
    void disappear();
    /// The screen that was opened from this one, and shown beside it, was closed.
    virtual void screenBesideClosed() {}

  protected:
    /// Once, before the screen appears for the first time.
    virtual void viewDidLoad() {}
    virtual void viewWillAppear() {}
    virtual void viewDidAppear() {}
    virtual void viewDidDisappear() {}
    virtual void didPullToRefresh() {}
    virtual void searchTextEdited(const QString& /*text*/) {}
    virtual void searchFinished() {}

    void setTitle(QString title);
    void setLeftBarButtons(std::vector<BarButton> buttons);
    void setRightBarButtons(std::vector<BarButton> buttons);
    void setHasRefreshControl(bool has) { m_hasRefreshControl = has; }
    void setRefreshing(bool refreshing);
    void setProgress(std::optional<Progress> progress);
    void setSearchField(std::optional<SearchField> searchField);

    template <class Screen>
    std::weak_ptr<Screen> weakFromThis() {
        return std::static_pointer_cast<Screen>(shared_from_this());
    }

  private:
    friend class NavigationController;

    void setBarButtons(std::vector<BarButton>& current, std::vector<BarButton> buttons);

    QString m_title;
    std::vector<BarButton> m_leftBarButtons;
    std::vector<BarButton> m_rightBarButtons;
    std::optional<Progress> m_progress;
    std::optional<SearchField> m_searchField;
    bool m_hasRefreshControl = false;
    bool m_refreshing = false;
    bool m_viewLoaded = false;
    NavigationController* m_navigationController = nullptr;
    ViewControllerObserver* m_observer = nullptr;
};

} // namespace guide
