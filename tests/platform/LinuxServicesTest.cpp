#include "fakes/ManualQueues.h"
#include "platform/linux/LinuxBackgroundTasks.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxNetworkWatch.h"

#include <cstring>
#include <gtest/gtest.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <string>
#include <tuple>

namespace guide {
namespace {

using namespace std::chrono_literals;

TEST(LinuxBackgroundTasksTest, ExpiresLongTasksOnce) {
    ManualClock clock;
    ManualQueues queues(clock);
    LinuxBackgroundTasks tasks(queues, 1min);
    std::string expired;
    tasks.endBackgroundTask(tasks.beginBackgroundTask([&] { expired += "ended in time "; }));
    const BackgroundTaskId task = tasks.beginBackgroundTask([&] { expired += "once "; });
    clock.advance(59s);
    queues.runAll();
    EXPECT_EQ(expired, "");
    clock.advance(1s);
    queues.runAll();
    clock.advance(10min);
    queues.runAll();
    EXPECT_EQ(expired, "once ");
    tasks.endBackgroundTask(task);
    tasks.endBackgroundTask(kBackgroundTaskInvalid);
}

TEST(LinuxClockTest, ContinuesFromTheGivenMoment) {
    const Moment start = std::chrono::sys_days(std::chrono::year(2025) / 6 / 30) + 20h;
    const LinuxClock clock(start);
    EXPECT_LT(clock.now() - start, 10s);
    EXPECT_LT(std::chrono::abs(LinuxClock().now() - std::chrono::system_clock::now()), 10s);
}

QByteArray message(unsigned short type, unsigned char destinationLength, unsigned char table,
                   unsigned char kind) {
    struct {
        nlmsghdr header;
        rtmsg route;
    } content{};
    content.header.nlmsg_len = sizeof content;
    content.header.nlmsg_type = type;
    content.route.rtm_dst_len = destinationLength;
    content.route.rtm_table = table;
    content.route.rtm_type = kind;
    return {reinterpret_cast<const char*>(&content), static_cast<qsizetype>(sizeof content)};
}

TEST(LinuxNetworkWatch, RecognisesADefaultRoute) {
    const QByteArray appeared = message(RTM_NEWROUTE, 0, RT_TABLE_MAIN, RTN_UNICAST);
    const QByteArray other = message(RTM_NEWROUTE, 24, RT_TABLE_MAIN, RTN_UNICAST);
    QByteArray endless = other;
    std::memset(endless.data(), 0, sizeof(nlmsghdr::nlmsg_len));
    const std::tuple<const char*, QByteArray, bool> rows[] = {
        {"default route", appeared, true},
        {"after another route", other + appeared, true},
        {"a network of its own", other, false},
        {"gone", message(RTM_DELROUTE, 0, RT_TABLE_MAIN, RTN_UNICAST), false},
        {"unreachable", message(RTM_NEWROUTE, 0, RT_TABLE_MAIN, RTN_UNREACHABLE), false},
        {"of this machine", message(RTM_NEWROUTE, 0, RT_TABLE_LOCAL, RTN_UNICAST), false},
        {"cut off", appeared.chopped(1), false},
        {"a length of zero", endless + appeared, false},
        {"nothing", {}, false},
    };
    for (const auto& [name, messages, announces] : rows) {
        EXPECT_EQ(announcesDefaultRoute(messages), announces) << name;
    }
}

} // namespace
} // namespace guide
