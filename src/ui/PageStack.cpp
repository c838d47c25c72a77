#include "ui/PageStack.h"

#include "screens/kit/NavigationController.h"

namespace guide {

PageStack::PageStack(NavigationController& navigationController, Symbol symbol, Theme& theme, QObject* parent)
    : QObject(parent)
    , m_navigationController(navigationController)
    , m_symbol(symbol)
    , m_theme(theme)
    , m_root(new Page(navigationController.viewControllers().front(), nullptr, symbol, theme, this)) {
    m_navigationController.setObserver(this);
}

PageStack::~PageStack() {
    m_navigationController.setObserver(nullptr);
}

void PageStack::pushed() {
    const auto& stack = m_navigationController.viewControllers();
    Q_EMIT pagePushed(new Page(stack.back(), stack[stack.size() - 2].get(), m_symbol, m_theme, this));
}

} // namespace guide
