#include "ui/GuideWindow.h"

#include "GalleryShows.h"
#include "screens/Localized.h"
#include "screens/root/RootViewController.h"

#include <QGuiApplication>
#include <QPalette>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QTranslator>

namespace guide::test {

namespace {

QStringList* warnings = nullptr;

void collectWarnings(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (warnings && type != QtDebugMsg && type != QtInfoMsg) {
        *warnings << QString::fromLatin1(context.category) + u": "_s + text;
    }
}

class GuideWindowTest : public testing::TestWithParam<UserInterfaceIdiom> {
  protected:
    void SetUp() override {
        warnings = &m_warnings;
        m_outerHandler = qInstallMessageHandler(collectWarnings);
    }
    void TearDown() override {
        window.reset();
        qInstallMessageHandler(m_outerHandler);
        warnings = nullptr;
        EXPECT_TRUE(m_warnings.isEmpty()) << m_warnings.join(u'\n').toStdString();
    }

    void open() {
        fillWithEvening(world);
        if (GetParam() == UserInterfaceIdiom::Tablet) {
            world.tabs->setSelectedIndex(currentlyTabIndex(GetParam()));
        }
        window = std::make_unique<GuideWindow>(
            *world.tabs,
            GuideWindowOptions{.form = GetParam(),
                               .motion = false,
                               .visibilityChanged = [this](bool visible) { visibility << visible; },
                               .closed = [this] { closed = true; }});
        ASSERT_TRUE(window->loaded());
        window->show();
        quickWindow = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().constFirst());
        ASSERT_TRUE(quickWindow);
        world.queues.runAll();
        settle();
    }
    void settle() const {
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            quickWindow->grabWindow();
        }
    }
    /// Items in sight with the property, top to bottom.
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
    QQuickItem* rows() const {
        QQuickItem* last = nullptr;
        for (QQuickItem* item : itemsWith("currentIndex")) {
            last = item->objectName() == u"rows"_s ? item : last;
        }
        return last;
    }
    /// A press there, a move in small steps, a look at what is seen, and the release; by finger or by mouse.
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
    int totalRows() const {
        int total = 0;
        for (const Section& section : world.top().table().sections()) {
            total += static_cast<int>(section.rows.size());
        }
        return total;
    }
    /// The title of the row at the list's top edge.
    QString titleAtTop() const {
        QQuickItem* item = nullptr;
        const double y = rows()->property("contentY").toDouble() + 1;
        QMetaObject::invokeMethod(rows(), "itemAt", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(double, 10.0),
                                  Q_ARG(double, y));
        return item ? item->property("title").toString() : QString();
    }

    ScreenWorld world{GetParam()};
    std::unique_ptr<GuideWindow> window;
    QQuickWindow* quickWindow = nullptr;
    QList<bool> visibility;
    bool closed = false;

  private:
    QStringList m_warnings;
    QtMessageHandler m_outerHandler = nullptr;
};

TEST_P(GuideWindowTest, DrawsTheRowsAndTheTabs) {
    open();
    ASSERT_TRUE(rows());
    EXPECT_EQ(rows()->property("count").toInt(), totalRows());
    EXPECT_GT(totalRows(), 20);
    EXPECT_LE(rows()->width(), 720);
    EXPECT_EQ(itemsWith("badge").size(), GetParam() == UserInterfaceIdiom::Tablet ? 6 : 5);
    for (QQuickItem* tab : itemsWith("badge")) {
        EXPECT_GE(tab->height(), 44);
        EXPECT_GE(tab->width(), 44);
    }
    for (QQuickItem* row : itemsWith("selectable")) {
        EXPECT_GE(row->height(), 56);
    }
    EXPECT_EQ(visibility, QList<bool>{true});
}

