#pragma once

#include "screens/kit/ViewController.h"

#include <memory>
#include <vector>

namespace guide {

class NavigationObserver {
  public:
    virtual ~NavigationObserver() = default;
    /// A screen was put on top of the stack.
    virtual void pushed() = 0;
    /// So many screens were taken from the top.
    virtual void popped(int count) = 0;
};

/// A stack of screens, of which the top one shows. There is always one. Main queue.
class NavigationController {
  public:
    explicit NavigationController(std::shared_ptr<ViewController> root);
    NavigationController(const NavigationController&) = delete;
    NavigationController& operator=(const NavigationController&) = delete;
    ~NavigationController();

    const std::vector<std::shared_ptr<ViewController>>& viewControllers() const { return m_stack; }
    const std::shared_ptr<ViewController>& topViewController() const { return m_stack.back(); }

    void setObserver(NavigationObserver* observer) { m_observer = observer; }

    void push(std::shared_ptr<ViewController> viewController);
    /// Does nothing on the root.
    void pop();
    void popToRoot();

    /// Whether the stack is on show: the top screen appears and disappears with it.
    void setVisible(bool visible);

  private:
    void popTo(std::size_t count);

    std::vector<std::shared_ptr<ViewController>> m_stack;
    bool m_visible = false;
    NavigationObserver* m_observer = nullptr;
};

} // namespace guide
