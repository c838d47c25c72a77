// How a drawn table behaves while its rows change, and which events it reports.
#include "TableWindow.h"

#include <QAccessible>

#include <atomic>

namespace guide::test {
namespace {

TEST_F(TableWindowTest, RowsStayWhereTheyAreUnderTheFinger) {
    open(lines(40));
    std::vector<Section> sections = screen->table().sections();
    const auto removeFirst = [&] {
        sections[0].rows.erase(sections[0].rows.begin());
        screen->table().setSections(sections);
    };
    const auto count = [this] { return static_cast<std::size_t>(rows()->property("count").toInt()); };
    const struct {
        const char* name;
        bool byFinger;
        QPoint by;
    } cases[] = {{"mouse button", false, {}},
                 {"scroll by mouse", false, {0, -200}},
                 {"swipe by mouse", false, {-200, 0}},
                 {"scroll by finger", true, {0, -200}},
                 {"swipe by finger", true, {-200, 0}}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const std::size_t before = count();
        drag(middle(row(6)), each.by, each.byFinger, [&] {
            removeFirst();
            EXPECT_EQ(count(), before);
        });
        if (each.by.x() != 0) {
            EXPECT_EQ(count(), before) << "the swipe is open";
            click(row(6));
        }
        ASSERT_TRUE(QTest::qWaitFor([&] { return count() == sections[0].rows.size(); }));
        rows()->setProperty("contentY", rows()->property("originY"));
        settle();
    }
    removeFirst();
    EXPECT_EQ(count(), sections[0].rows.size()) << "at once when nothing is touched";
}

TEST_F(TableWindowTest, ASwipeStaysOpenWhileOtherRowsChange) {
    open(lines(12));
    const auto open = [this] { return buttons({u"Remove"_s}).size() == 1; };
    drag(middle(row(4)), {-200, 0}, true);
    ASSERT_TRUE(open());
    const double place = buttons({u"Remove"_s}).constFirst()->mapToScene({}).y();
    screen->setText(5, TextRow{u"Other"_s});
    settle();
    EXPECT_TRUE(open()) << "another row was updated";
    std::vector<Section> fewer = screen->table().sections();
    fewer[0].rows.erase(fewer[0].rows.begin() + 7);
    replaceRows(fewer);
    ASSERT_TRUE(open()) << "another row is to be removed";
    EXPECT_EQ(buttons({u"Remove"_s}).constFirst()->mapToScene({}).y(), place);
    screen->setText(4, TextRow{u"Changed"_s});
    settle();
    EXPECT_FALSE(open()) << "the actions may no longer apply to the row";
    EXPECT_EQ(rows()->property("count"), 11);

    ShowRow show{.startTime = u"20:00"_s, .title = u"Show"_s};
    screen->setText(5, show);
    settle();
    drag(middle(row(5)), {-200, 0}, true);
    ASSERT_TRUE(open());
    show.running = true;
    show.progress = 0.1;
    screen->setText(5, show);
    settle();
    EXPECT_TRUE(open()) << "only time has passed";
    show.favourite = true;
    screen->setText(5, show);
    settle();
    EXPECT_FALSE(open());
}

TEST_F(TableWindowTest, WhatIsBeingTypedSurvivesUpdates) {
    std::vector<Section> sections = lines(6);
    sections[0].rows[3].content = InputRow{.title = u"Name"_s, .text = u"old"_s};
    open(sections);
    QQuickItem* field = itemsWith("echoMode").value(0);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->property("text"), u"old"_s);
    click(field);
    ASSERT_TRUE(field->hasActiveFocus());
    QTest::keyClick(quickWindow, Qt::Key_End);
    QTest::keyClick(quickWindow, Qt::Key_X);
    EXPECT_EQ(screen->of<TextEdited>().at(0).text, u"oldx"_s);
    EXPECT_FALSE(screen->of<TextEdited>().at(0).finished);

