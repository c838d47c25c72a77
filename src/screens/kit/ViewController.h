#pragma once

#include "screens/kit/BarButton.h"
#include "screens/kit/Table.h"

#include <QString>

#include <memory>
#include <vector>

namespace guide {

class NavigationController;

/// Follows what stands around a screen's table.
class ViewControllerObserver {
  public:
    virtual ~ViewControllerObserver() = default;
    virtual void titleChanged() = 0;
    virtual void barButtonsChanged() = 0;
    /// Whether the screen is refreshing what it shows.
    virtual void refreshingChanged() = 0;
};

/// One screen: a title, bar buttons and a table, and what its events do. Main queue.
class ViewController : public std::enable_shared_from_this<ViewController> {
  public:
    ViewController() = default;
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;
    virtual ~ViewController() = default;

    const QString& title() const { return m_title; }
    const Table& table() const { return m_table; }
    Table& table() { return m_table; }
    /// From the trailing edge inwards.
    const std::vector<BarButton>& rightBarButtons() const { return m_rightBarButtons; }
    /// Whether a pull at the top refreshes.
    bool hasRefreshControl() const { return m_hasRefreshControl; }
    bool refreshing() const { return m_refreshing; }
    bool viewLoaded() const { return m_viewLoaded; }
    /// The stack that holds the screen; null when none does.
    NavigationController* navigationController() const { return m_navigationController; }

    void setObserver(ViewControllerObserver* observer) { m_observer = observer; }

    // ---- what the person does

    /// Selects the row and opens what is behind it. A row that cannot be selected answers as its play button
    /// does, where it has one.
    void tapRow(IndexPath path);
    void tapAccessory(IndexPath path);
    /// What a swipe from the row's trailing edge offers, from that edge inwards; empty for nothing.
    std::vector<SwipeAction> swipeActions(IndexPath path);
    void pressBarButton(std::size_t index);
    void pullToRefresh();
    /// The row has come into sight.
    void willDisplayRow(IndexPath path);

    // ---- what the controllers around it do

    void loadViewIfNeeded();
    void appear();
    void disappear();

  protected:
    /// Once, before the screen appears for the first time.
    virtual void viewDidLoad() {}
    virtual void viewWillAppear() {}
    virtual void viewDidAppear() {}
    virtual void viewDidDisappear() {}
    virtual void didSelectRow(IndexPath) {}
    virtual void didTapAccessory(IndexPath) {}
    virtual std::vector<SwipeAction> swipeActionsForRow(IndexPath) { return {}; }
    virtual void didPullToRefresh() {}
    virtual void rowWillBeDisplayed(IndexPath) {}

    void setTitle(QString title);
    void setRightBarButtons(std::vector<BarButton> buttons);
    void setHasRefreshControl(bool has) { m_hasRefreshControl = has; }
    void setRefreshing(bool refreshing);

    template <class Screen>
    std::weak_ptr<Screen> weakFromThis() {
        return std::static_pointer_cast<Screen>(shared_from_this());
    }

  private:
    friend class NavigationController;

    QString m_title;
    Table m_table;
    std::vector<BarButton> m_rightBarButtons;
    bool m_hasRefreshControl = false;
    bool m_refreshing = false;
    bool m_viewLoaded = false;
    NavigationController* m_navigationController = nullptr;
    ViewControllerObserver* m_observer = nullptr;
};

} // namespace guide
