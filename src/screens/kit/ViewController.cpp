#include "screens/kit/ViewController.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace guide {

namespace {

void press(const std::vector<BarButton>& buttons, std::size_t index) {
    if (index < buttons.size() && buttons[index].enabled) {
        // A copy, because the action may replace the buttons.
        if (const std::function<void()> action = buttons[index].action) {
            action();
        }
    }
}

} // namespace

void ViewController::pressLeftBarButton(std::size_t index) {
    press(m_leftBarButtons, index);
}

void ViewController::pressRightBarButton(std::size_t index) {
    press(m_rightBarButtons, index);
}

void ViewController::pullToRefresh() {
    if (m_hasRefreshControl && !m_refreshing) {
        setRefreshing(true);
        didPullToRefresh();
    }
}

void ViewController::editSearchText(const QString& text) {
    if (m_searchField && m_searchField->text != text) {
        m_searchField->text = text;
        if (m_observer) {
            m_observer->searchFieldChanged();
        }
        searchTextEdited(text);
    }
}

void ViewController::cancelSearch() {
    if (m_searchField && !m_searchField->text.isEmpty()) {
        m_searchField->text.clear();
        if (m_observer) {
            m_observer->searchFieldChanged();
        }
        searchTextEdited({});
    }
}

void ViewController::finishSearch() {
    if (m_searchField) {
        searchFinished();
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

void ViewController::setLeftBarButtons(std::vector<BarButton> buttons) {
    setBarButtons(m_leftBarButtons, std::move(buttons));
}

void ViewController::setRightBarButtons(std::vector<BarButton> buttons) {
    setBarButtons(m_rightBarButtons, std::move(buttons));
}

// A button that looks the same stays, and with it the keyboard's focus.
void ViewController::setBarButtons(std::vector<BarButton>& current, std::vector<BarButton> buttons) {
    const bool looksTheSame =
        std::ranges::equal(current, buttons, [](const BarButton& a, const BarButton& b) {
            return a.kind == b.kind && a.title == b.title && a.enabled == b.enabled;
        });
    current = std::move(buttons);
    if (m_observer && !looksTheSame) {
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

void ViewController::setProgress(std::optional<Progress> progress) {
    if (progress != m_progress) {
        m_progress = progress;
        if (m_observer) {
            m_observer->progressChanged();
        }
    }
}

void ViewController::setSearchField(std::optional<SearchField> searchField) {
    m_searchField = std::move(searchField);
    if (m_observer) {
        m_observer->searchFieldChanged();
    }
}

} // namespace guide
