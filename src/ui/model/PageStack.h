#pragma once

#include "ui/model/Page.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace guide {

/// A stack of screens, for QML: a list of pages from the root up. A page that was popped stays in the list,
/// at its end, until its exit animation has ended.
class PageStack : public QAbstractListModel, private NavigationObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the shell")

    /// The number of pages on the stack, without those that were popped.
    Q_PROPERTY(int depth READ depth NOTIFY depthChanged)
    /// The stack in a popover or sheet over this one; null when there is none.
    Q_PROPERTY(guide::PageStack* presented READ presented NOTIFY presentedChanged)
    /// How this stack is presented.
    Q_PROPERTY(bool popover READ popover CONSTANT)
    Q_PROPERTY(AnchorKind anchorKind READ anchorKind CONSTANT)
    /// The number of the bar button, or of the row.
    Q_PROPERTY(int anchorIndex READ anchorIndex CONSTANT)

  public:
    enum Role { PageRole = Qt::UserRole, LeavingRole };
    enum AnchorKind { NoAnchor, LeftButton, RightButton, RowAnchor };
    Q_ENUM(AnchorKind)

    PageStack(NavigationController& navigationController, Symbol symbol, Theme& theme, QObject* parent);
    ~PageStack() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int depth() const { return m_depth; }
    PageStack* presented() const { return m_presented; }
    bool popover() const { return m_popover; }
    AnchorKind anchorKind() const { return m_anchorKind; }
    int anchorIndex() const { return m_anchorIndex; }

    /// Whether the two top screens are drawn beside each other.
    Q_INVOKABLE void setSideBySide(bool sideBySide);
    /// Closes what the stack presents.
    Q_INVOKABLE void dismiss();
    /// To be called when popped pages are no longer drawn.
    Q_INVOKABLE void dropLeaving();
    /// To be called when a dismissed stack is no longer drawn.
    Q_INVOKABLE void release() { deleteLater(); }

  Q_SIGNALS:
    void depthChanged();
    void presentedChanged();

  private:
    void pushed() override;
    void popped(int count) override;
    void presented(Presentation presentation, const Anchor& anchor) override;
    void dismissed() override;

    void addPage(std::shared_ptr<ViewController> viewController, const ViewController* below);
    void setAnchor(const Anchor& anchor, const Page& presenter);
    void detach();

    /// Null once the stack was dismissed.
    NavigationController* m_navigationController;
    const Symbol m_symbol;
    Theme& m_theme;
    std::vector<Page*> m_pages;
    int m_depth = 0;
    PageStack* m_presented = nullptr;
    bool m_popover = false;
    AnchorKind m_anchorKind = NoAnchor;
    int m_anchorIndex = 0;
};

} // namespace guide
