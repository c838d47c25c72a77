#include "ui/GuideWindow.h"

#include "ui/FrameLog.h"
#include "ui/Shell.h"
#include "ui/Theme.h"

#include <QCoreApplication>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QVariantMap>

#include <algorithm>
#include <utility>

// Written by the build from the QML module's types.
extern void qml_register_types_Quellin();

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kPhoneSize(390, 844);
constexpr QSize kTabletSize(1024, 768);
constexpr QSize kSmallestSize(320, 400);

/// Whether every section of the screen in front has a row behind its head.
bool isFilled(const TabBarController& tabs) {
    const auto& sections = tabs.selectedNavigationController().topViewController()->table().sections();
    return !sections.empty() &&
           std::ranges::all_of(sections, [](const Section& section) { return section.rows.size() > 1; });
}

} // namespace

class GuideWindow::Parts : public QQuickView {
  public:
    Parts(TabBarController& tabBarController, GuideWindowOptions options)
        : m_tabBarController(tabBarController)
        , m_options(std::move(options)) {
        qml_register_types_Quellin();
        engine()->addImportPath(u"qrc:/qt/qml"_s);
        m_theme = engine()->singletonInstance<Theme*>(qmlTypeId("Quellin", 1, 0, "Theme"));
        if (!m_theme) {
            return;
        }
        m_theme->setScheme(m_options.scheme);
        m_theme->setMoves(m_options.motion);
        m_shell = std::make_unique<Shell>(m_tabBarController, m_options.form, *m_theme, nullptr);

        m_frameLog.emplace(*this, [this] { return isFilled(m_tabBarController); });
        setTitle(QCoreApplication::applicationName());
        setResizeMode(QQuickView::SizeRootObjectToView);
        setMinimumSize(kSmallestSize);
        resize(
            m_options.size.value_or(m_options.form == UserInterfaceIdiom::Phone ? kPhoneSize : kTabletSize));
        const auto background = [this] { setColor(m_theme->background()); };
        background();
        connect(m_theme, &Theme::colorsChanged, this, background);
        connect(this, &QWindow::visibilityChanged, this, [this] { tellVisibility(); });
        setInitialProperties({{u"shell"_s, QVariant::fromValue(m_shell.get())}});
        setSource(QUrl(u"qrc:/qt/qml/Quellin/qml/Main.qml"_s));
    }
    ~Parts() override {
        disconnect(this, nullptr, this, nullptr);
        // The items go before what they show.
        setSource(QUrl());
    }

    bool loaded() const { return m_theme && status() == QQuickView::Ready; }
    TabBarController& tabBarController() const { return m_tabBarController; }
    Theme* theme() const { return m_theme; }
    bool seen() const { return visibility() != QWindow::Hidden && visibility() != QWindow::Minimized; }

  protected:
    bool event(QEvent* event) override {
        const bool handled = QQuickView::event(event);
        if (event->type() == QEvent::Close && m_options.closed) {
            m_options.closed();
        }
        return handled;
    }

  private:
    void tellVisibility() {
        if (std::exchange(m_toldVisible, seen()) != seen() && m_options.visibilityChanged) {
            m_options.visibilityChanged(seen());
        }
    }

    TabBarController& m_tabBarController;
    const GuideWindowOptions m_options;
    Theme* m_theme = nullptr;
    std::unique_ptr<Shell> m_shell;
    std::optional<FrameLog> m_frameLog;
    bool m_toldVisible = false;
};

GuideWindow::GuideWindow(TabBarController& tabBarController, GuideWindowOptions options)
    : m_parts(std::make_unique<Parts>(tabBarController, std::move(options))) {}

GuideWindow::~GuideWindow() = default;

bool GuideWindow::loaded() const {
    return m_parts->loaded();
}

void GuideWindow::show() {
    m_parts->tabBarController().makeVisible();
    if (!m_parts->isVisible()) {
        m_parts->show();
        return;
    }
    if (m_parts->visibility() == QWindow::Minimized) {
        m_parts->showNormal();
    }
    m_parts->raise();
    m_parts->requestActivate();
}

bool GuideWindow::visible() const {
    return m_parts->seen();
}

void GuideWindow::setColorScheme(std::optional<ColorScheme> scheme) {
    if (m_parts->theme()) {
        m_parts->theme()->setScheme(scheme);
    }
}

void GuideWindow::setMotion(bool moves) {
    if (m_parts->theme()) {
        m_parts->theme()->setMoves(moves);
    }
}

bool GuideWindow::savePicture(const QString& path) {
    const QImage picture = m_parts->grabWindow();
    return !picture.isNull() && picture.save(path, "PNG");
}

} // namespace guide
