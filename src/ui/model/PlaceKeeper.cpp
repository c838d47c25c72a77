#include "ui/model/PlaceKeeper.h"

namespace guide {

void PlaceKeeper::setModel(TableModel* model) {
    if (m_model) {
        disconnect(m_model, nullptr, this, nullptr);
    }
    m_model = model;
    if (m_model) {
        connect(m_model, &TableModel::aboutToChange, this, &PlaceKeeper::remember);
        connect(m_model, &TableModel::hasChanged, this, &PlaceKeeper::restore);
    }
}

QQuickItem* PlaceKeeper::itemOf(int row) const {
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(m_list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, row));
    return item;
}

bool PlaceKeeper::atBeginning() const {
    return m_list->property("atYBeginning").toBool();
}

void PlaceKeeper::remember() {
    m_seen.clear();
    if (!m_list || atBeginning()) {
        return;
    }
    const double top = m_list->property("contentY").toDouble();
    const double bottom = top + m_list->height();
    int first = -1;
    // There is no row in a gap, such as the one before a section.
    for (double y = top; first < 0 && y < bottom; y += 8) {
        QMetaObject::invokeMethod(m_list, "indexAt", Q_RETURN_ARG(int, first),
                                  Q_ARG(double, m_list->width() / 2), Q_ARG(double, y));
    }
    for (int row = first; row >= 0; ++row) {
        const QQuickItem* item = itemOf(row);
        if (!item || item->y() >= bottom) {
            break;
        }
        m_seen.push_back({m_model->index(row), item->y() - top});
    }
}

void PlaceKeeper::restore() {
    if (!m_list || m_seen.empty()) {
        return;
    }
    QMetaObject::invokeMethod(m_list, "forceLayout");
    for (const Seen& seen : m_seen) {
        if (!seen.row.isValid()) {
            continue;
        }
        if (const QQuickItem* item = itemOf(seen.row.row()); item && !m_list->property("moving").toBool()) {
            m_list->setProperty("contentY", item->y() - seen.offset);
            QMetaObject::invokeMethod(m_list, "returnToBounds");
        }
        break;
    }
    m_seen.clear();
}

} // namespace guide
