#include "ui/model/ReadingOrder.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace guide {

ReadingOrder::ReadingOrder(QObject* parent)
    : QObject(parent) {
    QAccessible::installActivationObserver(this);
}

ReadingOrder::~ReadingOrder() {
    QAccessible::removeActivationObserver(this);
}

void ReadingOrder::rowPlaced() {
    if (!m_pending && (m_always || QAccessible::isActive())) {
        m_pending = true;
        QMetaObject::invokeMethod(this, &ReadingOrder::restack, Qt::QueuedConnection);
    }
}

void ReadingOrder::accessibilityActiveChanged(bool active) {
    if (active) {
        rowPlaced();
    }
}

void ReadingOrder::restack() {
    m_pending = false;
    const auto* content = m_list ? m_list->property("contentItem").value<QQuickItem*>() : nullptr;
    if (!content) {
        return;
    }
    std::vector<std::pair<int, QQuickItem*>> rows;
    for (QQuickItem* item : content->childItems()) {
        const QVariant index = item->property("index");
        // Those of a hidden list too: nothing tells when it is shown again.
        if (index.isValid()) {
            rows.emplace_back(index.toInt(), item);
        }
    }
    std::ranges::sort(rows, {}, &std::pair<int, QQuickItem*>::first);
    for (std::size_t place = 1; place < rows.size(); ++place) {
        rows[place].second->stackAfter(rows[place - 1].second);
    }
}

} // namespace guide
