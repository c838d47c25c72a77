#pragma once

#include "screens/kit/TabBarController.h"
#include "ui/TableModel.h"
#include "ui/Theme.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantList>

#include <memory>

namespace guide {

/// One screen of a stack, for QML.
class Page : public QObject, private ViewControllerObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the stack")

    Q_PROPERTY(QString title READ title NOTIFY titleUpdated)
    /// The title of the screen below; empty for the root.
    Q_PROPERTY(QString backTitle READ backTitle CONSTANT)
    Q_PROPERTY(bool canGoBack READ canGoBack CONSTANT)
    /// From the trailing edge inwards, each with `kind` and `title`.
    Q_PROPERTY(QVariantList buttons READ buttons NOTIFY buttonsUpdated)
    Q_PROPERTY(bool canRefresh READ canRefresh CONSTANT)
    Q_PROPERTY(bool refreshing READ refreshing NOTIFY refreshingUpdated)
    /// The symbol of its tab.
    Q_PROPERTY(int symbol READ symbol CONSTANT)
    Q_PROPERTY(guide::TableModel* rows READ rows CONSTANT)

  public:
    enum ButtonKind { TitleButton, RefreshButton, PlayButton, ActivityButton };
    Q_ENUM(ButtonKind)

    /// `below` is the screen that it covers; null for the root.
    Page(std::shared_ptr<ViewController> viewController, const ViewController* below, Symbol symbol,
         Theme& theme, QObject* parent);
    ~Page() override;

    QString title() const { return m_viewController->title(); }
    QString backTitle() const { return m_backTitle; }
    bool canGoBack() const { return m_canGoBack; }
    QVariantList buttons() const;
    bool canRefresh() const { return m_viewController->hasRefreshControl(); }
    bool refreshing() const { return m_viewController->refreshing(); }
    int symbol() const { return static_cast<int>(m_symbol); }
    TableModel* rows() { return &m_rows; }

    Q_INVOKABLE void goBack();
    Q_INVOKABLE void press(int button);
    Q_INVOKABLE void pull();
    /// Nothing draws the screen any more.
    Q_INVOKABLE void release() { deleteLater(); }

  Q_SIGNALS:
    void titleUpdated();
    void buttonsUpdated();
    void refreshingUpdated();

  private:
    void titleChanged() override { Q_EMIT titleUpdated(); }
    void barButtonsChanged() override { Q_EMIT buttonsUpdated(); }
    void refreshingChanged() override { Q_EMIT refreshingUpdated(); }

    const std::shared_ptr<ViewController> m_viewController;
    const QString m_backTitle;
    const bool m_canGoBack;
    const Symbol m_symbol;
    TableModel m_rows;
};

} // namespace guide
