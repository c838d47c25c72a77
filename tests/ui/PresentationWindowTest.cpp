// How screens are drawn beside and over each other, with a search field and a notice.
#include "TableWindow.h"

namespace guide::test {
namespace {

using PresentationWindowTest = TableWindowTest;

TEST_F(PresentationWindowTest, WideWindowsShowTwoScreens) {
    open(lines(3), {1100, 800}, UserInterfaceIdiom::Tablet);
    NavigationController& stack = tabs->selectedNavigationController();
    ASSERT_EQ(lists().size(), 1);
    EXPECT_EQ(lists()[0]->width(), 720);
    const auto left = std::make_shared<Screen>(lines(4));
    stack.push(left);
    settle();
    stack.push(std::make_shared<Screen>(lines(5)));
    settle();
    QList<QQuickItem*> both = lists();
    ASSERT_EQ(both.size(), 2);
    EXPECT_LT(both[0]->mapToScene({}).x() + both[0]->width(), both[1]->mapToScene({}).x() + 1);
    EXPECT_EQ(both[0]->property("count").toInt(), 4);
    EXPECT_EQ(both[1]->property("count").toInt(), 5);

    left->next = std::make_shared<Screen>(lines(6));
    QQuickItem* leftRow = nullptr;
    QMetaObject::invokeMethod(both[0], "itemAtIndex", Q_RETURN_ARG(QQuickItem*, leftRow), Q_ARG(int, 1));
    click(leftRow);
    ASSERT_EQ(lists().size(), 2);
    EXPECT_EQ(stack.viewControllers().size(), 3U) << "the screen at the right was replaced";
    EXPECT_EQ(lists()[1]->property("count").toInt(), 6);
    press(Qt::Key_Escape);
    EXPECT_EQ(stack.viewControllers().size(), 2U);
    quickWindow->resize(1000, 800);
    settle();
    EXPECT_EQ(lists().size(), 1);
}

TEST_F(PresentationWindowTest, APopoverIsNextToItsAnchor) {
    open(lines(40), {1024, 768}, UserInterfaceIdiom::Tablet);
    screen->setLeftBarButtons({{BarButton::Kind::Title, u"Edit"_s, [] {}}});
    screen->setRightBarButtons(
        {{BarButton::Kind::Title, u"Options"_s, [] {}}, {BarButton::Kind::Title, u"Add"_s, [] {}}});
    settle();
    const QRectF inside = QRectF(0, 0, 1024, 768).adjusted(16, 16, -16, -16);
    const struct {
        const char* name;
        Anchor anchor;
        std::function<QQuickItem*()> item;
        bool below;
    } cases[] = {
        {"left button", BarButtonAnchor{true, 0}, [&] { return buttons({u"Edit"_s}).value(0); }, true},
        {"right button", BarButtonAnchor{false, 1}, [&] { return buttons({u"Add"_s}).value(0); }, true},
        {"row at the top", RowId{u"lines"_s, u"1"_s}, [&] { return row(1); }, true},
        {"row at the bottom", RowId{u"lines"_s, u"10"_s}, [&] { return row(10); }, false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        QQuickItem* const item = each.item();
        ASSERT_TRUE(item);
        const QRectF anchor = item->mapRectToScene(item->boundingRect());
        tabs->selectedNavigationController().show(std::make_shared<Screen>(lines(4)), Presentation::Popover,
                                                  each.anchor);
        settle();
        const QQuickItem* const content = itemsWith("presented").constLast();
        const QQuickItem* const panel = content->parentItem()->parentItem()->parentItem();
        const QRectF popover = panel->mapRectToScene(panel->boundingRect());
        EXPECT_TRUE(inside.contains(popover));
        EXPECT_GE(popover.height(), 320);
        EXPECT_EQ(each.below ? popover.top() - anchor.bottom() : anchor.top() - popover.bottom(), 8);
        EXPECT_TRUE(popover.left() <= anchor.center().x() && anchor.center().x() <= popover.right());
        press(Qt::Key_Escape);
    }
}

TEST_F(PresentationWindowTest, ASheetTakesTheKeyboardAndEscapeClosesIt) {
    open(lines(3));
    NavigationController& stack = tabs->selectedNavigationController();
    focus();
    const auto sheet = std::make_shared<Screen>(lines(4));
    stack.show(sheet, Presentation::Sheet);
    settle();
    ASSERT_EQ(lists().size(), 2);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(sheet->sent.size(), 1U);
    EXPECT_TRUE(screen->sent.empty());
    press(Qt::Key_Escape);
    EXPECT_EQ(stack.presentedStack(), nullptr);
    EXPECT_EQ(lists().size(), 1);
    EXPECT_TRUE(rows()->hasActiveFocus());
}

TEST_F(PresentationWindowTest, SearchFieldAndNotice) {
    open(lines(3));
    screen->setSearchField(SearchField{u"Find"_s});
    settle();
    QQuickItem* field = itemsWith("echoMode").value(0);
    ASSERT_TRUE(field);
    click(field);
    QTest::keyClick(quickWindow, Qt::Key_A);
    EXPECT_EQ(screen->searched, QStringList{u"a"_s});
    press(Qt::Key_Escape);
    EXPECT_EQ(screen->searched.value(1), QString());
    EXPECT_EQ(field->property("text"), QString());

    int undone = 0;
    tabs->presentNotice({u"Removed"_s, u"Undo"_s, [&] { ++undone; }});
    settle();
    click(buttons({u"Undo"_s}).value(0));
    EXPECT_EQ(undone, 1);
    EXPECT_TRUE(buttons({u"Undo"_s}).isEmpty());
}

} // namespace
} // namespace guide::test
