// What keys and the pointer do in the whole window and in lists.
#include "GalleryShows.h"
#include "WindowTest.h"
#include "screens/kit/TableViewController.h"
#include "ui/model/KeyTable.h"

#include <QSet>

namespace guide::test {
namespace {

class KeysWindowTest : public WindowTest {
  protected:
    static constexpr int kSearch = 2;

    KeysWindowTest() {
        fillWithEvening(world);
        openWindow(*world.tabs, {.motion = false, .closed = [this] { closed = true; }});
        proceed();
    }
    void proceed() {
        world.queues.runAll();
        settle();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        press(key, modifiers);
        proceed();
    }
    void type(const QString& text) {
        for (const QChar letter : text) {
            QTest::keyClick(quickWindow, letter.toLatin1());
        }
        proceed();
    }
    /// The search field with the keyboard; null when another item has it.
    QQuickItem* field() const {
        QQuickItem* item = quickWindow->activeFocusItem();
        return item && item->metaObject()->indexOfProperty("cursorPosition") >= 0 ? item : nullptr;
    }
    TableViewController& top() const { return dynamic_cast<TableViewController&>(world.top()); }
    int current() const { return rows()->property("currentIndex").toInt(); }

    ScreenWorld world;
    bool closed = false;
};

TEST_F(KeysWindowTest, EveryKeyOfTheWindowDoesWhatTheListOfKeysSays) {
    key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(world.tabs->selectedIndex(), 1);
    key(Qt::Key_6, Qt::ControlModifier);
    EXPECT_EQ(world.tabs->selectedIndex(), 1) << "there are five tabs";
    EXPECT_FALSE(field());
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(world.tabs->selectedIndex(), kSearch);
    ASSERT_TRUE(field());
    type(u"why?"_s);
    EXPECT_EQ(field()->property("text"), u"why?"_s) << "a question mark is text here";
    key(Qt::Key_Escape);
    EXPECT_EQ(field()->property("text"), QString());

    key(Qt::Key_1, Qt::ControlModifier);
    focus(0);
    key(Qt::Key_Return);
    ASSERT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U);
    ASSERT_FALSE(top().refreshing());
    key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(top().refreshing());
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 1U);
    key(Qt::Key_Return);
    ASSERT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 2U);
    QTest::mouseClick(quickWindow, Qt::BackButton, {}, {200, 300});
    proceed();
    EXPECT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 1U);

    key(Qt::Key_Question);
    QSet<QString> shown;
    for (const QQuickItem* item : itemsWith("lineCount")) {
        shown << item->property("text").toString();
    }
    for (const KeyHelpValue& line : KeyTable::help()) {
        EXPECT_TRUE(shown.contains(line.text) && shown.contains(line.keys)) << line.text.toStdString();
    }
    key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(world.tabs->selectedIndex(), 0) << "the list of keys is in front";
    key(Qt::Key_Escape);
    EXPECT_TRUE(rows()->hasActiveFocus());
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(closed);
}

TEST_F(KeysWindowTest, SearchIsUsedByKeysAlone) {
    key(Qt::Key_3, Qt::ControlModifier);
    ASSERT_TRUE(field()) << "the field has the keyboard at once";
    type(u"a"_s);
    ASSERT_GT(top().table().rowCount(), 3);
    scrollTo(200);
    type(u"e"_s);
    EXPECT_EQ(rows()->property("contentY"), rows()->property("originY")) << "new results start at the top";
    key(Qt::Key_Backspace);
    const auto marked = [this] {
        return !std::ranges::all_of(top().table().sections().front().rows, [](const Row& row) {
            return std::get<ShowRow>(row.content).titleMatches.empty();
        });
    };
    EXPECT_TRUE(marked());
    key(Qt::Key_Return);
    EXPECT_FALSE(field());
    EXPECT_EQ(current(), 0);
    key(Qt::Key_Down);
    EXPECT_EQ(current(), 1);
    key(Qt::Key_Up);
    key(Qt::Key_Up);
    ASSERT_TRUE(field()) << "up from the first row";
    EXPECT_EQ(field()->property("text"), u"a"_s);
    key(Qt::Key_2, Qt::ControlModifier);
    key(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(field()->property("text"), u"a"_s) << "the text stays when the tab is left";
}

TEST_F(KeysWindowTest, ATouchOnTheTabDoesNotOpenTheKeyboard) {
    QPointingDevice* const screen = QTest::createTouchDevice();
    const QPoint tab = middle(itemsWith("badge").at(kSearch));
    QTest::touchEvent(quickWindow, screen).press(0, tab, quickWindow);
    QTest::touchEvent(quickWindow, screen).release(0, tab, quickWindow);
    proceed();
    ASSERT_EQ(world.tabs->selectedIndex(), kSearch);
    EXPECT_FALSE(field());
    click(itemsWith("badge").at(0));
    click(itemsWith("badge").at(kSearch));
    EXPECT_TRUE(field()) << "but a click does";
}

TEST_F(KeysWindowTest, TypingJumpsToAChannel) {
    const auto name = [this] {
        const auto* channel = std::get_if<ChannelRow>(&top().table().rowAt(std::max(0, current())).content);
        return channel ? channel->title : QString();
    };
    focus();
    type(u"tara"_s);
    EXPECT_EQ(name(), u"Țara 24"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return rows()->property("typed") == QString(); }));
    type(u"duna c"_s);
    EXPECT_EQ(name(), u"Duna Csillag"_s);
    EXPECT_EQ(world.tabs->selectedNavigationController().viewControllers().size(), 1U)
        << "a space in a name does not open the row";
}

TEST_F(KeysWindowTest, AnIconShowsItsNameUnderThePointer) {
    key(Qt::Key_3, Qt::ControlModifier);
    const QQuickItem* info = buttons({u"Info"_s}).value(0);
    ASSERT_TRUE(info);
    QTest::mouseMove(quickWindow, middle(info));
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return std::ranges::any_of(itemsWith("lineCount"), [](const QQuickItem* item) {
            return item->property("text") == u"Info"_s;
        });
    }));
}

} // namespace
} // namespace guide::test
