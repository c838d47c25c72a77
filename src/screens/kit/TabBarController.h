#pragma once

#include "platform/queues/DispatchQueue.h"
#include "screens/kit/Alert.h"
#include "screens/kit/FileChooser.h"
#include "screens/kit/NavigationController.h"
#include "screens/kit/Notice.h"
#include "screens/kit/Symbol.h"

#include <QString>

#include <chrono>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace guide {

struct TabBarItem {
    QString title;
    Symbol symbol = Symbol::Currently;
    bool enabled = true;
    /// Empty for none.
    QString badgeValue = {};
    /// Replaces the title where tabs are narrow; empty to use the title.
    QString shortTitle = {};
};

class TabBarObserver {
  public:
    virtual ~TabBarObserver() = default;
    /// A tab was enabled or disabled, or its badge changed.
    virtual void tabBarItemChanged(int index) = 0;
    virtual void selectedTabChanged() = 0;
    /// presentedAlert() changed.
    virtual void alertChanged() = 0;
    /// presentedNotice() changed.
    virtual void noticeChanged() = 0;
    /// presentedFileChooser() changed.
    virtual void fileChooserChanged() = 0;
    /// cover() changed. The screen that it was lives until the call returns.
    virtual void coverChanged() = 0;
};

/// The root of the screens: tabs, each with a stack of screens, and the alerts and notices over them. Main
/// queue.
class TabBarController {
  public:
    struct Tab {
        TabBarItem item;
        std::unique_ptr<NavigationController> navigationController;
    };

    static constexpr std::chrono::seconds kNoticeTime{8};

    TabBarController(UserInterfaceIdiom idiom, DispatchQueue& mainQueue)
        : m_idiom(idiom)
        , m_mainQueue(mainQueue) {}
    TabBarController(const TabBarController&) = delete;
    TabBarController& operator=(const TabBarController&) = delete;

    /// All tabs must be added before the window is shown.
    void addTab(TabBarItem item, std::shared_ptr<ViewController> root);
    const std::vector<Tab>& tabs() const { return m_tabs; }

    void setObserver(TabBarObserver* observer) { m_observer = observer; }

    int selectedIndex() const { return m_selectedIndex; }
    NavigationController& selectedNavigationController() const;
    /// Also selects a tab that is disabled; an index past the tabs is ignored.
    void setSelectedIndex(int index);
    /// Handles a tap on a tab: ignored when the tab is disabled; pops the stack to its root when the tab is
    /// already selected.
    void tapTab(int index);

    void setTabEnabled(int index, bool enabled);
    /// Empty for no badge.
    void setBadgeValue(int index, const QString& badgeValue);

    void enableTabs();
    /// Selects the last tab and disables the others. Used while no channel is selected.
    void disableTabs();

    /// To be called when the window opens: the selected tab's screen loads and appears.
    void makeVisible();

    /// Shows the screen over the whole window, in place of the one that does so already. The screens of the
    /// tabs are not visible meanwhile.
    void presentCover(std::shared_ptr<ViewController> viewController);
    void dismissCover();
    /// Null when there is none.
    const std::shared_ptr<ViewController>& cover() const { return m_cover; }

    /// Shows the alert after those that are already waiting.
    void presentAlert(Alert alert);
    /// Null when there is none.
    const Alert* presentedAlert() const;
    /// Closes the alert and runs the action with that index.
    void answerAlert(std::size_t action);

    /// Opens the file chooser in place of the one that is open.
    void presentFileChooser(FileChooser chooser);
    /// Null when there is none.
    const FileChooser* presentedFileChooser() const { return m_fileChooser ? &*m_fileChooser : nullptr; }
    /// Closes the file chooser; with a path, reports it as chosen.
    void closeFileChooser(const QString& path = {});

    /// Shows the notice for kNoticeTime, after those that are already waiting, or in place of the one of its
    /// topic.
    void presentNotice(Notice notice);
    /// Closes the notice of the topic, or takes it out of the waiting ones.
    void withdrawNotice(const QString& topic);
    /// Null when there is none.
    const Notice* presentedNotice() const;
    /// Closes the notice and runs its action.
    void pressNoticeAction();
    void dismissNotice();

  private:
    std::deque<Notice>::iterator noticeOfTopic(const QString& topic);
    void startNotice();
    void replaceCover(std::shared_ptr<ViewController> viewController);

    const UserInterfaceIdiom m_idiom;
    DispatchQueue& m_mainQueue;
    std::vector<Tab> m_tabs;
    int m_selectedIndex = 0;
    bool m_visible = false;
    std::shared_ptr<ViewController> m_cover;
    std::deque<Alert> m_alerts;
    std::optional<FileChooser> m_fileChooser;
    std::deque<Notice> m_notices;
    /// Expires with the presented notice, so that its timer does not close a later one.
    std::shared_ptr<const bool> m_noticeShown;
    TabBarObserver* m_observer = nullptr;
};

} // namespace guide