TEST_P(GuideWindowTest, ThePlaceInTheListStays) {
    open();
    auto& root = dynamic_cast<RootViewController&>(world.top());
    rows()->setProperty("contentY", 700);
    settle();
    const QString before = titleAtTop();
    ASSERT_FALSE(before.isEmpty());
    root.notificationsSynched();
    settle();
    EXPECT_EQ(titleAtTop(), before) << "after all rows were drawn anew";
    const ObjectId first = ScreenWorld::channelId(1);
    world.load(first, {{0, 65, u"Only one left"_s}});
    settle();
    EXPECT_EQ(titleAtTop(), before) << "after rows above were removed";
    world.load(first, {{0, 65, u"A"_s}, {65, 70, u"B"_s}, {70, 75, u"C"_s}});
    settle();
    EXPECT_EQ(titleAtTop(), before) << "after rows above were inserted";
    EXPECT_EQ(rows()->property("count").toInt(), totalRows());
}

TEST_P(GuideWindowTest, TheKeyboardOpensAChannelAndLeadsBack) {
    open();
    rows()->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(quickWindow, Qt::Key_Down);
    EXPECT_EQ(rows()->property("currentIndex").toInt(), 0);
    QTest::keyClick(quickWindow, Qt::Key_Return);
    world.queues.runAll();
    settle();
    ASSERT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U);
    EXPECT_EQ(rows()->property("count").toInt(), totalRows());
    QStringList days;
    for (const QQuickItem* header : itemsWith("section")) {
        days << header->property("section").toString();
    }
    EXPECT_TRUE(days.contains(u"středa 31. prosince 2025"_s)) << days.join(u'|').toStdString();

    QTest::keyClick(quickWindow, Qt::Key_Escape);
    settle();
    EXPECT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 1U);
    EXPECT_EQ(rows()->property("count").toInt(), totalRows());
}

TEST_P(GuideWindowTest, APullAtTheTopRefreshesAChannel) {
    open();
    world.top().tapRow({0, 0});
    world.queues.runAll();
    settle();
    ASSERT_TRUE(world.top().hasRefreshControl());
    ASSERT_FALSE(world.top().refreshing());
    QStringList checks;
    for (const bool byFinger : {false, true}) {
        SCOPED_TRACE(byFinger ? "finger" : "mouse");
        const QPoint top = rows()->mapToScene(QPointF(rows()->width() / 2, 60)).toPoint();
        drag(top, {0, 90}, byFinger);
        EXPECT_FALSE(world.top().refreshing()) << "not far enough";
        drag(top, {-180, 160}, byFinger);
        EXPECT_FALSE(world.top().refreshing()) << "aside";
        drag(top, {0, 400}, byFinger, [this] {
            const QQuickItem* sign = nullptr;
            for (QQuickItem* item : itemsWith("objectName")) {
                sign = item->objectName() == u"pullSign"_s ? item : sign;
            }
            ASSERT_TRUE(sign);
            const double y = sign->mapToItem(rows(), QPointF()).y();
            EXPECT_EQ(y + sign->height(), 0) << "right above the first row";
            EXPECT_GT(sign->mapToItem(sign->parentItem(), QPointF()).y(), 0);
        });
        EXPECT_TRUE(world.top().refreshing());
        EXPECT_EQ(world.app.done, checks << u"check"_s);
        EXPECT_EQ(rows()->mapToScene({}).y(), rows()->parentItem()->mapToScene(rows()->position()).y());
        world.load(ScreenWorld::channelId(1), {{0, 600, u"Fresh"_s}, {600, 9000, u"And long"_s}});
        settle();
        EXPECT_FALSE(world.top().refreshing());
    }
}

