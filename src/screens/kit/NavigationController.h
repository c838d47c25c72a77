#pragma once

#include "platform/Device.h"
#include "screens/kit/Presentation.h"
#include "screens/kit/ViewController.h"

#include <memory>
#include <vector>

namespace guide {

class NavigationObserver {
  public:
    virtual ~NavigationObserver() = default;
    /// A screen was put on top of the stack.
    virtual void pushed() = 0;
    /// `count` screens were taken from the top.
    virtual void popped(int count) = 0;
    /// A popover or a sheet was opened over the stack: presentedStack() holds it.
    virtual void presented(Presentation presentation, const Anchor& anchor) = 0;
    /// The popover or sheet is closed: presentedStack() is null. The stack that it showed lives until the
    /// call returns.
    virtual void dismissed() = 0;
};

/// A stack of screens, never empty, of which the top one is visible, and on a wide window also the one below
/// it. Screens appear when they become visible and disappear when they no longer are. It can present a second
/// stack in a popover or a sheet, whose screens push within it. Main queue.
class NavigationController {
  public:
    NavigationController(std::shared_ptr<ViewController> root, UserInterfaceIdiom idiom);
    NavigationController(const NavigationController&) = delete;
    NavigationController& operator=(const NavigationController&) = delete;
    ~NavigationController();

    const std::vector<std::shared_ptr<ViewController>>& viewControllers() const { return m_stack; }
    const std::shared_ptr<ViewController>& topViewController() const { return m_stack.back(); }
    /// Null when nothing is presented.
    NavigationController* presentedStack() const { return m_presented.get(); }

    /// One observer at a time. It must outlive the controller or be unregistered with nullptr.
    void setObserver(NavigationObserver* observer) { m_observer = observer; }

    void show(std::shared_ptr<ViewController> viewController, Presentation presentation,
              const Anchor& anchor = {});
    void push(std::shared_ptr<ViewController> viewController);
    /// Opens a screen from another one: screens above `opener` are popped first. Does nothing when `opener`
    /// is no longer visible.
    void pushFrom(const ViewController& opener, std::shared_ptr<ViewController> viewController);
    /// Does nothing on the root.
    void pop();
    void popToRoot();
    /// Closes what this stack presents; when it presents nothing and is itself presented, closes this stack,
    /// which destroys it.
    void dismiss();

    /// What is presented becomes visible and invisible with the stack.
    void setVisible(bool visible);
    /// Whether the window shows the screen below the top one beside it.
    void setSideBySide(bool sideBySide);
    /// Whether it is the top screen, or the one beside it.
    bool shows(const ViewController& viewController) const;

  private:
    using Screens = std::vector<std::shared_ptr<ViewController>>;

    /// The screens that are visible while the stack is, from the lower one up.
    Screens topScreens() const;
    Screens visibleScreens() const;
    /// Called after a change, with the screens that were visible before it.
    void letAppear(const Screens& before);
    void letDisappear(const Screens& before);

    void put(std::shared_ptr<ViewController> viewController, const Screens& before);
    /// Keeps `count` screens.
    void take(std::size_t count);
    void popTo(std::size_t count);
    void dismissPresented();

    std::vector<std::shared_ptr<ViewController>> m_stack;
    const UserInterfaceIdiom m_idiom;
    bool m_visible = false;
    bool m_sideBySide = false;
    std::unique_ptr<NavigationController> m_presented;
    /// The stack that presents this one.
    NavigationController* m_presenter = nullptr;
    NavigationObserver* m_observer = nullptr;
};

} // namespace guide
