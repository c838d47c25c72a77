#include "screens/kit/NavigationController.h"

#include <utility>

namespace guide {

NavigationController::NavigationController(std::shared_ptr<ViewController> root) {
    root->m_navigationController = this;
    m_stack.push_back(std::move(root));
}

NavigationController::~NavigationController() {
    for (const auto& viewController : m_stack) {
        viewController->m_navigationController = nullptr;
    }
}

void NavigationController::push(std::shared_ptr<ViewController> viewController) {
    const std::shared_ptr<ViewController> covered = topViewController();
    viewController->m_navigationController = this;
    m_stack.push_back(std::move(viewController));
    if (m_visible) {
        topViewController()->appear();
    }
    if (m_observer) {
        m_observer->pushed();
    }
    if (m_visible) {
        covered->disappear();
    }
}

void NavigationController::pop() {
    popTo(m_stack.size() - 1);
}

void NavigationController::popToRoot() {
    popTo(1);
}

void NavigationController::popTo(std::size_t count) {
    if (count < 1 || count >= m_stack.size()) {
        return;
    }
    const std::size_t gone = m_stack.size() - count;
    const std::shared_ptr<ViewController> top = topViewController();
    for (std::size_t index = count; index < m_stack.size(); ++index) {
        m_stack[index]->m_navigationController = nullptr;
    }
    m_stack.resize(count);
    if (m_visible) {
        topViewController()->appear();
    }
    if (m_observer) {
        m_observer->popped(static_cast<int>(gone));
    }
    if (m_visible) {
        top->disappear();
    }
}

void NavigationController::setVisible(bool visible) {
    if (visible == m_visible) {
        return;
    }
    m_visible = visible;
    const std::shared_ptr<ViewController> top = topViewController();
    if (visible) {
        top->appear();
    } else {
        top->disappear();
    }
}

} // namespace guide
