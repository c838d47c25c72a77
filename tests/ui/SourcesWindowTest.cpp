// Sources are added as their users do it: by clicks, keys and files dropped on the window.
#include "WindowTest.h"
#include "screens/ScreenWorld.h"
#include "screens/WorldSources.h"
#include "screens/sources/AddSourceViewController.h"

#include <QDropEvent>
#include <QMimeData>

namespace guide::test {
namespace {

class SourcesWindowTest : public WindowTest {
  protected:
    SourcesWindowTest() {
        world.ownSources = &sources;
        world.addChannel(u"Jedna"_s, false);
        world.start();
        world.tabs->disableTabs();
        openWindow(*world.tabs, {.motion = false, .dropped = [this](const QString& input) {
                                     addSource(world.environment, *world.tabs, input);
                                 }});
        proceed();
    }
    void proceed() {
        world.queues.runAll();
        settle();
    }
    void type(const QString& text) {
        for (const QChar character : text) {
            QTest::keyClick(quickWindow, character.toLatin1());
        }
        proceed();
    }
    void push(const QString& button) {
        ASSERT_FALSE(buttons({button}).isEmpty()) << button.toStdString();
        click(buttons({button}).constLast());
        proceed();
    }
    int indexOf(const QString& title) const {
        const Table& table = dynamic_cast<TableViewController&>(world.top()).table();
        for (int index = 0; index < table.rowCount(); ++index) {
            const auto* channel = std::get_if<ChannelRow>(&table.rowAt(index).content);
            const auto* text = std::get_if<TextRow>(&table.rowAt(index).content);
            const auto* button = std::get_if<ButtonRow>(&table.rowAt(index).content);
            if ((channel && channel->title == title) || (text && text->title == title) ||
                (button && button->title == title)) {
                return index;
            }
        }
        ADD_FAILURE() << title.toStdString();
        return 0;
    }
    void answer() {
        sources.answer(feedProposal({previewChannel(u"Nova"_s), previewChannel(u"Alfa"_s),
                                     previewChannel(u"Beta"_s), previewChannel(u"Gama"_s)},
                                    world.clock.now()));
        proceed();
    }

    ScreenWorld world{UserInterfaceIdiom::Phone};
    WorldSources sources{world.queues.mainQueue()};
};

TEST_F(SourcesWindowTest, FromAnAddressToTheChosenChannels) {
    push(u"Add channels"_s);
    // The field has the keyboard.
    type(u"feeds.example/x"_s);
    press(Qt::Key_Return);
    proceed();
    EXPECT_EQ(sources.done, QStringList{u"ask feeds.example/x"_s});
    answer();
    const int alfa = indexOf(u"Alfa"_s);
    scrollTo(rows()->property("originY").toDouble() + rows()->property("contentHeight").toDouble() -
             rows()->height());
    ASSERT_TRUE(row(alfa));
    click(row(alfa));
    QTest::mouseClick(quickWindow, Qt::LeftButton, Qt::ShiftModifier, middle(row(alfa + 1)));
    settle();
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"nov"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    push(u"Done"_s);
    EXPECT_EQ(sources.done.last(), u"add Television: alfa.cz beta.cz nova.cz"_s);
}

TEST_F(SourcesWindowTest, FromAProgramToItsChannelsByFourClicks) {
    sources.grabbers = {u"/usr/bin/tv_grab_own"_s};
    push(u"Add channels"_s);
    ASSERT_TRUE(row(indexOf(u"tv_grab_own"_s))) << "it is in sight";
    click(row(indexOf(u"tv_grab_own"_s)));
    ASSERT_EQ(world.app.alerts.size(), 1U);
    EXPECT_TRUE(world.app.alerts.back().message.contains(u"/usr/bin/tv_grab_own"_s));
    EXPECT_TRUE(sources.done.isEmpty());
    world.tabs->presentAlert(world.app.alerts.back());
    settle();
    push(u"Run"_s);
    EXPECT_EQ(sources.done, QStringList{u"ask /usr/bin/tv_grab_own"_s});
    answer();
    ASSERT_TRUE(row(indexOf(u"Add all 4 channel(s)"_s)));
    click(row(indexOf(u"Add all 4 channel(s)"_s)));
    EXPECT_EQ(sources.done.last(), u"add Television: alfa.cz beta.cz gama.cz nova.cz"_s);
}

TEST_F(SourcesWindowTest, AFileIsDroppedOnTheWindow) {
    const struct {
        QList<QUrl> urls;
        QString text;
        QString asked;
    } cases[] = {{{QUrl::fromLocalFile(u"/home/x/můj guide.xml"_s)}, {}, u"ask /home/x/můj guide.xml"_s},
                 {{QUrl(u"https://feeds.example/a%20b.xml"_s)}, {}, u"ask https://feeds.example/a%20b.xml"_s},
                 {{}, u" https://feeds.example/list.m3u\n"_s, u"ask https://feeds.example/list.m3u"_s}};
    for (const auto& each : cases) {
        QMimeData data;
        data.setUrls(each.urls);
        if (!each.text.isEmpty()) {
            data.setText(each.text);
        }
        const QPoint at(200, 300);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(quickWindow, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(quickWindow, &drop);
        proceed();
        EXPECT_EQ(sources.done.value(0), each.asked);
        sources.done.clear();
    }
}

} // namespace
} // namespace guide::test
