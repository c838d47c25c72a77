#pragma once

#include "ui/GuideWindow.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace guide::test {

using namespace Qt::StringLiterals;

/// Opens a window, finds items in it, presses keys and drags. Fails for every warning that is logged.
class WindowTest : public testing::Test {
  protected:
    void SetUp() override {
        s_warnings = &m_warnings;
        m_outerHandler = qInstallMessageHandler(collectWarnings);
    }
    void TearDown() override {
        window.reset();
        qInstallMessageHandler(m_outerHandler);
        s_warnings = nullptr;
        EXPECT_TRUE(m_warnings.isEmpty()) << m_warnings.join(u'\n').toStdString();
    }

    void openWindow(TabBarController& tabs, GuideWindowOptions options) {
        window = std::make_unique<GuideWindow>(tabs, std::move(options));
        ASSERT_TRUE(window->loaded());
        window->show();
        quickWindow = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().constFirst());
        ASSERT_TRUE(quickWindow);
        settle();
    }
    void settle() const {
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            quickWindow->grabWindow();
        }
    }
    /// Visible items with the property, breadth first.
    QList<QQuickItem*> itemsWith(const char* property, QQuickItem* within = nullptr) const {
        QList<QQuickItem*> found;
        QList<QQuickItem*> open{within ? within : quickWindow->contentItem()};
        while (!open.isEmpty()) {
            QQuickItem* item = open.takeFirst();
            if (item->isVisible()) {
                if (item->metaObject()->indexOfProperty(property) >= 0) {
                    found << item;
                }
                open << item->childItems();
            }
        }
        return found;
    }
    /// Visible items whose property `text` is one of these.
    QList<QQuickItem*> buttons(const QStringList& texts) const {
        QList<QQuickItem*> found = itemsWith("visualFocus");
        found.removeIf([&](QQuickItem* item) { return !texts.contains(item->property("text").toString()); });
        return found;
    }
    QList<QQuickItem*> lists() const {
        QList<QQuickItem*> found = itemsWith("currentIndex");
        found.removeIf([](QQuickItem* item) { return item->objectName() != "rows"_L1; });
        return found;
    }
    QQuickItem* rows() const { return lists().isEmpty() ? nullptr : lists().constLast(); }
    QQuickItem* row(int index) const {
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(rows(), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, index));
        return item;
    }
    QQuickItem* rowAtTop() const {
        QQuickItem* item = nullptr;
        const double y = rows()->property("contentY").toDouble() + 1;
        QMetaObject::invokeMethod(rows(), "itemAt", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(double, 10.0),
                                  Q_ARG(double, y));
        return item;
    }
    static QPoint middle(const QQuickItem* item) {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void click(const QQuickItem* item, Qt::MouseButton button = Qt::LeftButton) const {
        QTest::mouseClick(quickWindow, button, {}, middle(item));
        settle();
    }
    /// Scrolls the list that is in front.
    void scrollTo(double y) const {
        rows()->setProperty("contentY", y);
        settle();
    }
    /// Gives the keyboard to a row of the list that is in front, or to the list.
    void focus(std::optional<int> index = {}) const {
        rows()->forceActiveFocus(Qt::TabFocusReason);
        if (index) {
            rows()->setProperty("currentIndex", *index);
        }
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(quickWindow, key, modifiers);
        settle();
    }
    /// Presses, moves in small steps, calls `look`, and releases; by finger or by mouse.
    void drag(
        const QPoint& from, const QPoint& by, bool byFinger,
        const std::function<void()>& look = [] {}) const {
        constexpr int kSteps = 16;
        static QPointingDevice* const screen = QTest::createTouchDevice();
        byFinger ? (void)QTest::touchEvent(quickWindow, screen).press(0, from, quickWindow)
                 : QTest::mousePress(quickWindow, Qt::LeftButton, {}, from);
        for (int step = 1; step <= kSteps; ++step) {
            const QPoint at = from + by * step / kSteps;
            byFinger ? (void)QTest::touchEvent(quickWindow, screen).move(0, at, quickWindow)
                     : QTest::mouseMove(quickWindow, at);
            QCoreApplication::processEvents();
        }
        look();
        byFinger ? (void)QTest::touchEvent(quickWindow, screen).release(0, from + by, quickWindow)
                 : QTest::mouseRelease(quickWindow, Qt::LeftButton, {}, from + by);
        settle();
    }

    std::unique_ptr<GuideWindow> window;
    QQuickWindow* quickWindow = nullptr;

  private:
    static void collectWarnings(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (s_warnings && type != QtDebugMsg && type != QtInfoMsg) {
            *s_warnings << QString::fromLatin1(context.category) + u": "_s + text;
        }
    }

    inline static QStringList* s_warnings = nullptr;
    QStringList m_warnings;
    QtMessageHandler m_outerHandler = nullptr;
};

} // namespace guide::test
