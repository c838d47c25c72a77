#pragma once

#include "ui/model/TableModel.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

#include <vector>

namespace guide {

/// Keeps the scroll position of a list while its rows change: after the change, the first visible row that
/// still exists is where it was. A list at its beginning stays there.
class PlaceKeeper : public QObject {
    Q_OBJECT
    QML_ELEMENT

    /// A ListView.
    Q_PROPERTY(QQuickItem* list MEMBER m_list)
    Q_PROPERTY(guide::TableModel* model READ model WRITE setModel)

  public:
    explicit PlaceKeeper(QObject* parent = nullptr)
        : QObject(parent) {}

    TableModel* model() const { return m_model; }
    void setModel(TableModel* model);

  private:
    struct Seen {
        QPersistentModelIndex row;
        double offset;
    };

    void remember();
    void restore();
    QQuickItem* itemOf(int row) const;
    bool atBeginning() const;

    QPointer<QQuickItem> m_list;
    QPointer<TableModel> m_model;
    std::vector<Seen> m_seen;
};

} // namespace guide
