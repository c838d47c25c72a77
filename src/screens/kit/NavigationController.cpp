#include "screens/kit/NavigationController.h"

#include <algorithm>
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
    const Screens before = visibleScreens();
    put(std::move(viewController), before);
    letDisappear(before);
}

void NavigationController::pushFrom(const ViewController& opener,
                                    std::shared_ptr<ViewController> viewController) {
    if (!shows(opener)) {
        return;
    }
    dismissPresented();
    // As one change, so that a screen that is visible only between the two steps does not appear.
    const Screens before = visibleScreens();
    if (topViewController().get() != &opener) {
        take(m_stack.size() - 1);
        if (m_observer) {
            m_observer->popped(1);
        }
    }
    put(std::move(viewController), before);
    letDisappear(before);
}

void NavigationController::put(std::shared_ptr<ViewController> viewController, const Screens& before) {
    viewController->m_navigationController = this;
    m_stack.push_back(std::move(viewController));
    letAppear(before);
    if (m_observer) {
        m_observer->pushed();
    }
}

void NavigationController::take(std::size_t count) {
    for (std::size_t index = count; index < m_stack.size(); ++index) {
        m_stack[index]->m_navigationController = nullptr;
    }
    m_stack.resize(count);
}

bool NavigationController::shows(const ViewController& viewController) const {
    return std::ranges::any_of(
        topScreens(), [&viewController](const auto& screen) { return screen.get() == &viewController; });
}

// ---- appearing and disappearing

NavigationController::Screens NavigationController::topScreens() const {
    const std::ptrdiff_t count = m_sideBySide && m_stack.size() > 1 ? 2 : 1;
    return {m_stack.end() - count, m_stack.end()};
}

NavigationController::Screens NavigationController::visibleScreens() const {
    return m_visible ? topScreens() : Screens();
}

void NavigationController::letAppear(const Screens& before) {
    for (const auto& screen : visibleScreens()) {
        if (std::ranges::find(before, screen) == before.end()) {
            screen->appear();
        }
    }
}

void NavigationController::letDisappear(const Screens& before) {
    const Screens now = visibleScreens();
    for (const auto& screen : before) {
        if (std::ranges::find(now, screen) == now.end()) {
            screen->disappear();
        }
    }
}

void NavigationController::setSideBySide(bool sideBySide) {
    const Screens before = visibleScreens();
    m_sideBySide = sideBySide;
    letAppear(before);
    letDisappear(before);
}

void NavigationController::setVisible(bool visible) {
    if (visible == m_visible) {
        return;
    }
    const Screens before = visibleScreens();
    m_visible = visible;
    letAppear(before);
    letDisappear(before);
    if (m_presented) {
        m_presented->setVisible(visible);
    }
}

// ---- closing

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
    const Screens before = visibleScreens();
    const std::size_t gone = m_stack.size() - count;
    take(count);
    letAppear(before);
    if (m_observer) {
        m_observer->popped(static_cast<int>(gone));
    }
    letDisappear(before);
    if (std::ranges::find(before, topViewController()) != before.end()) {
        topViewController()->screenBesideClosed();
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

} // namespace guide
