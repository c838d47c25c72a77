#include "ui/GuideWindow.h"

#include "GalleryShows.h"
#include "WindowTest.h"
#include "screens/Localized.h"
#include "screens/kit/TableViewController.h"
#include "screens/root/RootViewController.h"
#include "text/display/Translations.h"

#include <QPalette>
#include <QTranslator>

namespace guide::test {
namespace {

class GuideWindowTest : public WindowTest, public testing::WithParamInterface<UserInterfaceIdiom> {
  protected:
    void open() {
        fillWithEvening(world);
        if (GetParam() == UserInterfaceIdiom::Tablet) {
            world.tabs->setSelectedIndex(currentlyTabIndex(GetParam()));
        }
        openWindow(*world.tabs, {.form = GetParam(),
                                 .motion = false,
                                 .visibilityChanged = [this](bool visible) { visibility << visible; },
                                 .closed = [this] { closed = true; }});
        proceed();
    }
    /// Runs what is pending and draws.
    void proceed() {
        world.queues.runAll();
        settle();
    }
    TableViewController& top() const { return dynamic_cast<TableViewController&>(world.top()); }
    void tapFirstRow() const { top().sendRowEvent(top().table().rowAt(0).id, Tapped{}); }
    void openFirstRow() {
        tapFirstRow();
        proceed();
    }
    QString titleOf(const QQuickItem* row) const {
        const Row& shown = top().table().rowAt(row->property("index").toInt());
        const auto* show = std::get_if<ShowRow>(&shown.content);
        return show ? show->title : std::get<ChannelRow>(shown.content).title;
    }
    QStringList headings() const {
        QStringList texts;
        for (const QQuickItem* header : itemsWith("sideMargin")) {
            texts << header->property("text").toString();
        }
        return texts;
    }