    screen->setText(3, InputRow{.title = u"Name"_s, .text = u"from the screen"_s, .error = u"Too short"_s});
    std::vector<Section> moved = screen->table().sections();
    moved[0].rows.erase(moved[0].rows.begin());
    replaceRows(moved);
    EXPECT_EQ(field->property("text"), u"oldx"_s);
    EXPECT_TRUE(field->hasActiveFocus());
    // The row is kept even while it is not visible.
    scrollTo(10'000);
    EXPECT_TRUE(field->hasActiveFocus());
    EXPECT_EQ(field->property("text"), u"oldx"_s);

    QTest::keyClick(quickWindow, Qt::Key_Return);
    EXPECT_TRUE(screen->of<TextEdited>().back().finished);
    EXPECT_EQ(screen->of<TextEdited>().back().text, u"oldx"_s);
    press(Qt::Key_Escape);
    screen->setText(2, InputRow{.title = u"Name"_s, .text = u"accepted"_s});
    settle();
    EXPECT_EQ(field->property("text"), u"accepted"_s);
}

TEST_F(TableWindowTest, APasswordIsShownByEveryMeansAndHiddenInTheNextRow) {
    std::vector<Section> sections = lines(60);
    const InputRow password{.kind = InputRow::Kind::Password, .title = u"Password"_s, .text = u"moon"_s};
    sections[0].rows[0].content = password;
    sections[0].rows[59].content = password;
    open(sections);
    const auto isShown = [this] { return itemsWith("echoMode").value(0)->property("echoMode").toInt() == 0; };
    const auto eye = [&] {
        return buttons({isShown() ? u"Hide the password"_s : u"Show the password"_s}).value(0);
    };
    ASSERT_TRUE(eye());
    bool expected = false;
    const auto toggles = [&](const char* by) {
        expected = !expected;
        settle();
        EXPECT_EQ(isShown(), expected) << by;
        EXPECT_TRUE(eye()) << by;
    };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        eye()->forceActiveFocus(Qt::TabFocusReason);
        press(key);
        toggles(QTest::toString(key));
    }
    click(eye());
    toggles("pointer");
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(eye());
    ASSERT_TRUE(accessible && accessible->actionInterface());
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    toggles("screen reader");

