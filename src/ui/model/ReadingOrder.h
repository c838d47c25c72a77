#pragma once

#include <QAccessible>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

namespace guide {

/// Keeps the rows of a list in the order in which they are seen, for screen readers: these follow the order
/// of the items, among which a list leaves its rows in the order of their creation. Does nothing while no
/// screen reader runs.
class ReadingOrder : public QObject, private QAccessible::ActivationObserver {
    Q_OBJECT
    QML_ELEMENT

    /// A ListView whose delegates have an `index`.
    Q_PROPERTY(QQuickItem* list MEMBER m_list)
    /// Whether to work without a screen reader too.
    Q_PROPERTY(bool always MEMBER m_always)

  public:
    explicit ReadingOrder(QObject* parent = nullptr);
    ~ReadingOrder() override;

    /// To be called when a row was created or its index has changed.
    Q_INVOKABLE void rowPlaced();

  private:
    void accessibilityActiveChanged(bool active) override;
    void restack();

    QPointer<QQuickItem> m_list;
    bool m_always = false;
    bool m_pending = false;
};

} // namespace guide
