// The screens that are not tables: the player, pictures and pages of the web.
#include "TableWindow.h"
#include "screens/kit/PlayerContent.h"
#include "screens/pictures/ScreenShotViewController.h"
#include "screens/web/WebViewController.h"

namespace guide::test {
namespace {

class FakePlayer final : public ViewController, private PlayerContent {
  public:
    Content& content() override { return *this; }
    void show(const PlayerState& state) { setState(state); }

    QStringList done;
    QObject* output = nullptr;

  private:
    void togglePaused() override { done << u"pause"_s; }
    void setVolume(double volume) override { done << u"volume %1"_s.arg(volume, 0, 'f', 2); }
    void toggleMuted() override { done << u"mute"_s; }
    void setFullScreen(bool whole) override {
        PlayerState changed = state();
        changed.fullScreen = whole;
        setState(changed);
    }
    void changeChannel(int by) override { done << u"channel %1"_s.arg(by); }
    void leave() override { done << u"leave"_s; }
    void setVideoOutput(QObject* given) override { output = given; }
};

struct KeptPictures final : ShowPictures {
    void asyncLoadOfShowImageAtURL(const QUrl&, MainBlock<QImage>) override {}
    void imageAtURL(const QUrl& url, const QSizeF& size, MainBlock<QImage> block) override {
        asked << url.fileName();
        room = size;
        blocks.push_back(std::move(block));
    }
    void loadDetailsOfShows(ShowItems, SetShowImage, MainBlock<ShowItems, std::vector<QImage>>) override {}

    QStringList asked;
    QSizeF room;
    std::vector<MainBlock<QImage>> blocks;
};

class CoverWindowTest : public TableWindowTest {
  protected:
    void play() {
        open(lines(3));
        player = std::make_shared<FakePlayer>();
        player->show({.channel = u"Jedna"_s,
                      .title = u"Zprávy"_s,
                      .times = u"20:00 – 21:00"_s,
                      .progress = 0.5,
                      .waiting = false,
                      .volume = 0.5,
                      .hasOtherChannels = true});
        tabs->presentCover(player);
        settle();
    }
    QQuickItem* button(const QString& text) const { return buttons({text}).value(0); }