    focus();
    for (const bool toEnd : {true, false}) {
        ASSERT_TRUE(isShown());
        scrollTo(toEnd ? rows()->property("contentHeight").toDouble() - rows()->height() : 0);
        ASSERT_TRUE(eye());
        EXPECT_FALSE(isShown());
        click(eye());
    }
}

TEST_F(TableWindowTest, TheScrollPositionStaysWhenRowsAboveChange) {
    open(lines(60));
    scrollTo(1500);
    const int seen = rowAtTop()->property("index").toInt() + 2;
    const QString name = *screen->table().rowAt(seen).id.name();
    const double offset = offsetOf(seen);
    const auto now = [&] { return screen->table().indexOf({u"lines"_s, name}).value_or(-1); };
    std::vector<Section> sections = screen->table().sections();
    std::vector<Row>& rowsNow = sections[0].rows;
    const struct {
        const char* change;
        std::function<void()> apply;
    } cases[] = {
        {"rows above are removed", [&] { rowsNow.erase(rowsNow.begin(), rowsNow.begin() + 5); }},
        {"rows above are inserted",
         [&] {
             for (int number = 0; number < 9; ++number) {
                 rowsNow.insert(rowsNow.begin(),
                                Row{{u"lines"_s, u"new %1"_s.arg(number)}, TextRow{u"New"_s, u"Row"_s}});
             }
         }},
        {"a row above grows", [&] { std::get<TextRow>(rowsNow[3].content).subtitle = u"More"_s; }},
        {"the row at the top is removed",
         [&] { rowsNow.erase(rowsNow.begin() + rowAtTop()->property("index").toInt()); }},
        {"a row from below moves above",
         [&] { std::rotate(rowsNow.begin(), rowsNow.end() - 1, rowsNow.end()); }},
        {"a section comes first",
         [&] {
             sections.insert(sections.begin(),
                             section(u"first"_s, u"First"_s, {TextRow{u"A"_s}, TextRow{u"B"_s}}));
         }},
    };
    for (const auto& each : cases) {
        each.apply();
        replaceRows(sections);
        ASSERT_TRUE(row(now())) << each.change;
        EXPECT_EQ(offsetOf(now()), offset) << each.change;
        if (sections.size() > 1) {
            break;
        }
    }
}

TEST_F(TableWindowTest, ALongListShowsTheRightRowsAtEveryPosition) {
    open(lines(500));
    for (int y = 0; y < 20'000; y += 350) {
        scrollTo(y);
        const QQuickItem* top = rowAtTop();
        ASSERT_TRUE(top);
        const int index = top->property("index").toInt();
        EXPECT_EQ(top->property("row").value<TextRowValue>().title, u"Row %1"_s.arg(index));
        EXPECT_EQ(rows()->property("contentY").toInt(), y);
    }
    for (int index = 100; index < 120; ++index) {
        QMetaObject::invokeMethod(rows(), "positionViewAtIndex", Q_ARG(int, index), Q_ARG(int, 0));
        settle();
        ASSERT_TRUE(row(index));
        EXPECT_EQ(offsetOf(index), 0) << index;
    }
}

TEST_F(TableWindowTest, ControlsReportWhatTheUserDoes) {
    open({section(u"controls"_s, u"Controls"_s,
                  {SwitchRow{u"Switch"_s}, ChoiceRow{u"Choice"_s, {u"A"_s, u"B"_s, u"C"_s}, 0},
                   TimeRow{u"Time"_s, QTime(22, 30)}, ButtonRow{u"Button"_s},
                   SwitchRow{u"Not available"_s, {}, false, false}})});
    const auto key = [this](int index) {
        focus(index);
        press(Qt::Key_Return);
    };
    click(row(0));
    key(0);
    ASSERT_EQ(screen->of<Toggled>().size(), 2U);
    EXPECT_TRUE(screen->of<Toggled>()[0].on);
    key(1);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_EQ(screen->of<Chosen>().size(), 1U);
    EXPECT_EQ(screen->of<Chosen>()[0].choice, 1);
    key(2);
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    ASSERT_EQ(screen->of<TimePicked>().size(), 1U);
    EXPECT_EQ(screen->of<TimePicked>()[0].time.minute(), 30);
    EXPECT_EQ(std::abs(screen->of<TimePicked>()[0].time.hour() - 22), 1);
    click(row(3));
    EXPECT_EQ(screen->of<Tapped>().size(), 1U);
    click(row(4));
    key(4);
    EXPECT_EQ(screen->sent.size(), 5U) << "nothing from a row that is not available";
    EXPECT_TRUE(rows()->hasActiveFocus());
}

TEST_F(TableWindowTest, RowsAreDeletedAndReorderedInEditMode) {
    std::vector<Section> sections = lines(5);
    for (Row& row : sections[0].rows) {
        row.deletable = row.movable = true;
    }
    open(sections);
    const auto moves = [this] { return screen->of<MovedBefore>(); };
    EXPECT_TRUE(buttons({u"Delete Row 1"_s}).isEmpty());
    screen->table().setEditing(true);
    settle();
    click(buttons({u"Delete Row 1"_s}).value(0));
    ASSERT_EQ(screen->of<Deleted>().size(), 1U);
    EXPECT_EQ(screen->sent[0].row, u"1"_s);

    const QPoint handle(static_cast<int>(row(0)->mapToScene({row(0)->width() - 30, 0}).x()),
                        middle(row(0)).y() + 14);
    const int two = static_cast<int>(row(1)->height() + row(2)->height());
    drag(handle, {0, two + 24}, true);
    ASSERT_EQ(moves().size(), 1U);
    EXPECT_EQ(*moves()[0].next->name(), u"3"_s);

    focus(3);
    press(Qt::Key_Up, Qt::AltModifier);
    press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_EQ(moves().size(), 3U);
    EXPECT_EQ(*moves()[1].next->name(), u"2"_s);
    EXPECT_FALSE(moves()[2].next) << "to the end";
    press(Qt::Key_Delete);
    EXPECT_EQ(screen->of<Deleted>().size(), 2U);

    drag(middle(row(2)), {-200, 0}, true);
    EXPECT_TRUE(buttons({u"Remove"_s}).isEmpty()) << "a row that moves is not swiped in edit mode";
    sections[0].rows[2].movable = false;
    replaceRows(sections);
    drag(middle(row(2)), {-200, 0}, true);
    EXPECT_EQ(buttons({u"Remove"_s}).size(), 1);
}

TEST_F(TableWindowTest, TheKeyboardMovesAndDeletesRowsAtAnyTimeAndSelectsSeveral) {
    std::vector<Section> sections = lines(4);
    for (Row& row : sections[0].rows) {
        row.deletable = row.movable = row.selectable = true;
    }
    open(sections);
    focus(1);
    press(Qt::Key_Up, Qt::AltModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(screen->of<MovedBefore>().size(), 1U);
    EXPECT_EQ(screen->of<Deleted>().size(), 1U);

    press(Qt::Key_Space);
    press(Qt::Key_Space, Qt::ShiftModifier);
    click(row(0));
    QTest::mouseClick(quickWindow, Qt::LeftButton, Qt::ShiftModifier, middle(row(3)));
    settle();
    std::vector<bool> extending;
    for (const Tapped& tap : screen->of<Tapped>()) {
        extending.push_back(tap.extending);
    }
    EXPECT_EQ(extending, (std::vector{false, true, false, true}));
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(screen->allSelected, 1);
}

TEST_F(TableWindowTest, ARowThatIsDraggedToAnEdgeScrollsTheList) {
    std::vector<Section> sections = lines(60);
    for (Row& row : sections[0].rows) {
        row.movable = true;
    }
    open(sections);
    screen->table().setEditing(true);
    settle();
    const auto top = [this] { return rows()->property("contentY").toDouble(); };
    const auto handle = [this](int index) {
        return middle(row(index)) + QPoint(int(rows()->width() / 2) - 30, 0);
    };
    const QPoint second = handle(2);
    drag(second, QPoint(0, int(rows()->height()) - 20), true, [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return top() > 1500; })) << "further than the list keeps its items";
    });
    ASSERT_EQ(screen->of<MovedBefore>().size(), 1U);
    EXPECT_EQ(screen->sent[0].row, u"2"_s);
    EXPECT_GT(screen->of<MovedBefore>()[0].next->name()->toInt(), 30);

    const int lower = rowAtTop()->property("index").toInt() + 4;
    drag(handle(lower), QPoint(0, -400), true, [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return top() <= rows()->property("originY").toDouble(); }));
    });
    ASSERT_EQ(screen->of<MovedBefore>().size(), 2U);
    EXPECT_EQ(*screen->of<MovedBefore>()[1].next->name(), u"0"_s);
}

