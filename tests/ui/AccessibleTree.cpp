#include "AccessibleTree.h"

#include <QMetaEnum>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

bool isDecoration(QAccessible::Role role) {
    return role == QAccessible::Client || role == QAccessible::Window || role == QAccessible::Grouping ||
           role == QAccessible::Pane || role == QAccessible::PageTabList || role == QAccessible::NoRole ||
           role == QAccessible::Graphic;
}

void collect(QAccessibleInterface* item, QList<AccessibleItem>& items) {
    if (!item || !item->isValid() || item->state().invisible) {
        return;
    }
    // Qt says nothing about a field for a password, not even its name; the row around it has one.
    const bool isSilent = isDecoration(item->role()) || item->state().passwordEdit;
    if (const QString name = item->text(QAccessible::Name); !name.isEmpty() || !isSilent) {
        items.append({item->role(), name, bool(item->state().focusable)});
    }
    for (int child = 0; child < item->childCount(); ++child) {
        collect(item->child(child), items);
    }
}

} // namespace

QList<AccessibleItem> accessibleItems(QWindow& window) {
    QList<AccessibleItem> items;
    collect(QAccessible::queryAccessibleInterface(&window), items);
    return items;
}

QStringList namelessItems(const QList<AccessibleItem>& items) {
    const QMetaEnum roles = QMetaEnum::fromType<QAccessible::Role>();
    QStringList found;
    QString before = u"the beginning"_s;
    for (const AccessibleItem& item : items) {
        if (item.name.trimmed().isEmpty()) {
            found << QString::fromLatin1(roles.valueToKey(item.role)) + u" after "_s + before;
        } else {
            before = item.name;
        }
    }
    return found;
}

} // namespace guide::test
