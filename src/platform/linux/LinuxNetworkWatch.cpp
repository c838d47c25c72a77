#include "platform/linux/LinuxNetworkWatch.h"

#include <QDebug>

#include <array>
#include <cerrno>
#include <cstring>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace guide {

namespace {

constexpr std::size_t kMessageBytes = std::size_t{32} << 10;

template <class Header>
bool read(QByteArrayView bytes, Header& header) {
    if (bytes.size() < static_cast<qsizetype>(sizeof header)) {
        return false;
    }
    std::memcpy(&header, bytes.data(), sizeof header);
    return true;
}

int openRoutes() {
    const int socket = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE);
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE;
    if (socket >= 0 && ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        ::close(socket);
        return -1;
    }
    return socket;
}

} // namespace

bool announcesDefaultRoute(QByteArrayView messages) {
    nlmsghdr header{};
    while (read(messages, header) && header.nlmsg_len >= NLMSG_HDRLEN &&
           static_cast<qsizetype>(header.nlmsg_len) <= messages.size()) {
        rtmsg route{};
        const QByteArrayView content =
            messages.first(static_cast<qsizetype>(header.nlmsg_len)).sliced(NLMSG_HDRLEN);
        if (header.nlmsg_type == RTM_NEWROUTE && read(content, route) && route.rtm_dst_len == 0 &&
            route.rtm_table == RT_TABLE_MAIN && route.rtm_type == RTN_UNICAST) {
            return true;
        }
        const auto step = static_cast<qsizetype>(NLMSG_ALIGN(header.nlmsg_len));
        messages = step < messages.size() ? messages.sliced(step) : QByteArrayView();
    }
    return false;
}

LinuxNetworkWatch::LinuxNetworkWatch()
    : m_socket(openRoutes()) {
    if (!m_socket) {
        qInfo("changes of the network are not reported");
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { receive(); });
}

void LinuxNetworkWatch::watch(std::function<void()> appeared) {
    m_appeared = std::move(appeared);
}

void LinuxNetworkWatch::receive() {
    std::array<char, kMessageBytes> buffer{};
    bool isAnnounced = false;
    for (;;) {
        const ssize_t size = ::recv(m_socket.get(), buffer.data(), buffer.size(), 0);
        if (size <= 0) {
            // The kernel had to drop messages, which may have announced a route.
            isAnnounced = isAnnounced || (size < 0 && errno == ENOBUFS);
            break;
        }
        isAnnounced = isAnnounced || announcesDefaultRoute({buffer.data(), static_cast<qsizetype>(size)});
    }
    if (isAnnounced && m_appeared) {
        m_appeared();
    }
}

} // namespace guide
