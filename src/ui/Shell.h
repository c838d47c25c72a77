#pragma once

#include "screens/kit/TabBarController.h"
#include "ui/GuideWindow.h"
#include "ui/PageStack.h"

#include <QAbstractListModel>
#include <QFont>
#include <QQmlEngine>
#include <QVariantList>

#include <vector>

namespace guide {

/// The tabs and what stands before them, for QML: a list with a row a tab.
class Shell : public QAbstractListModel, private TabBarObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")

    /// Tabs at the side rather than at the bottom.
    Q_PROPERTY(bool tablet READ tablet CONSTANT)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
    Q_PROPERTY(bool alertShown READ alertShown NOTIFY alertUpdated)
    Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY alertUpdated)
    Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY alertUpdated)
    /// Each with `title` and `style`.
    Q_PROPERTY(QVariantList alertActions READ alertActions NOTIFY alertUpdated)
    /// What a button that leads back is called where the screen below has no title.
    Q_PROPERTY(QString backText READ backText CONSTANT)

  public:
    enum ActionStyle { DefaultAction, CancelAction, DestructiveAction };
    Q_ENUM(ActionStyle)
    enum Role { TitleRole = Qt::UserRole, SymbolRole, EnabledRole, BadgeRole, StackRole };

    Shell(TabBarController& tabBarController, UserInterfaceIdiom form, Theme& theme, QObject* parent);
    ~Shell() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool tablet() const { return m_form == UserInterfaceIdiom::Tablet; }
    int selectedIndex() const { return m_tabBarController.selectedIndex(); }
    bool alertShown() const { return m_tabBarController.presentedAlert() != nullptr; }
    QString alertTitle() const;
    QString alertMessage() const;
    QVariantList alertActions() const;
    QString backText() const;

    /// The font of the tabs: of the system's text size, or the largest one in which every title stands in a
    /// tab of that width, on one line at the bottom and in no more lines than it has words at the side.
    Q_INVOKABLE QFont tabFont(double width, double textScale) const;

    Q_INVOKABLE void tapTab(int index) { m_tabBarController.tapTab(index); }
    Q_INVOKABLE void answerAlert(int action);
    /// The answer that changes nothing: the cancelling one, or the only one.
    Q_INVOKABLE void escapeAlert();

  Q_SIGNALS:
    void selectedIndexChanged();
    void alertUpdated();

  private:
    QString tabTitle(const TabBarItem& item) const;
    void tabBarItemChanged(int index) override;
    void selectedTabChanged() override { Q_EMIT selectedIndexChanged(); }
    void alertChanged() override { Q_EMIT alertUpdated(); }

    TabBarController& m_tabBarController;
    const UserInterfaceIdiom m_form;
    std::vector<PageStack*> m_stacks;
};

} // namespace guide
