#pragma once

#include "ui/Page.h"

#include <QObject>
#include <QQmlEngine>

namespace guide {

/// The stack of screens of one tab, for QML.
class PageStack : public QObject, private NavigationObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the shell")

    Q_PROPERTY(guide::Page* root READ root CONSTANT)

  public:
    PageStack(NavigationController& navigationController, Symbol symbol, Theme& theme, QObject* parent);
    ~PageStack() override;

    Page* root() const { return m_root; }

  Q_SIGNALS:
    /// Who draws the page releases it when it is drawn no more.
    void pagePushed(guide::Page* page);
    void pagesPopped(int count);

  private:
    void pushed() override;
    void popped(int count) override { Q_EMIT pagesPopped(count); }

    NavigationController& m_navigationController;
    const Symbol m_symbol;
    Theme& m_theme;
    Page* m_root;
};

} // namespace guide
