#pragma once

#include <QAccessible>
#include <QString>
#include <QWindow>

namespace guide::test {

/// One item as a screen reader gets it.
struct AccessibleItem {
    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    bool focusable = false;
};

/// The visible items of a window in the order in which they are read, without groups and decoration that have
/// no name.
QList<AccessibleItem> accessibleItems(QWindow& window);

/// Names of roles of items that a user acts on or reads and that have no name, with the item read before
/// each.
QStringList namelessItems(const QList<AccessibleItem>& items);

} // namespace guide::test
