#include "demo/DemoServer.h"

#include "demo/Client.h"
#include "demo/Unpacking.h"

#include <QStringDecoder>

#include <arpa/inet.h>
#include <chrono>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace guide {

namespace {

using Kind = Misbehaviour::Kind;
using tests::Fetched;
using tests::fetched;

const QByteArray kFeed = QByteArray("<tv>").append(QByteArray(200'000, 'x')).append("</tv>");

class DemoServerTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(server);
        server->serve("/epg.xml", {200, "text/xml; charset=utf-8", kFeed, {}});
    }

    QString at(const QString& path) const { return server->base() + path; }

    std::unique_ptr<DemoServer> server = DemoServer::start();
};

/// Says the bytes on a connection of its own and gives back all that the server answers until it closes.
QByteArray said(std::uint16_t port, const QByteArray& bytes) {
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

TEST_F(DemoServerTest, ServesByPathAndQueryAndKeepsALog) {
    server->serve("/day?d=1", [](const ServedRequest& request) {
        return ServedResponse{200, "text/plain", "day one for " + request.header("USER-agent").value_or("?")};
    });

    EXPECT_EQ(fetched(at(u"/day?d=1"_s)).body, "day one for test/1");
    EXPECT_EQ(fetched(at(u"/day?d=2"_s)).status, 404);
    EXPECT_EQ(fetched(at(u"/epg.xml"_s)).contentType, "text/xml; charset=utf-8");
    EXPECT_EQ(fetched(at(u"/epg.xml"_s), 20'000, true).body, "");
    EXPECT_EQ(server->requestCount("/epg.xml"), 2);
    EXPECT_EQ(server->requestCount(), 4);
    ASSERT_EQ(server->requests().size(), 4U);
    EXPECT_EQ(server->requests()[1].path, "/day?d=2");
    EXPECT_EQ(server->requests()[3].method, "HEAD");

    server->forgetRequests();
    server->remove("/epg.xml");
    EXPECT_EQ(fetched(at(u"/epg.xml"_s)).status, 404);
    EXPECT_EQ(server->requestCount(), 1);
}

TEST_F(DemoServerTest, AnswersManyClientsAtOnce) {
    for (int i = 0; i < 10; ++i) {
        server->serve("/" + QByteArray::number(i), [i](const ServedRequest&) {
            return ServedResponse{200, "text/plain", QByteArray(10'000 + i, char('0' + i))};
        });
    }
    std::vector<std::thread> clients;
    clients.reserve(12);
    std::atomic<int> good = 0;
    for (int client = 0; client < 12; ++client) {
        clients.emplace_back([this, client, &good] {
            for (int i = 0; i < 20; ++i) {
                const int page = (client + i) % 10;
                const Fetched got = fetched(at(u"/%1"_s.arg(page)));
                good += int(got.body == QByteArray(10'000 + page, char('0' + page)));
            }
        });
    }
    for (std::thread& client : clients) {
        client.join();
    }
    EXPECT_EQ(good, 240);
    EXPECT_EQ(server->requestCount(), 240);
}

TEST_F(DemoServerTest, SurvivesBadClients) {
    const std::uint16_t port = server->port();
    EXPECT_TRUE(said(port, "HELLO\r\n\r\n").startsWith("HTTP/1.1 400 "));
    EXPECT_TRUE(said(port, "GET /epg.xml HTTP/1.1\r\nno colon\r\n\r\n").startsWith("HTTP/1.1 400 "));
    EXPECT_TRUE(
        said(port, "POST /epg.xml HTTP/1.1\r\nContent-Length: 3\r\n\r\nabc").startsWith("HTTP/1.1 405 "));
    EXPECT_EQ(said(port, "GET / HTTP/1.1\r\nX: " + QByteArray(100'000, 'a')), "");
    EXPECT_EQ(said(port, "POST / HTTP/1.1\r\nContent-Length: 99999999999\r\n\r\n"), "");
    EXPECT_EQ(fetched(at(u"/epg.xml"_s)).body, kFeed);
}

struct Wrong {
    const char* name;
    Kind kind;
    CURLcode code;
    long status;
    bool (*right)(const Fetched&);
};

void PrintTo(const Wrong& wrong, std::ostream* out) {
    *out << wrong.name;
}

class Misbehaving : public DemoServerTest, public testing::WithParamInterface<Wrong> {};

TEST_P(Misbehaving, GoesWrongAsItWasTold) {
    const Wrong& wrong = GetParam();
    Misbehaviour how;
    how.kind = wrong.kind;
    how.status = 503;
    how.duration = std::chrono::milliseconds(200);
    how.bombSize = 64 << 20;
    server->misbehave("/epg.xml", how);

    const auto started = std::chrono::steady_clock::now();
    const Fetched got = fetched(at(u"/epg.xml"_s), 1000);
    const auto took = std::chrono::steady_clock::now() - started;
    EXPECT_EQ(got.code, wrong.code) << curl_easy_strerror(got.code);
    EXPECT_EQ(got.status, wrong.status);
    EXPECT_TRUE(wrong.right(got)) << got.contentType.constData() << ' ' << got.body.size() << " bytes";
    if (wrong.kind == Kind::SlowBody) {
        EXPECT_GE(took, how.duration * 9 / 10);
    }

    server->behave();
    EXPECT_EQ(fetched(at(u"/epg.xml"_s)).body, kFeed);
}

bool bodyless(const Fetched& got) {
    return got.body.isEmpty();
}

bool half(const Fetched& got) {
    return got.body == kFeed.first(kFeed.size() / 2);
}

const std::vector<Wrong> kWrongs = {
    {"Status", Kind::Status, CURLE_OK, 503, [](const Fetched& got) { return got.body.size() > 1000; }},
    {"RedirectOnce", Kind::RedirectOnce, CURLE_OK, 301,
     [](const Fetched& got) {
         return got.body.isEmpty() && fetched(QString::fromLatin1(got.location)).body == kFeed;
     }},
    {"RedirectForever", Kind::RedirectForever, CURLE_OK, 301,
     [](const Fetched& got) {
         const Fetched next = fetched(QString::fromLatin1(got.location));
         return next.status == 301 && !next.location.isEmpty() && next.location != got.location;
     }},
    {"EmptyBody", Kind::EmptyBody, CURLE_OK, 200, bodyless},
    {"Drop", Kind::Drop, CURLE_GOT_NOTHING, 0, bodyless},
    {"CutBody", Kind::CutBody, CURLE_PARTIAL_FILE, 200, half},
    {"SlowBody", Kind::SlowBody, CURLE_OK, 200, [](const Fetched& got) { return got.body == kFeed; }},
    {"Stall", Kind::Stall, CURLE_OPERATION_TIMEDOUT, 0, bodyless},
    {"StallInBody", Kind::StallInBody, CURLE_OPERATION_TIMEDOUT, 200, half},
    {"WrongCharset", Kind::WrongCharset, CURLE_OK, 200,
     [](const Fetched& got) {
         QStringDecoder decoder(QStringDecoder::Utf8);
         [[maybe_unused]] const QString text = decoder.decode(got.body);
         return got.contentType.endsWith("charset=utf-8") && decoder.hasError();
     }},
    {"BrokenGzip", Kind::BrokenGzip, CURLE_OK, 200,
     [](const Fetched& got) {
         return got.contentType == "application/x-gzip" && !tests::ungzipped(got.body, 0).whole &&
                tests::ungzipped(got.body, 0).size > 0;
     }},
    {"BrokenXz", Kind::BrokenXz, CURLE_OK, 200,
     [](const Fetched& got) {
         return got.contentType == "application/x-xz" &&
                got.body.startsWith("\xfd"
                                    "7zXZ") &&
                !tests::unxz(got.body, 0).whole;
     }},
    {"GzipBomb", Kind::GzipBomb, CURLE_OK, 200,
     [](const Fetched& got) {
         const auto unpacked = tests::ungzipped(got.body, 3);
         return got.body.size() < 200'000 && unpacked.whole && unpacked.size == 64U << 20 &&
                unpacked.begin == "   ";
     }},
    {"XzBomb", Kind::XzBomb, CURLE_OK, 200,
     [](const Fetched& got) {
         const auto unpacked = tests::unxz(got.body, 3);
         return got.body.size() < 200'000 && unpacked.whole && unpacked.size == 64U << 20 &&
                unpacked.begin == "   ";
     }},
    {"HTML", Kind::HTML, CURLE_OK, 200, [](const Fetched& got) { return got.body.contains("<html"); }},
    {"Garbage", Kind::Garbage, CURLE_OK, 200,
     [](const Fetched& got) { return got.body.size() > 1000 && got.body.contains('\0'); }},
};

INSTANTIATE_TEST_SUITE_P(All, Misbehaving, testing::ValuesIn(kWrongs),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(DemoServerTest, MisbehavesAsOftenAsToldAndPathByPath) {
    server->serve("/other", {200, "text/plain", "other", {}});
    server->misbehaveEverywhere({.kind = Kind::Status, .status = 403});
    server->misbehave("/epg.xml", {.kind = Kind::Status, .status = 500, .times = 2});

    EXPECT_EQ(fetched(at(u"/other"_s)).status, 403);
    EXPECT_EQ(fetched(at(u"/epg.xml"_s)).status, 500);
    EXPECT_EQ(fetched(at(u"/epg.xml"_s)).status, 500);
    EXPECT_EQ(fetched(at(u"/epg.xml"_s)).status, 200);
    EXPECT_EQ(fetched(at(u"/other"_s)).status, 403);
}

TEST_F(DemoServerTest, StopEndsStalledConversationsAtOnce) {
    server->misbehave("/epg.xml", {.kind = Kind::StallInBody});
    Fetched stalled;
    std::thread client([&] { stalled = fetched(at(u"/epg.xml"_s)); });
    while (server->requestCount() == 0) {
        std::this_thread::yield();
    }
    const auto started = std::chrono::steady_clock::now();
    server->stop();
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(5));
    client.join();
    EXPECT_NE(stalled.code, CURLE_OK);
    EXPECT_EQ(fetched(at(u"/epg.xml"_s)).code, CURLE_COULDNT_CONNECT);
}

} // namespace

} // namespace guide