    ScreenWorld world{GetParam()};
    QList<bool> visibility;
    bool closed = false;
};

TEST_P(GuideWindowTest, DrawsTheRowsAndTheTabs) {
    open();
    ASSERT_TRUE(rows());
    EXPECT_EQ(rows()->property("count").toInt(), top().table().rowCount());
    EXPECT_GT(top().table().rowCount(), 20);
    EXPECT_LE(rows()->width(), 720);
    EXPECT_EQ(itemsWith("badge").size(), GetParam() == UserInterfaceIdiom::Tablet ? 6 : 5);
    for (QQuickItem* tab : itemsWith("badge")) {
        EXPECT_GE(tab->height(), 44);
        EXPECT_GE(tab->width(), 44);
    }
    EXPECT_EQ(visibility, QList<bool>{true});
}

TEST_P(GuideWindowTest, APullAtTheTopRefreshesAChannel) {
    open();
    openFirstRow();
    ASSERT_TRUE(world.top().hasRefreshControl());
    ASSERT_FALSE(world.top().refreshing());
    QStringList checks;
    for (const bool byFinger : {false, true}) {
        SCOPED_TRACE(byFinger ? "finger" : "mouse");
        const QPoint top = rows()->mapToScene(QPointF(rows()->width() / 2, 60)).toPoint();
        drag(top, {0, 90}, byFinger);
        EXPECT_FALSE(world.top().refreshing()) << "not far enough";
        drag(top, {-180, 160}, byFinger);
        EXPECT_FALSE(world.top().refreshing()) << "sideways";
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

TEST_P(GuideWindowTest, ASwipeUncoversTheActionsOnAShow) {
    open();
    QStringList done;
    world.app.swipeActions = [&done](const TVEntry& entry) {
        return std::vector<RowAction>{
            {u"⏰"_s, u"Set alarm"_s, ColorRole::Tint, [&done, title = *entry.title()] { done << title; }},
            {u"⭐"_s, u"Favourite"_s, ColorRole::Favourite, [&done] { done << u"favourite"_s; }}};
    };
    const auto offered = [this] { return buttons({u"⏰"_s, u"⭐"_s}); };
    for (const bool byFinger : {false, true}) {
        SCOPED_TRACE(byFinger ? "finger" : "mouse");
        drag(middle(row(0)), {-200, 0}, byFinger);
        EXPECT_TRUE(offered().isEmpty()) << "the channel's row has no actions";
        drag(middle(row(1)), {-200, 40}, byFinger);
        ASSERT_EQ(offered().size(), 2);
        EXPECT_EQ(rows()->property("contentY").toDouble(), rows()->property("originY").toDouble());
        drag(middle(row(2)), {-200, 0}, byFinger);
        EXPECT_EQ(offered().size(), 2) << "one row at a time";
        const QString title = titleOf(row(2));
        const auto atEdge = [](const QQuickItem* one, const QQuickItem* other) {
            return one->mapToScene({}).x() < other->mapToScene({}).x();
        };
        const QList<QQuickItem*> both = offered();
        drag(middle(*std::ranges::max_element(both, atEdge)), {}, byFinger);
        EXPECT_EQ(done, QStringList{title}) << "the first one is at the edge";
        EXPECT_TRUE(offered().isEmpty());
        done.clear();
    }

    // The menu key opens the same actions as a menu.
    focus();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Menu);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(done, QStringList{u"favourite"_s});
    EXPECT_TRUE(rows()->hasActiveFocus());
}

TEST_P(GuideWindowTest, AScreenThatOpensInAHiddenTabDoesNotTakeTheFocus) {
    open();
    focus();
    tapFirstRow();
    world.tabs->setSelectedIndex(world.tabs->selectedIndex() + 1);
    settle();
    proceed();
    ASSERT_TRUE(quickWindow->activeFocusItem());
    EXPECT_TRUE(quickWindow->activeFocusItem()->isVisible());

    world.tabs->setSelectedIndex(world.tabs->selectedIndex() - 1);
    settle();
    ASSERT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U);
    press(Qt::Key_Escape);
    EXPECT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 1U)
        << "it has the focus now";
}

TEST_P(GuideWindowTest, DayHeadersFollowTheirRows) {
    open();
    openFirstRow();
    // The next morning all shows of the first day are over.
    world.clock.set(world.begin + 12h);
    world.broadcast->reloadData();
    proceed();
    // Rows outside the window are made when there is time.
    const auto isNextDay = [this] {
        settle();
        const QStringList days = headings();
        return !days.contains(u"středa 31. prosince 2025"_s) && days.contains(u"čtvrtek 1. ledna 2026"_s);
    };
    EXPECT_TRUE(QTest::qWaitFor(isNextDay, 10'000)) << headings().join(u'|').toStdString();
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
    openFirstRow();
    QTest::keyClick(quickWindow, Qt::Key_Tab);
    QTest::keyClick(quickWindow, Qt::Key_Return);
    EXPECT_EQ(pressed, 2) << "even when a screen opens behind the alert";
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

TEST_P(GuideWindowTest, ReportsItsVisibilityAndThatItIsClosed) {
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
    const struct {
        QLocale locale;
        QString text;
        QString plural;
    } cases[] = {{QLocale(QLocale::Czech, QLocale::Czechia), u"Právě běží"_s, u"Vybrat 5 kanálů?"_s},
                 {QLocale(QLocale::Slovak, QLocale::Slovakia), u"Práve beží"_s, u"Vybrať 5 kanálov?"_s},
                 {QLocale(QLocale::English, QLocale::Ireland), u"Currently"_s, u"Select 5 channels?"_s},
                 {QLocale(QLocale::Hungarian, QLocale::Hungary), u"Currently"_s, u"Select 5 channels?"_s}};
    for (const auto& each : cases) {
        installTranslations(each.locale);
        EXPECT_EQ(Localized::tr("Currently"), each.text);
        EXPECT_EQ(Localized::tr("Select %n channel(s)?", nullptr, 5), each.plural);
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