TEST_P(GuideWindowTest, ASwipeUncoversWhatCanBeDoneWithAShow) {
    open();
    QStringList done;
    world.app.swipeActions = [&done](const TVEntry& entry) {
        return std::vector<SwipeAction>{
            {u"⏰"_s, u"Set alarm"_s, ColorRole::Tint, [&done, title = *entry.title()] { done << title; }},
            {u"⭐"_s, u"Favourite"_s, ColorRole::Favourite, [&done] { done << u"favourite"_s; }}};
    };
    const auto row = [this](int index) {
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(rows(), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, index));
        return item;
    };
    const auto middle = [](const QQuickItem* item) {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    };
    const auto offered = [&] {
        QList<QQuickItem*> found = itemsWith("visualFocus");
        found.removeIf([](QQuickItem* item) {
            return !QStringList{u"⏰"_s, u"⭐"_s}.contains(item->property("text").toString());
        });
        return found;
    };
    for (const bool byFinger : {false, true}) {
        SCOPED_TRACE(byFinger ? "finger" : "mouse");
        drag(middle(row(0)), {-200, 0}, byFinger);
        EXPECT_TRUE(offered().isEmpty()) << "a channel's own row has nothing to offer";
        drag(middle(row(1)), {-200, 40}, byFinger);
        ASSERT_EQ(offered().size(), 2);
        EXPECT_EQ(rows()->property("contentY").toDouble(), rows()->property("originY").toDouble());
        drag(middle(row(2)), {-200, 0}, byFinger);
        EXPECT_EQ(offered().size(), 2) << "one row at a time";
        const QString title = row(2)->property("title").toString();
        const auto atEdge = [](const QQuickItem* one, const QQuickItem* other) {
            return one->mapToScene({}).x() < other->mapToScene({}).x();
        };
        const QList<QQuickItem*> both = offered();
        drag(middle(*std::ranges::max_element(both, atEdge)), {}, byFinger);
        EXPECT_EQ(done, QStringList{title}) << "the first one stands at the edge";
        EXPECT_TRUE(offered().isEmpty());
        done.clear();
    }

    rows()->forceActiveFocus(Qt::TabFocusReason);
    rows()->setProperty("currentIndex", 1);
    QTest::keyClick(quickWindow, Qt::Key_Menu);
    settle();
    QTest::keyClick(quickWindow, Qt::Key_Tab);
    QTest::keyClick(quickWindow, Qt::Key_Return);
    settle();
    EXPECT_EQ(done, QStringList{u"favourite"_s});
    EXPECT_TRUE(rows()->hasActiveFocus());

    drag(middle(row(1)), {-200, 0}, true);
    ASSERT_EQ(offered().size(), 2);
    world.broadcast->notificationsSynched();
    settle();
    EXPECT_TRUE(offered().isEmpty()) << "the row says something else now";
}

TEST_P(GuideWindowTest, TabTitlesStandOnTheirLinesAtAnyTextSize) {
    const QFont system = QGuiApplication::font();
    for (const int pixels : {13, 20, 34}) {
        QFont larger = system;
        larger.setPixelSize(pixels);
        QGuiApplication::setFont(larger);
        if (!window) {
            open();
        }
        settle();
        for (QQuickItem* tab : itemsWith("badge")) {
            SCOPED_TRACE(tab->property("text").toString().toStdString() + " at " + std::to_string(pixels));
            for (const QQuickItem* label : itemsWith("lineCount", tab)) {
                EXPECT_FALSE(label->property("truncated").toBool());
                EXPECT_LE(label->property("lineCount").toInt(),
                          GetParam() == UserInterfaceIdiom::Phone ? 1 : 2);
            }
        }
    }
    QGuiApplication::setFont(system);
    settle();
}

TEST_P(GuideWindowTest, AScreenThatOpensInAHiddenTabLeavesTheKeyboardAlone) {
    open();
    rows()->forceActiveFocus(Qt::TabFocusReason);
    world.top().tapRow({0, 0});
    world.tabs->setSelectedIndex(world.tabs->selectedIndex() + 1);
    settle();
    world.queues.runAll();
    settle();
    ASSERT_TRUE(quickWindow->activeFocusItem());
    EXPECT_TRUE(quickWindow->activeFocusItem()->isVisible());

    world.tabs->setSelectedIndex(world.tabs->selectedIndex() - 1);
    settle();
    ASSERT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U);
    QTest::keyClick(quickWindow, Qt::Key_Escape);
    settle();
    EXPECT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 1U) << "it has it now";
}

