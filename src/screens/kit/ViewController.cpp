#include "screens/kit/ViewController.h"

#include <functional>
#include <utility>

namespace guide {

void ViewController::tapRow(IndexPath path) {
    const Row* row = m_table.row(path);
    if (row && row->selectable) {
        m_table.selectRow(path);
        didSelectRow(path);
    } else if (row && row->accessory == Accessory::Play) {
        didTapAccessory(path);
    }
}

void ViewController::tapAccessory(IndexPath path) {
    if (m_table.row(path)) {
        didTapAccessory(path);
    }
}

std::vector<SwipeAction> ViewController::swipeActions(IndexPath path) {
    return m_table.row(path) ? swipeActionsForRow(path) : std::vector<SwipeAction>();
}

void ViewController::pressBarButton(std::size_t index) {
    if (index < m_rightBarButtons.size()) {
        // A copy: the action may replace the buttons.
        if (const std::function<void()> action = m_rightBarButtons[index].action) {
            action();
        }
    }
}

void ViewController::pullToRefresh() {
    if (m_hasRefreshControl && !m_refreshing) {
        setRefreshing(true);
        didPullToRefresh();
    }
}

void ViewController::willDisplayRow(IndexPath path) {
    if (m_table.row(path)) {
        rowWillBeDisplayed(path);
    }
}

void ViewController::loadViewIfNeeded() {
    if (!m_viewLoaded) {
        m_viewLoaded = true;
        viewDidLoad();
    }
}

void ViewController::appear() {
    loadViewIfNeeded();
    viewWillAppear();
    viewDidAppear();
}

void ViewController::disappear() {
    viewDidDisappear();
}

void ViewController::setTitle(QString title) {
    if (title != m_title) {
        m_title = std::move(title);
        if (m_observer) {
            m_observer->titleChanged();
        }
    }
}

void ViewController::setRightBarButtons(std::vector<BarButton> buttons) {
    m_rightBarButtons = std::move(buttons);
    if (m_observer) {
        m_observer->barButtonsChanged();
    }
}

void ViewController::setRefreshing(bool refreshing) {
    if (refreshing != m_refreshing) {
        m_refreshing = refreshing;
        if (m_observer) {
            m_observer->refreshingChanged();
        }
    }
}

} // namespace guide