TEST_F(TableWindowTest, TilesFormLinesAndAreReadInOrder) {
    std::vector<Section> sections = lines(7);
    sections[0].layout = SectionLayout::Tiles;
    open(sections);
    const auto surface = [this](int index) {
        QList<QQuickItem*> found = itemsWith("plainColor", row(index));
        return found.isEmpty() ? QRectF() : found[0]->mapRectToScene(found[0]->boundingRect());
    };
    EXPECT_EQ(surface(0).y(), surface(1).y());
    EXPECT_GT(surface(1).x(), surface(0).right());
    EXPECT_GT(surface(2).y(), surface(0).bottom());
    EXPECT_EQ(surface(2).x(), surface(0).x());
    for (int index = 1; index < 7; ++index) {
        EXPECT_EQ(surface(index).size(), surface(0).size());
    }
    click(row(2));
    focus(0);
    for (const auto& [key, index] :
         {std::pair(Qt::Key_Right, 1), std::pair(Qt::Key_Right, 2), std::pair(Qt::Key_Down, 4),
          std::pair(Qt::Key_Left, 3), std::pair(Qt::Key_Up, 1)}) {
        press(key);
        EXPECT_EQ(rows()->property("currentIndex").toInt(), index);
    }
}

/// Black and white columns, each one pixel wide.
struct Stripes final : PictureProvider {
    QImage picture(const PictureKey&, const QSize& pixels) override {
        QImage image(pixels, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                image.setPixel(x, y, x % 2 == 0 ? 0xff000000 : 0xffffffff);
            }
        }
        return image;
    }
};

// Also run with two pixels per point.
TEST_F(TableWindowTest, PicturesHaveThePixelsOfTheScreen) {
    Stripes stripes;
    provider = &stripes;
    open({section(u"s"_s, {}, {ChannelRow{.title = u"One"_s, .icon = icon(u"x"_s)}})});
    const int scale = qRound(quickWindow->devicePixelRatio());
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QImage drawn = quickWindow->grabWindow();
        const QPoint at = itemsWith("sourceSize").value(0)->mapToScene({0, 18}).toPoint() * scale;
        for (int x = 0; x < 50 * scale; ++x) {
            if (qGray(drawn.pixel(at + QPoint(x, 0))) != (x % 2 == 0 ? 0 : 255)) {
                return false;
            }
        }
        return drawn.width() == 390 * scale;
    }));
}

/// One colour, which can be changed.
struct Paint final : PictureProvider {
    QImage picture(const PictureKey&, const QSize& pixels) override {
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(color.load());
        return image;
    }
    std::atomic<QRgb> color{0xffff0000};
};

TEST_F(TableWindowTest, AReplacedIconIsLoadedAgain) {
    Paint paint;
    provider = &paint;
    open({section(u"s"_s, {}, {ChannelRow{.title = u"One"_s, .icon = icon(u"x"_s)}})});
    const auto shows = [&](QRgb color) {
        return QTest::qWaitFor([&] {
            const QImage drawn = quickWindow->grabWindow();
            const QPointF at = itemsWith("sourceSize").value(0)->mapToScene({25, 18});
            return drawn.pixel((at * quickWindow->devicePixelRatio()).toPoint()) == color;
        });
    };
    EXPECT_TRUE(shows(0xffff0000));
    paint.color = 0xff0000ff;
    window->replacePicture(icon(u"x"_s));
    EXPECT_TRUE(shows(0xff0000ff));
}

} // namespace
} // namespace guide::test
