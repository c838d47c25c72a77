// The stores on a PostgreSQL server that fails in every way.
#include "PostgresServer.h"
#include "TestGuide.h"

#include <QCborArray>
#include <QThread>

#include <thread>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

class PostgresStoresTest : public testing::Test {
  protected:
    TestLoop loop;
    PostgresServer server;
    const QString address{server.addUser(u"anna"_s)};
};

TEST_F(PostgresStoresTest, ChangesReachTheOtherDevice) {
    TestGuide phone(loop, address, u"Phone"_s);
    TestGuide tablet(loop, address, u"Tablet"_s);
    ASSERT_TRUE(phone.waitForConnection());
    ASSERT_TRUE(tablet.waitForConnection());
    EXPECT_TRUE(phone.set("lastAlarmMinutes", 10));
    EXPECT_EQ(phone.value("lastAlarmMinutes"), QCborValue(10)) << "at once";
    ASSERT_TRUE(tablet.waitForValue("lastAlarmMinutes", QCborValue(10)));
    EXPECT_TRUE(tablet.waitFor([&] { return tablet.announced == QStringList(u"lastAlarmMinutes"_s); }));
    EXPECT_TRUE(tablet.waitFor([&] { return tablet.state().device == u"Phone"; }));
    EXPECT_LT(std::chrono::abs(*tablet.state().lastSeen - loop.clock.now()), std::chrono::minutes(1));

    const QString before = server.query(u"select string_agg(write::text, ',') from guide.user_values"_s);
    EXPECT_TRUE(tablet.set("lastAlarmMinutes", 10));
    EXPECT_TRUE(tablet.set("b", u"x"_s));
    ASSERT_TRUE(phone.waitForValue("b", u"x"_s));
    EXPECT_EQ(server.query(u"select write from guide.user_values where key = 'lastAlarmMinutes'"_s), before)
        << "an equal value is not stored";
    phone.values().removeKey(u"lastAlarmMinutes"_s);
    EXPECT_TRUE(tablet.waitForValue("lastAlarmMinutes", std::nullopt));
    EXPECT_EQ(phone.announced, QStringList(u"b"_s)) << "own changes are not announced";
}

TEST_F(PostgresStoresTest, CatchesUpAfterTheServerWasAway) {
    TestGuide phone(loop, address, u"Phone"_s);
    TestGuide tablet(loop, address, u"Tablet"_s);
    ASSERT_TRUE(phone.waitForConnection());
    phone.set("a", 1);
    phone.set("b", 1);
    phone.set("c", 1);
    ASSERT_TRUE(tablet.waitForValue("c", 1));
    server.stop();
    ASSERT_TRUE(phone.waitForConnection(SharedStoreConnection::Offline));
    ASSERT_TRUE(tablet.waitForConnection(SharedStoreConnection::Offline));
    EXPECT_EQ(phone.state().reason, u"The database cannot be reached."_s);
    phone.set("a", 2);
    tablet.values().removeKey(u"b"_s);
    tablet.restart();
    EXPECT_EQ(tablet.value("a"), QCborValue(1)) << "the last values, without a connection";
    EXPECT_EQ(tablet.value("b"), std::nullopt);
    phone.restart();
    server.start();
    EXPECT_TRUE(tablet.waitForValue("a", 2));
    EXPECT_TRUE(phone.waitForValue("b", std::nullopt));
    EXPECT_TRUE(phone.waitForConnection());
    EXPECT_EQ(phone.state().reason, QString());

    server.endConnections();
    phone.set("a", 3);
    EXPECT_TRUE(tablet.waitForValue("a", 3));
    EXPECT_EQ(tablet.value("c"), QCborValue(1));
}

} // namespace
} // namespace guide::test
