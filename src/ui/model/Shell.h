#pragma once

#include "screens/kit/TabBarController.h"
#include "ui/GuideWindow.h"
#include "ui/model/PageStack.h"

#include <QAbstractListModel>
#include <QDir>
#include <QFont>
#include <QQmlEngine>
#include <QUrl>

#include <vector>

namespace guide {

/// An answer to an alert, for QML.
struct AlertActionValue {
    Q_GADGET
    QML_VALUE_TYPE(alertAction)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(bool destructive MEMBER destructive CONSTANT FINAL)
    Q_PROPERTY(bool cancels MEMBER cancels CONSTANT FINAL)

  public:
    QString title;
    bool destructive = false;
    bool cancels = false;
};

/// The tabs, and the alerts and notices over them, for QML: a list with one row per tab.
class Shell : public QAbstractListModel, private TabBarObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")

    /// Tabs at the side rather than at the bottom.
    Q_PROPERTY(bool tablet READ tablet CONSTANT)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
    /// Whether the user last touched the screen, rather than using keys or a pointer.
    Q_PROPERTY(bool touching READ touching NOTIFY touchingChanged)
    Q_PROPERTY(bool alertShown READ alertShown NOTIFY alertUpdated)
    Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY alertUpdated)
    Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY alertUpdated)
    Q_PROPERTY(QList<guide::AlertActionValue> alertActions READ alertActions NOTIFY alertUpdated)
    Q_PROPERTY(bool noticeShown READ noticeShown NOTIFY noticeUpdated)
    Q_PROPERTY(QString noticeText READ noticeText NOTIFY noticeUpdated)
    /// Empty for no button.
    Q_PROPERTY(QString noticeAction READ noticeAction NOTIFY noticeUpdated)

    /// Whether the user is to choose a file, or a folder.
    Q_PROPERTY(bool fileChooserShown READ fileChooserShown NOTIFY fileChooserUpdated)
    Q_PROPERTY(bool fileChooserForFolders READ fileChooserForFolders NOTIFY fileChooserUpdated)
    Q_PROPERTY(QUrl homeFolder READ homeFolder CONSTANT)
    Q_PROPERTY(QString fileChooserTitle READ fileChooserTitle NOTIFY fileChooserUpdated)

    /// The screen over the whole window; null when there is none.
    Q_PROPERTY(guide::Page* cover READ cover NOTIFY coverUpdated)
    /// Whether the window takes the whole screen.
    Q_PROPERTY(bool fullScreen READ fullScreen NOTIFY fullScreenUpdated)

  public:
    enum Role { TitleRole = Qt::UserRole, SymbolRole, EnabledRole, BadgeRole, StackRole };

    Shell(TabBarController& tabBarController, UserInterfaceIdiom form, Theme& theme, QObject* parent);
    ~Shell() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool tablet() const { return m_form == UserInterfaceIdiom::Tablet; }
    int selectedIndex() const { return m_tabBarController.selectedIndex(); }
    bool touching() const { return m_touching; }
    void setTouching(bool touching);
    bool alertShown() const { return m_tabBarController.presentedAlert() != nullptr; }
    QString alertTitle() const;
    QString alertMessage() const;
    QList<AlertActionValue> alertActions() const;
    bool noticeShown() const { return m_tabBarController.presentedNotice() != nullptr; }
    QString noticeText() const;
    QString noticeAction() const;
    bool fileChooserShown() const { return m_tabBarController.presentedFileChooser() != nullptr; }
    bool fileChooserForFolders() const;
    static QUrl homeFolder() { return QUrl::fromLocalFile(QDir::homePath()); }
    QString fileChooserTitle() const;
    Page* cover() const { return m_cover; }
    bool fullScreen() const { return m_cover && m_cover->player() && m_cover->player()->fullScreen(); }

    /// The font of the tabs: of the system's text size, or the largest one in which every title fits into a
    /// tab of that width, on one line at the bottom and in no more lines than it has words at the side.
    Q_INVOKABLE QFont tabFont(double width, double textScale) const;

    Q_INVOKABLE void tapTab(int index) { m_tabBarController.tapTab(index); }
    /// Selects the search tab and its first screen, unless the tab is disabled.
    Q_INVOKABLE void openSearch();
    Q_INVOKABLE void answerAlert(int action);
    /// Gives the answer that changes nothing: the cancelling one, or the only one.
    Q_INVOKABLE void escapeAlert();
    Q_INVOKABLE void pressNoticeAction() { m_tabBarController.pressNoticeAction(); }
    Q_INVOKABLE void dismissNotice() { m_tabBarController.dismissNotice(); }
    /// An empty URL when the user chose none.
    Q_INVOKABLE void closeFileChooser(const QUrl& file);
    /// Nothing on this device lets the user choose files.
    Q_INVOKABLE void cannotChooseFiles();
    /// Something was dropped on the window.
    Q_INVOKABLE void drop(const QList<QUrl>& urls, const QString& text);

  Q_SIGNALS:
    void selectedIndexChanged();
    void touchingChanged();
    void alertUpdated();
    void noticeUpdated();
    void coverUpdated();
    void fullScreenUpdated();
    void fileChooserUpdated();
    /// An address, or the path of a file.
    void dropped(const QString& input);

  private:
    QString tabTitle(const TabBarItem& item) const;
    void tabBarItemChanged(int index) override;
    void selectedTabChanged() override { Q_EMIT selectedIndexChanged(); }
    void alertChanged() override { Q_EMIT alertUpdated(); }
    void noticeChanged() override { Q_EMIT noticeUpdated(); }
    void fileChooserChanged() override { Q_EMIT fileChooserUpdated(); }
    void coverChanged() override;

    TabBarController& m_tabBarController;
    const UserInterfaceIdiom m_form;
    bool m_touching = false;
    Theme& m_theme;
    std::vector<PageStack*> m_stacks;
    Page* m_cover = nullptr;
};

} // namespace guide