TEST_P(GuideWindowTest, DayHeadersFollowTheirRows) {
    open();
    world.top().tapRow({0, 0});
    world.queues.runAll();
    settle();
    // In the morning nothing of the first day is left.
    world.clock.set(world.begin + 12h);
    world.broadcast->reloadData();
    world.queues.runAll();
    settle();
    QStringList days;
    for (const QQuickItem* header : itemsWith("section")) {
        days << header->property("section").toString();
    }
    EXPECT_FALSE(days.contains(u"středa 31. prosince 2025"_s)) << days.join(u'|').toStdString();
    EXPECT_TRUE(days.contains(u"čtvrtek 1. ledna 2026"_s)) << days.join(u'|').toStdString();
}

TEST_P(GuideWindowTest, AnAlertIsAnsweredByKeyboard) {
    open();
    int pressed = 0;
    world.tabs->presentAlert(
        {u"Alert"_s, u"Text"_s, {{u"OK"_s, AlertAction::Style::Default, [&] { ++pressed; }}}});
    settle();
    QTest::keyClick(quickWindow, Qt::Key_Escape);
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(world.tabs->presentedAlert(), nullptr);

    world.tabs->presentAlert({u"Alert"_s,
                              u"Text"_s,
                              {{u"OK"_s, AlertAction::Style::Default, [&] { ++pressed; }},
                               {u"Cancel"_s, AlertAction::Style::Cancel, nullptr}}});
    settle();
    world.top().tapRow({0, 0});
    world.queues.runAll();
    settle();
    QTest::keyClick(quickWindow, Qt::Key_Tab);
    QTest::keyClick(quickWindow, Qt::Key_Return);
    EXPECT_EQ(pressed, 2) << "whatever opens behind the alert";
    EXPECT_EQ(world.tabs->presentedAlert(), nullptr);
}

TEST_P(GuideWindowTest, FollowsTheSystemsSchemeUnlessForced) {
    open();
    const auto dark = [this] { return quickWindow->color().lightness() < 128; };
    const QPalette system = QGuiApplication::palette();
    QPalette night;
    night.setColor(QPalette::Window, Qt::black);
    night.setColor(QPalette::WindowText, Qt::white);
    QGuiApplication::setPalette(night);
    settle();
    EXPECT_TRUE(dark());
    window->setColorScheme(ColorScheme::Light);
    EXPECT_FALSE(dark());
    window->setColorScheme(std::nullopt);
    EXPECT_TRUE(dark());
    QGuiApplication::setPalette(system);
    settle();
}

TEST_P(GuideWindowTest, TellsOfItsVisibilityAndItsEnd) {
    open();
    quickWindow->hide();
    quickWindow->show();
    quickWindow->close();
    EXPECT_EQ(visibility, QList<bool>({true, false, true, false}));
    EXPECT_TRUE(closed);
    quickWindow->show();
}

TEST_P(GuideWindowTest, SavesPictures) {
    open();
    const QString path = world.folder.filePath(u"picture.png"_s);
    ASSERT_TRUE(window->savePicture(path));
    EXPECT_EQ(QImage(path).size(), quickWindow->size());
    EXPECT_FALSE(window->savePicture(world.folder.filePath(u"no/such/folder.png"_s)));
}

TEST(TranslationsTest, TheDevicesLanguageOrEnglish) {
    struct Case {
        QLocale locale;
        QString text;
    };
    const std::vector<Case> cases{{QLocale(QLocale::Czech, QLocale::Czechia), u"Právě běží"_s},
                                  {QLocale(QLocale::Slovak, QLocale::Slovakia), u"Práve beží"_s},
                                  {QLocale(QLocale::Hungarian, QLocale::Hungary), u"Currently"_s}};
    for (const Case& each : cases) {
        installTranslations(each.locale);
        EXPECT_EQ(Localized::tr("Currently"), each.text);
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, GuideWindowTest,
                         testing::Values(UserInterfaceIdiom::Phone, UserInterfaceIdiom::Tablet),
                         [](const auto& form) {
                             return std::string(form.param == UserInterfaceIdiom::Phone ? "Phone" : "Tablet");
                         });

} // namespace

} // namespace guide::test
