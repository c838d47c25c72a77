#include "screens/kit/NavigationController.h"

#include <utility>

namespace guide {

NavigationController::NavigationController(std::shared_ptr<ViewController> root, UserInterfaceIdiom idiom)
    : m_idiom(idiom) {
    root->m_navigationController = this;
    m_stack.push_back(std::move(root));
}

NavigationController::~NavigationController() {
    for (const auto& viewController : m_stack) {
        viewController->m_navigationController = nullptr;
    }
}

void NavigationController::show(std::shared_ptr<ViewController> viewController, Presentation presentation,
                                const Anchor& anchor) {
    if (presentation == Presentation::Push ||
        (presentation == Presentation::Popover && m_idiom == UserInterfaceIdiom::Phone)) {
        push(std::move(viewController));
        return;
    }
    dismissPresented();
    m_presented = std::make_unique<NavigationController>(std::move(viewController), m_idiom);
    m_presented->m_presenter = this;
    m_presented->setVisible(m_visible);
    if (m_observer) {
        m_observer->presented(presentation, anchor);
    }
}

void NavigationController::push(std::shared_ptr<ViewController> viewController) {
    dismissPresented();
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

void NavigationController::pushFrom(const ViewController& opener,
                                    std::shared_ptr<ViewController> viewController) {
    if (!shows(opener)) {
        return;
    }
    if (topViewController().get() != &opener) {
        pop();
    }
    push(std::move(viewController));
}

bool NavigationController::shows(const ViewController& viewController) const {
    return topViewController().get() == &viewController ||
           (m_sideBySide && m_stack.size() > 1 && m_stack[m_stack.size() - 2].get() == &viewController);
}

void NavigationController::pop() {
    popTo(m_stack.size() - 1);
}

void NavigationController::popToRoot() {
    popTo(1);
}

void NavigationController::popTo(std::size_t count) {
    dismissPresented();
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

void NavigationController::dismiss() {
    if (m_presented) {
        dismissPresented();
    } else if (m_presenter) {
        m_presenter->dismissPresented();
    }
}

void NavigationController::dismissPresented() {
    if (const std::unique_ptr<NavigationController> gone = std::move(m_presented)) {
        if (m_observer) {
            m_observer->dismissed();
        }
        gone->dismissPresented();
        gone->setVisible(false);
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
    if (m_presented) {
        m_presented->setVisible(visible);
    }
}

} // namespace guide
