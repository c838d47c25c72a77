#pragma once

#include "screens/kit/WebPageContent.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace guide {

/// A page of the web, for QML.
class WebPageModel : public QObject, private WebPageObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the page")

    Q_PROPERTY(QUrl url READ url CONSTANT)
    Q_PROPERTY(QString userAgent READ userAgent CONSTANT)

  public:
    explicit WebPageModel(WebPageContent& content)
        : m_content(content) {
        m_content.setObserver(this);
    }
    ~WebPageModel() override { m_content.setObserver(nullptr); }

    QUrl url() const { return m_content.url(); }
    QString userAgent() const { return m_content.userAgent(); }

    Q_INVOKABLE bool allows(const QUrl& url) const { return m_content.allows(url); }
    Q_INVOKABLE void loadingStarted() { m_content.loadingStarted(); }
    Q_INVOKABLE void loadingEnded(bool canGoBack) { m_content.loadingEnded(canGoBack); }
    Q_INVOKABLE void cannotDraw() { m_content.cannotDraw(); }

  Q_SIGNALS:
    void backWanted();

  private:
    void goBack() override { Q_EMIT backWanted(); }

    WebPageContent& m_content;
};

} // namespace guide