    std::shared_ptr<FakePlayer> player;
};

TEST_F(CoverWindowTest, ThePlayerHearsKeysAndButtons) {
    play();
    EXPECT_TRUE(player->output);
    const std::pair<Qt::Key, QString> keys[] = {
        {Qt::Key_Space, u"pause"_s},       {Qt::Key_M, u"mute"_s},
        {Qt::Key_Up, u"channel -1"_s},     {Qt::Key_Down, u"channel 1"_s},
        {Qt::Key_PageUp, u"channel -1"_s}, {Qt::Key_PageDown, u"channel 1"_s},
        {Qt::Key_Left, u"volume 0.45"_s},  {Qt::Key_Right, u"volume 0.55"_s},
        {Qt::Key_Escape, u"leave"_s},
    };
    for (const auto& [key, result] : keys) {
        player->done.clear();
        press(key);
        EXPECT_EQ(player->done, QStringList{result}) << key;
    }
    for (const auto& [text, result] :
         {std::pair(u"Pause"_s, u"pause"_s), std::pair(u"Next channel"_s, u"channel 1"_s),
          std::pair(u"Previous channel"_s, u"channel -1"_s), std::pair(u"Sound off"_s, u"mute"_s),
          std::pair(u"Back"_s, u"leave"_s)}) {
        player->done.clear();
        ASSERT_TRUE(button(text)) << text.toStdString();
        click(button(text));
        EXPECT_EQ(player->done, QStringList{result}) << text.toStdString();
    }
}

TEST_F(CoverWindowTest, ThePlayerTakesTheWholeScreenAndGivesItBack) {
    play();
    press(Qt::Key_F);
    EXPECT_EQ(quickWindow->visibility(), QWindow::FullScreen);
    press(Qt::Key_Escape);
    EXPECT_EQ(quickWindow->visibility(), QWindow::Windowed);
    EXPECT_TRUE(player->done.isEmpty()) << "the first Escape only leaves the full screen";
    QTest::mouseDClick(quickWindow, Qt::LeftButton, {}, QPoint(195, 400));
    settle();
    EXPECT_EQ(quickWindow->visibility(), QWindow::FullScreen);
    tabs->dismissCover();
    settle();
    EXPECT_EQ(quickWindow->visibility(), QWindow::Windowed);
    EXPECT_FALSE(player->output);
    EXPECT_TRUE(rows()->hasActiveFocus()) << "the list has the keyboard again";
}

TEST_F(CoverWindowTest, AnAlertOverThePlayerTakesTheKeyboard) {
    play();
    tabs->presentAlert({u"Alert"_s, u"It does not play"_s, {{u"OK"_s}}});
    settle();
    press(Qt::Key_Space);
    EXPECT_TRUE(player->done.isEmpty());
    press(Qt::Key_Escape);
    EXPECT_FALSE(tabs->presentedAlert());
    player->done.clear();
    press(Qt::Key_Space);
    EXPECT_EQ(player->done, QStringList{u"pause"_s});
}

TEST_F(CoverWindowTest, PicturesAreLoadedWhenTheirPageIsTurnedTo) {
    open(lines(3));
    KeptPictures kept;
    bool left = false;
    const auto shown = std::make_shared<ScreenShotViewController>(
        kept,
        std::vector<QUrl>{QUrl(u"http://x.example/a"_s), QUrl(u"http://x.example/b"_s),
                          QUrl(u"http://x.example/c"_s)},
        [&left] { left = true; });
    tabs->presentCover(shown);
    settle();
    EXPECT_EQ(kept.asked, QStringList{u"a"_s});
    EXPECT_EQ(kept.room, QSizeF(390, 844));
    const auto answer = [&](const QImage& image) {
        kept.blocks.back().post(queues.mainQueue(), image);
        queues.runAll();
        settle();
    };
    QImage red(300, 200, QImage::Format_RGB32);
    red.fill(Qt::red);
    answer(red);
    const auto pixel = [&](int x, int y) {
        return quickWindow->grabWindow().pixelColor(QPoint(x, y) * quickWindow->devicePixelRatio());
    };
    EXPECT_EQ(pixel(195, 422), QColor(Qt::red));
    EXPECT_EQ(pixel(195, 200), QColor(Qt::black)) << "as wide as the window, in its middle";
    press(Qt::Key_Plus);
    press(Qt::Key_Plus);
    press(Qt::Key_Plus);
    EXPECT_EQ(pixel(195, 200), QColor(Qt::red)) << "zoomed";

    press(Qt::Key_Right);
    EXPECT_EQ(kept.asked, QStringList({u"a"_s, u"b"_s}));
    answer({});
    press(Qt::Key_Left);
    EXPECT_EQ(kept.asked.size(), 2) << "the first picture is there";
    press(Qt::Key_Right);
    EXPECT_EQ(kept.asked, QStringList({u"a"_s, u"b"_s, u"b"_s})) << "a missing one is tried again";
    press(Qt::Key_End);
    EXPECT_EQ(kept.asked.back(), u"c"_s);
    press(Qt::Key_Escape);
    EXPECT_TRUE(left);
    tabs->dismissCover();
}

TEST_F(CoverWindowTest, AWebPageLoadsOnlyPagesOfTheWeb) {
    qputenv("QML_IMPORT_PATH", QUELLIN_TEST_DATA "/ui/modules");
    open(lines(3));
    QStringList opened;
    NetworkActivity activity(queues, [](bool) {});
    tabs->selectedNavigationController().push(std::make_shared<WebViewController>(
        QUrl(u"https://x.example/1"_s), u"IMDb"_s,
        WebViewController::Surroundings{u"Agent"_s, activity,
                                        [&](const QUrl& url) { opened << url.toString(); }}));
    settle();
    QQuickItem* const view = itemsWith("httpUserAgent").value(0);
    ASSERT_TRUE(view);
    EXPECT_EQ(view->property("url").toUrl(), QUrl(u"https://x.example/1"_s));
    EXPECT_EQ(view->property("httpUserAgent").toString(), u"Agent"_s);
    const auto follow = [&](const QString& link) {
        QMetaObject::invokeMethod(view, "follow", Q_ARG(QVariant, link));
        settle();
        return view->property("stops").toInt();
    };
    EXPECT_EQ(follow(u"http://y.example/2"_s), 0);
    EXPECT_EQ(follow(u"file:///etc/passwd"_s), 1);
    EXPECT_EQ(follow(u"javascript:alert(1)"_s), 2);
    // The other one closes the page.
    EXPECT_EQ(buttons({u"Back"_s}).size(), 1);
    view->setProperty("canGoBack", true);
    QMetaObject::invokeMethod(view, "finish");
    settle();
    ASSERT_EQ(buttons({u"Back"_s}).size(), 2);
    click(buttons({u"Back"_s}).constLast());
    EXPECT_EQ(view->property("backs").toInt(), 1);
    qunsetenv("QML_IMPORT_PATH");
}

} // namespace
} // namespace guide::test
