#include "core/RemoteHostAlert.h"

#include "fakes/ManualQueues.h"
#include "platform/memory/ManualClock.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Presenter final : public AlertPresenter {
  public:
    void presentAlert(const QString& title, const QString& message, Block okPressed) override {
        alerts.emplace_back(title, message);
        press = std::move(okPressed);
    }
    void moviePlayerPlaybackDidFinish() override { ++playersEnded; }

    std::vector<std::pair<QString, QString>> alerts;
    Block press;
    int playersEnded = 0;
};

class RemoteHostAlertTest : public testing::Test {
  protected:
    std::size_t alertsAfterFailure(const TransferError& error = {}) {
        alert->noRemoteHostAlert(error);
        queues.run("main");
        return presenter.alerts.size();
    }

    ManualClock clock;
    ManualQueues queues{clock};
    Presenter presenter;
    std::unique_ptr<RemoteHostAlert> alert =
        std::make_unique<RemoteHostAlert>(clock, queues.mainQueue(), presenter);
};

TEST_F(RemoteHostAlertTest, AlertsAtMostOnceInSixtySeconds) {
    EXPECT_EQ(alertsAfterFailure(), 1u);
    clock.advance(60s);
    EXPECT_EQ(alertsAfterFailure(), 1u);
    clock.advance(1s);
    EXPECT_EQ(alertsAfterFailure(), 1u) << "the first alert is still open";

    clock.advance(100s);
    presenter.press();
    EXPECT_EQ(presenter.playersEnded, 1);
    clock.advance(60s);
    EXPECT_EQ(alertsAfterFailure(), 1u) << "the minute starts when OK is pressed";
    clock.advance(1s);
    EXPECT_EQ(alertsAfterFailure(), 2u);
    presenter.press();

    clock.advance(100s);
    alert->restartSilence();
    clock.advance(60s);
    EXPECT_EQ(alertsAfterFailure(), 2u);

    clock.advance(-24h);
    EXPECT_EQ(alertsAfterFailure(), 3u) << "the clock was set back";
}

TEST_F(RemoteHostAlertTest, EachMissingTextHasADefault) {
    alertsAfterFailure();
    presenter.press();
    clock.advance(2min);
    alertsAfterFailure(
        {.description = u"d"_s, .failureReason = u"No route"_s, .recoverySuggestion = u"Move"_s});
    ASSERT_EQ(presenter.alerts.size(), 2u);
    EXPECT_EQ(presenter.alerts[0], std::pair(u"Unable to establish connection to remote server"_s,
                                             u"Check your Internet connection."_s));
    EXPECT_EQ(presenter.alerts[1], std::pair(u"No route"_s, u"Move"_s));
}

TEST_F(RemoteHostAlertTest, ShowsNothingAfterDestruction) {
    alert->noRemoteHostAlert({});
    alert.reset();
    queues.run("main");
    EXPECT_TRUE(presenter.alerts.empty());
}

} // namespace
} // namespace guide
