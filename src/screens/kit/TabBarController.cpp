#include "screens/kit/TabBarController.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace guide {

void TabBarController::addTab(TabBarItem item, std::shared_ptr<ViewController> root) {
    m_tabs.push_back({std::move(item), std::make_unique<NavigationController>(std::move(root), m_idiom)});
}

NavigationController& TabBarController::selectedNavigationController() const {
    return *m_tabs[static_cast<std::size_t>(m_selectedIndex)].navigationController;
}

void TabBarController::setSelectedIndex(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= m_tabs.size() || index == m_selectedIndex) {
        return;
    }
    NavigationController& left = selectedNavigationController();
    m_selectedIndex = index;
    if (m_observer) {
        m_observer->selectedTabChanged();
    }
    if (m_visible && !m_cover) {
        left.setVisible(false);
        selectedNavigationController().setVisible(true);
    }
}

void TabBarController::tapTab(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= m_tabs.size() ||
        !m_tabs[static_cast<std::size_t>(index)].item.enabled) {
        return;
    }
    if (index == m_selectedIndex) {
        selectedNavigationController().popToRoot();
    } else {
        setSelectedIndex(index);
    }
}

void TabBarController::setTabEnabled(int index, bool enabled) {
    if (index < 0 || static_cast<std::size_t>(index) >= m_tabs.size()) {
        return;
    }
    bool& now = m_tabs[static_cast<std::size_t>(index)].item.enabled;
    if (now != enabled) {
        now = enabled;
        if (m_observer) {
            m_observer->tabBarItemChanged(index);
        }
    }
}

void TabBarController::setBadgeValue(int index, const QString& badgeValue) {
    if (index < 0 || static_cast<std::size_t>(index) >= m_tabs.size()) {
        return;
    }
    QString& now = m_tabs[static_cast<std::size_t>(index)].item.badgeValue;
    if (now != badgeValue) {
        now = badgeValue;
        if (m_observer) {
            m_observer->tabBarItemChanged(index);
        }
    }
}

void TabBarController::enableTabs() {
    for (int index = 0; index < static_cast<int>(m_tabs.size()); ++index) {
        setTabEnabled(index, true);
    }
}

void TabBarController::disableTabs() {
    const int last = static_cast<int>(m_tabs.size()) - 1;
    setSelectedIndex(last);
    for (int index = 0; index < last; ++index) {
        setTabEnabled(index, false);
    }
}

void TabBarController::makeVisible() {
    if (!m_visible && !m_tabs.empty()) {
        m_visible = true;
        if (m_cover) {
            m_cover->appear();
        } else {
            selectedNavigationController().setVisible(true);
        }
    }
}

void TabBarController::presentCover(std::shared_ptr<ViewController> viewController) {
    if (viewController != m_cover) {
        replaceCover(std::move(viewController));
    }
}

void TabBarController::dismissCover() {
    if (m_cover) {
        replaceCover(nullptr);
    }
}

void TabBarController::replaceCover(std::shared_ptr<ViewController> viewController) {
    const std::shared_ptr<ViewController> gone = std::exchange(m_cover, std::move(viewController));
    // A copy, because a screen that appears may present another one.
    const std::shared_ptr<ViewController> shown = m_cover;
    if (m_visible && shown) {
        shown->appear();
    }
    if (m_observer) {
        m_observer->coverChanged();
    }
    if (!m_visible) {
        return;
    }
    if (gone) {
        gone->disappear();
    }
    selectedNavigationController().setVisible(!m_cover);
}

void TabBarController::presentAlert(Alert alert) {
    m_alerts.push_back(std::move(alert));
    if (m_alerts.size() == 1 && m_observer) {
        m_observer->alertChanged();
    }
}

const Alert* TabBarController::presentedAlert() const {
    return m_alerts.empty() ? nullptr : &m_alerts.front();
}

void TabBarController::answerAlert(std::size_t action) {
    if (m_alerts.empty() || action >= m_alerts.front().actions.size()) {
        return;
    }
    const std::function<void()> chosen = std::move(m_alerts.front().actions[action].action);
    m_alerts.pop_front();
    if (m_observer) {
        m_observer->alertChanged();
    }
    if (chosen) {
        chosen();
    }
}

void TabBarController::presentFileChooser(FileChooser chooser) {
    m_fileChooser = std::move(chooser);
    if (m_observer) {
        m_observer->fileChooserChanged();
    }
}

void TabBarController::closeFileChooser(const QString& path) {
    if (!m_fileChooser) {
        return;
    }
    const std::function<void(const QString&)> chosen = std::move(m_fileChooser->chosen);
    m_fileChooser.reset();
    if (m_observer) {
        m_observer->fileChooserChanged();
    }
    if (chosen && !path.isEmpty()) {
        chosen(path);
    }
}

void TabBarController::presentNotice(Notice notice) {
    auto place = noticeOfTopic(notice.topic);
    if (place == m_notices.end()) {
        place = m_notices.insert(place, std::move(notice));
    } else {
        *place = std::move(notice);
    }
    if (place == m_notices.begin()) {
        startNotice();
    }
}

void TabBarController::withdrawNotice(const QString& topic) {
    const auto place = noticeOfTopic(topic);
    if (place == m_notices.end()) {
        return;
    }
    if (place == m_notices.begin()) {
        dismissNotice();
    } else {
        m_notices.erase(place);
    }
}

std::deque<Notice>::iterator TabBarController::noticeOfTopic(const QString& topic) {
    return std::find_if(m_notices.begin(), m_notices.end(),
                        [&topic](const Notice& notice) { return !topic.isEmpty() && notice.topic == topic; });
}

const Notice* TabBarController::presentedNotice() const {
    return m_notices.empty() ? nullptr : &m_notices.front();
}

void TabBarController::pressNoticeAction() {
    if (!m_notices.empty()) {
        const std::function<void()> action = std::move(m_notices.front().action);
        dismissNotice();
        if (action) {
            action();
        }
    }
}

void TabBarController::dismissNotice() {
    if (!m_notices.empty()) {
        m_notices.pop_front();
        startNotice();
    }
}

void TabBarController::startNotice() {
    m_noticeShown.reset();
    if (!m_notices.empty()) {
        m_noticeShown = std::make_shared<const bool>(true);
        m_mainQueue.asyncAfter(kNoticeTime, [this, shown = std::weak_ptr(m_noticeShown)] {
            if (!shown.expired()) {
                dismissNotice();
            }
        });
    }
    if (m_observer) {
        m_observer->noticeChanged();
    }
}

} // namespace guide
