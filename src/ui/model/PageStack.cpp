#include "ui/model/PageStack.h"

#include "screens/kit/NavigationController.h"

#include <utility>

namespace guide {

PageStack::PageStack(NavigationController& navigationController, Symbol symbol, Theme& theme, QObject* parent)
    : QAbstractListModel(parent)
    , m_navigationController(&navigationController)
    , m_symbol(symbol)
    , m_theme(theme) {
    const ViewController* below = nullptr;
    for (const auto& viewController : navigationController.viewControllers()) {
        addPage(viewController, below);
        below = viewController.get();
    }
    m_navigationController->setObserver(this);
}

PageStack::~PageStack() {
    detach();
}

void PageStack::detach() {
    if (m_presented) {
        m_presented->detach();
    }
    if (m_navigationController) {
        m_navigationController->setObserver(nullptr);
        m_navigationController = nullptr;
    }
}

int PageStack::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_pages.size());
}

QVariant PageStack::data(const QModelIndex& index, int role) const {
    const auto number = static_cast<std::size_t>(index.row());
    if (!index.isValid() || number >= m_pages.size()) {
        return {};
    }
    switch (role) {
    case PageRole:
        return QVariant::fromValue(m_pages[number]);
    case LeavingRole:
        return index.row() >= m_depth;
    default:
        return {};
    }
}

QHash<int, QByteArray> PageStack::roleNames() const {
    return {{PageRole, "page"}, {LeavingRole, "leaving"}};
}

void PageStack::addPage(std::shared_ptr<ViewController> viewController, const ViewController* below) {
    beginInsertRows({}, m_depth, m_depth);
    m_pages.push_back(new Page(std::move(viewController), below, m_symbol, m_theme, this));
    ++m_depth;
    endInsertRows();
    Q_EMIT depthChanged();
}

void PageStack::pushed() {
    dropLeaving();
    const auto& stack = m_navigationController->viewControllers();
    addPage(stack.back(), stack[stack.size() - 2].get());
}

void PageStack::popped(int count) {
    dropLeaving();
    m_depth -= count;
    if (m_theme.moves()) {
        Q_EMIT dataChanged(index(m_depth), index(m_depth + count - 1), {LeavingRole});
    } else {
        dropLeaving();
    }
    Q_EMIT depthChanged();
}

void PageStack::dropLeaving() {
    const int count = static_cast<int>(m_pages.size());
    if (count == m_depth) {
        return;
    }
    beginRemoveRows({}, m_depth, count - 1);
    const std::vector<Page*> gone(m_pages.begin() + m_depth, m_pages.end());
    m_pages.resize(static_cast<std::size_t>(m_depth));
    endRemoveRows();
    // The items that draw them may be destroyed later.
    for (Page* page : gone) {
        page->deleteLater();
    }
}

void PageStack::setSideBySide(bool sideBySide) {
    if (m_navigationController) {
        m_navigationController->setSideBySide(sideBySide);
    }
}

// ---- popovers and sheets

void PageStack::presented(Presentation presentation, const Anchor& anchor) {
    m_presented = new PageStack(*m_navigationController->presentedStack(), m_symbol, m_theme, this);
    m_presented->m_popover = presentation == Presentation::Popover;
    m_presented->setAnchor(anchor, *m_pages[static_cast<std::size_t>(m_depth - 1)]);
    Q_EMIT presentedChanged();
}

void PageStack::setAnchor(const Anchor& anchor, const Page& presenter) {
    if (const auto* button = std::get_if<BarButtonAnchor>(&anchor)) {
        m_anchorKind = button->left ? LeftButton : RightButton;
        m_anchorIndex = button->index;
    } else if (const auto* row = std::get_if<RowId>(&anchor); row && presenter.rows()) {
        m_anchorKind = RowAnchor;
        m_anchorIndex = presenter.rows()->indexOf(*row);
    }
}

void PageStack::dismissed() {
    if (PageStack* gone = std::exchange(m_presented, nullptr)) {
        gone->detach();
        Q_EMIT presentedChanged();
    }
}

void PageStack::dismiss() {
    if (m_navigationController && m_presented) {
        m_navigationController->dismiss();
    }
}

} // namespace guide
