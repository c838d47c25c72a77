#include "demo/Client.h"
#include "fakes/ScriptedServer.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

/// Sends the bytes on a new connection and returns everything received until the server closes it.
QByteArray answerTo(std::uint16_t port, const QByteArray& bytes) {
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    QByteArray answer;
    if (::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) {
        ::send(fd, bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL);
        char buffer[4096];
        ssize_t count = 0;
        while ((count = ::recv(fd, buffer, sizeof buffer, 0)) > 0) {
            answer.append(buffer, qsizetype(count));
        }
    }
    ::close(fd);
    return answer;
}

TEST(HTTPServer, RoutesByTargetAndByLongestPrefix) {
    ScriptedServer server;
    const auto echo = [](const QByteArray& name) {
        return [name](const ServerRequest& request) { return ServerReply::ok(name + ' ' + request.target); };
    };
    server.router().serve("/day?d=1", echo("exact"));
    server.router().serveBelow("/day", echo("short"));
    server.router().serveBelow("/day/long", echo("long"));
    EXPECT_EQ(fetch(server.base() + u"/day?d=1"_s).body, "exact /day?d=1");
    EXPECT_EQ(fetch(server.base() + u"/day?d=2"_s).body, "short /day?d=2");
    EXPECT_EQ(fetch(server.base() + u"/day/longer"_s).body, "long /day/longer");
    EXPECT_EQ(fetch(server.base() + u"/other"_s).code, CURLE_GOT_NOTHING);
    server.router().remove("/day?d=1");
    EXPECT_EQ(fetch(server.base() + u"/day?d=1"_s).body, "short /day?d=1");
}

TEST(HTTPServer, SurvivesBadClients) {
    ScriptedServer server;
    server.serve("/", ServerReply::ok("page"));
    for (const QByteArray& bad :
         {QByteArray("HELLO\r\n\r\n"), "GET / HTTP/1.1\r\nX: " + QByteArray(100'000, 'a'),
          QByteArray("POST / HTTP/1.1\r\nContent-Length: 99999999999\r\n\r\n")}) {
        EXPECT_EQ(answerTo(server.port(), bad), "") << bad.first(5).constData();
    }
    EXPECT_TRUE(
        answerTo(server.port(), "POST / HTTP/1.1\r\ncontent-length: 3\r\n\r\nabc").endsWith("\r\n\r\npage"));
    EXPECT_EQ(server.requests().back().body, "abc");
}

TEST(HTTPServer, StopEndsStalledAndSlowRepliesAtOnce) {
    ScriptedServer server;
    server.reply(ServerReply::raw(ServerReply::head(200), ServerReply::End::Stall));
    ServerReply slow;
    server.reply(slow.then("late", std::chrono::hours(1)));
    std::vector<std::jthread> clients;
    clients.reserve(2);
    for (int i = 0; i < 2; ++i) {
        clients.emplace_back([&server] { fetch(server.base()); });
    }
    ASSERT_TRUE(server.waitForRequests(2));
    const auto started = std::chrono::steady_clock::now();
    server.stop();
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(5));
    clients.clear();
    EXPECT_EQ(fetch(server.base()).code, CURLE_COULDNT_CONNECT);
}

} // namespace
} // namespace guide
