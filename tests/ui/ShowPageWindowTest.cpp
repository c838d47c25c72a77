#include "TableWindow.h"

namespace guide::test {
namespace {

class ShowPageWindowTest : public TableWindowTest {
  protected:
    QQuickItem* button(const QString& text) const { return buttons({text}).value(0); }
    std::vector<int> pressed() const {
        std::vector<int> places;
        for (const Chosen& each : screen->of<Chosen>()) {
            places.push_back(each.choice);
        }
        return places;
    }
};

TEST_F(ShowPageWindowTest, ActionsArePressedByHandAndByKeys) {
    open(galleryShowPage());
    click(row(0));
    EXPECT_EQ(screen->of<Tapped>().size(), 1U);
    ASSERT_TRUE(button(u"Play"_s));
    click(button(u"Play"_s));
    EXPECT_EQ(pressed(), std::vector{2});
    click(button(u"Copy link"_s));
    EXPECT_EQ(pressed().size(), 1U) << "a button that is not available";

    focus(1);
    press(Qt::Key_Return);
    EXPECT_TRUE(button(u"Favourite"_s)->hasActiveFocus());
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_EQ(pressed(), (std::vector{2, 1}));
    press(Qt::Key_Escape);
    EXPECT_TRUE(rows()->hasActiveFocus());
}

TEST_F(ShowPageWindowTest, AWidePageHasThePictureAndTheActionsOnTheLeft) {
    open(galleryShowPage(), {1000, 768}, UserInterfaceIdiom::Tablet);
    ASSERT_EQ(buttons({u"Play"_s}).size(), 1);
    EXPECT_LT(button(u"Play"_s)->mapRectToScene(button(u"Play"_s)->boundingRect()).right(),
              rows()->mapToScene({0, 0}).x());
    click(button(u"Play"_s));
    EXPECT_EQ(pressed(), std::vector{2});
    focus(0);
    press(Qt::Key_Down);
    EXPECT_EQ(rows()->property("currentIndex").toInt(), 2) << "the actions are not in the list";
    press(Qt::Key_Up);
    EXPECT_EQ(rows()->property("currentIndex").toInt(), 0);

    screen->table().setSections(lines(3));
    settle();
    EXPECT_TRUE(buttons({u"Play"_s}).isEmpty());
}

TEST_F(ShowPageWindowTest, NothingStandsInForAMissingPicture) {
    std::vector<Section> sections = galleryShowPage();
    open(sections);
    const double withPicture = row(0)->height();
    std::get<HeadRow>(sections[0].rows[0].content).picture = {};
    replaceRows(sections);
    EXPECT_NEAR(withPicture - row(0)->height(), row(0)->width() * 9 / 16, 1);
}

} // namespace
} // namespace guide::test
