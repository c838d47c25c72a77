#include "platform/linux/LinuxNetworkWatch.h"

#include <cstring>
#include <gtest/gtest.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>

namespace guide {
namespace {

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
    const struct {
        const char* name;
        QByteArray messages;
        bool announces;
    } rows[] = {
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
    for (const auto& row : rows) {
        EXPECT_EQ(announcesDefaultRoute(row.messages), row.announces) << row.name;
    }
}

} // namespace
} // namespace guide
