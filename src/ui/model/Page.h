#pragma once

#include "screens/kit/TabBarController.h"
#include "ui/look/Theme.h"
#include "ui/model/PicturePagesModel.h"
#include "ui/model/PlayerModel.h"
#include "ui/model/TableModel.h"
#include "ui/model/WebPageModel.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

#include <memory>

namespace guide {

/// A bar button, for QML.
struct BarButtonValue {
    Q_GADGET
    QML_VALUE_TYPE(barButton)
    /// A Kit.BarButtonKind.
    Q_PROPERTY(int kind MEMBER kind CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT FINAL)

  public:
    int kind = 0;
    QString title;
    bool enabled = true;
};

/// One screen of a stack, for QML.
class Page : public QObject, private ViewControllerObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the stack")

    Q_PROPERTY(QString title READ title NOTIFY titleUpdated)
    /// The title of the screen below; empty for the root.
    Q_PROPERTY(QString backTitle READ backTitle CONSTANT)
    Q_PROPERTY(bool canGoBack READ canGoBack CONSTANT)
    /// From the leading edge inwards.
    Q_PROPERTY(QList<guide::BarButtonValue> leftButtons READ leftButtons NOTIFY buttonsUpdated)
    /// From the trailing edge inwards.
    Q_PROPERTY(QList<guide::BarButtonValue> rightButtons READ rightButtons NOTIFY buttonsUpdated)
    Q_PROPERTY(bool canRefresh READ canRefresh CONSTANT)
    Q_PROPERTY(bool refreshing READ refreshing NOTIFY refreshingUpdated)
    /// Whether work is in progress; `progress` is 0 to 1, or -1 while unknown.
    Q_PROPERTY(bool busy READ busy NOTIFY progressUpdated)
    Q_PROPERTY(double progress READ progress NOTIFY progressUpdated)
    Q_PROPERTY(bool searchable READ searchable NOTIFY searchUpdated)
    Q_PROPERTY(QString searchPlaceholder READ searchPlaceholder NOTIFY searchUpdated)
    Q_PROPERTY(QString searchText READ searchText NOTIFY searchUpdated)
    /// Whether the field takes the keyboard when its tab is opened.
    Q_PROPERTY(bool searchOnOpening READ searchOnOpening NOTIFY searchUpdated)
    /// The symbol of its tab.
    Q_PROPERTY(int symbol READ symbol CONSTANT)
    /// The component that draws the content; it has the property `page`.
    Q_PROPERTY(QUrl source READ source CONSTANT)
    /// Null when the content is not a table.
    Q_PROPERTY(guide::TableModel* rows READ rows CONSTANT)
    /// Null when the content is something else.
    Q_PROPERTY(guide::PlayerModel* player READ player CONSTANT)
    Q_PROPERTY(guide::WebPageModel* webPage READ webPage CONSTANT)
    Q_PROPERTY(guide::PicturePagesModel* pictures READ pictures CONSTANT)

  public:
    /// `below` is the screen that it covers; null for the root.
    Page(std::shared_ptr<ViewController> viewController, const ViewController* below, Symbol symbol,
         Theme& theme, QObject* parent);
    ~Page() override;

    const ViewController& viewController() const { return *m_viewController; }
    QString title() const { return m_viewController->title(); }
    QString backTitle() const { return m_backTitle; }
    bool canGoBack() const { return m_canGoBack; }
    QList<BarButtonValue> leftButtons() const;
    QList<BarButtonValue> rightButtons() const;
    bool canRefresh() const { return m_viewController->hasRefreshControl(); }
    bool refreshing() const { return m_viewController->refreshing(); }
    bool busy() const { return m_viewController->progress().has_value(); }
    double progress() const;
    bool searchable() const { return m_viewController->searchField().has_value(); }
    QString searchPlaceholder() const;
    QString searchText() const;
    bool searchOnOpening() const;
    int symbol() const { return static_cast<int>(m_symbol); }
    QUrl source() const;
    TableModel* rows() const { return m_rows.get(); }
    PlayerModel* player() const { return m_player.get(); }
    WebPageModel* webPage() const { return m_webPage.get(); }
    PicturePagesModel* pictures() const { return m_pictures.get(); }

    /// On the root of a presented stack, closes it.
    Q_INVOKABLE void goBack();
    Q_INVOKABLE void pressLeft(int button);
    Q_INVOKABLE void pressRight(int button);
    Q_INVOKABLE void pull();
    Q_INVOKABLE void search(const QString& text);
    Q_INVOKABLE void cancelSearch();
    Q_INVOKABLE void finishSearch();

  Q_SIGNALS:
    void titleUpdated();
    void buttonsUpdated();
    void refreshingUpdated();
    void progressUpdated();
    void searchUpdated();

  private:
    void makeModel(Theme& theme);
    void titleChanged() override { Q_EMIT titleUpdated(); }
    void barButtonsChanged() override { Q_EMIT buttonsUpdated(); }
    void refreshingChanged() override { Q_EMIT refreshingUpdated(); }
    void progressChanged() override { Q_EMIT progressUpdated(); }
    void searchFieldChanged() override { Q_EMIT searchUpdated(); }

    const std::shared_ptr<ViewController> m_viewController;
    const QString m_backTitle;
    const bool m_canGoBack;
    const Symbol m_symbol;
    std::unique_ptr<TableModel> m_rows;
    std::unique_ptr<PlayerModel> m_player;
    std::unique_ptr<WebPageModel> m_webPage;
    std::unique_ptr<PicturePagesModel> m_pictures;
};

} // namespace guide
