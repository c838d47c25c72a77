// The stores on a PostgreSQL server that fails in every way.
#include "PostgresServer.h"
#include "Proxy.h"
#include "TestGuide.h"
#include "fakes/Files.h"
#include "platform/linux/SharedValues.h"
#include "platform/linux/database/DatabaseSetup.h"
#include "platform/linux/database/IncrementQueue.h"

#include <QDir>

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
    phone.stores.setDeviceName(u"Desk"_s);
    phone.set("b", u"y"_s);
    EXPECT_TRUE(tablet.waitFor([&] { return tablet.state().device == u"Desk"; }));
}

TEST_F(PostgresStoresTest, SaysWhyItCannotConnect) {
    server.query(u"create role bob login password 'x'"_s);
    const QString unknown = u"There is no server with the name in the address."_s;
    const struct {
        QString address;
        QString reason;
    } cases[] = {
        {u"postgresql://anna@tv.invalid/guide"_s, unknown},
        {addressWith(address, 1), u"The server does not run a database at the address."_s},
        {u"postgresql://anna@/guide?host=/nowhere"_s,
         u"The server does not run a database at the address."_s},
        {QString(address).replace(u"/guide"_s, u"/guides"_s),
         u"The server has no database with the name in the address."_s},
        {QString(address).replace(u"/guide"_s, u"/postgres"_s),
         u"The database is not set up for the guide."_s},
        {u"postgresql://anna@localhost:%1/guide"_s.arg(server.port()),
         u"This device does not have the password of the database."_s},
        {u"postgresql://bob:x@localhost:%1/guide"_s.arg(server.port()),
         u"The user in the address may not use the database."_s},
    };
    for (const auto& each : cases) {
        TestGuide guide(loop, each.address, u"Phone"_s);
        EXPECT_TRUE(TestGuide::waitFor([&] { return !guide.state().reason.isEmpty(); }));
        const bool isOffline = each.reason == unknown && guide.state().reason.contains(u"no network"_s);
        EXPECT_TRUE(guide.state().reason == each.reason || isOffline)
            << each.address.toStdString() << ": " << guide.state().reason.toStdString();
        guide.stores.forget(false);
        guide.end();
        EXPECT_TRUE(QDir(guide.profile.path()).isEmpty()) << "nothing was used";
    }
    TestGuide guide(loop, address, u"Phone"_s);
    guide.set("a", u"Film"_s);
    guide.stores.forget(true);
    guide.end();
    const QStringList left = QDir(guide.profile.path()).entryList(QDir::Files);
    ASSERT_EQ(left.size(), 1) << "the name of the device";
    EXPECT_FALSE(contentOf(guide.profile.filePath(left.front())).contains("Film"));
    QString why;
    EXPECT_TRUE(acceptsDatabasePassword(*databaseAddress(address, why), WakeUp(), why));
    EXPECT_FALSE(acceptsDatabasePassword(
        *databaseAddress(QString(address).replace(u"anna:"_s, u"anna:x"_s), why), WakeUp(), why));
    EXPECT_EQ(why, u"The database does not accept the user or the password."_s);
}

TEST_F(PostgresStoresTest, CatchesUpAfterTheServerWasAway) {
    TestGuide phone(loop, address, u"Phone"_s);
    TestGuide tablet(loop, address, u"Tablet"_s);
    ASSERT_TRUE(phone.waitForConnection());
    for (const char* key : {"a", "b", "c"}) {
        phone.set(key, 1);
        ASSERT_TRUE(tablet.waitForValue(key, 1));
    }
    server.stop();
    ASSERT_TRUE(phone.waitForConnection(SharedStoreConnection::Offline));
    ASSERT_TRUE(tablet.waitForConnection(SharedStoreConnection::Offline));
    // A server that stops in the middle of a greeting looks like one that cannot prove who it is.
    EXPECT_TRUE(
        TestGuide::waitFor([&] { return phone.state().connection == SharedStoreConnection::Offline; }));
    phone.set("a", 2);
    ASSERT_TRUE(phone.values().flush());
    const QString file = QDir(phone.profile.path()).entryInfoList({u"*.values"_s}).front().filePath();
    QString why;
    EXPECT_EQ(SharedValues(file, databaseAddress(address, why)->text(), nullptr).value(u"a"_s), QCborValue(2))
        << "even if the guide is killed now";
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

TEST_F(PostgresStoresTest, SendsEachIncrementOnceThroughLostConnections) {
    Proxy proxy(server.port());
    TestGuide phone(loop, addressWith(address, proxy.port()), u"Phone"_s);
    ASSERT_TRUE(phone.waitForConnection());
    const auto total = [&] {
        server.query(u"select guide.fold(100000)"_s);
        return server.query(u"select sum(count) from guide.counters"_s).toInt();
    };
    const auto isCounted = [&](int expected) {
        return phone.waitFor([&] { return total() >= expected; }) && total() == expected;
    };
    int expected = 0;
    const auto increment = [&](int count) {
        for (int i = 0; i < count; ++i) {
            EXPECT_TRUE(phone.records().incrementCounter(u"Title %1"_s.arg(i % 7), 2, {}));
            expected += 2;
        }
    };
    for (int round = 0; round < 4; ++round) {
        increment(3);
        // What was cut off may have been counted or not; the guide cannot know.
        round % 2 == 0 ? proxy.cutAnswer() : proxy.cutRequest();
        increment(10);
        ASSERT_TRUE(phone.waitFor([&] { return proxy.hasCut(); }));
        if (round == 1) {
            phone.restart();
        }
        EXPECT_TRUE(isCounted(expected)) << round << ": " << total() << " of " << expected;
    }
    server.endConnections();
    increment(20);
    EXPECT_TRUE(isCounted(expected)) << total() << " of " << expected;

    // More than one batch; the guide ends while it sends them.
    server.stop();
    increment(500);
    phone.restart();
    increment(1);
    server.start();
    for (int i = 0; i < 3; ++i) {
        phone.waitFor([&] { return phone.state().connection == SharedStoreConnection::Connected; });
        phone.restart();
    }
    EXPECT_TRUE(isCounted(expected)) << total() << " of " << expected;
    EXPECT_EQ(server.query(u"select count(*) from guide.devices"_s), u"1"_s)
        << "the same device after each start";
}

TEST_F(PostgresStoresTest, ALateRepetitionDoesNotUndoAnotherDevice) {
    Proxy proxy(server.port());
    TestGuide phone(loop, addressWith(address, proxy.port()), u"Phone"_s);
    TestGuide tablet(loop, address, u"Tablet"_s);
    ASSERT_TRUE(phone.waitForConnection());
    ASSERT_TRUE(tablet.waitForConnection());
    proxy.cutAnswer();
    // Only the tablet knows that it was stored.
    phone.set("a", u"phone"_s);
    ASSERT_TRUE(tablet.waitForValue("a", u"phone"_s));
    tablet.set("a", u"tablet"_s);
    EXPECT_TRUE(phone.waitForValue("a", u"tablet"_s));
    EXPECT_EQ(tablet.value("a"), QCborValue(u"tablet"_s));

    // What the phone sent on an older connection may even arrive after later changes.
    const QByteArray session =
        server.query(u"select session from guide.devices where name = 'Phone'"_s).toLatin1();
    phone.restart();
    ASSERT_TRUE(phone.waitFor([&] {
        return server.query(u"select session from guide.devices where name = 'Phone'"_s).toLatin1() !=
               session;
    }));
    const WakeUp stop;
    DatabaseError error;
    QString why;
    const DatabaseAddress user = databaseAddress(address, why).value();
    for (const char* late : {"set_value('%1', gen_random_uuid(), 'a', 'x')",
                             "count_batch('%1', gen_random_uuid(), '{A}', '{2}', '{t}', '{t}')"}) {
        const auto older = PostgresConnection::open(user, user.password.value(), {}, stop, error);
        ASSERT_TRUE(older) << error.message.toStdString();
        const DatabaseReply reply =
            older->execute(QByteArray("select guide.") + QByteArray(late).replace("%1", session));
        ASSERT_TRUE(reply.error()) << late;
        EXPECT_EQ(reply.error()->message, u"unknown session"_s);
    }
}

TEST_F(PostgresStoresTest, UpgradesByWholeFiles) {
    QString why;
    bool needsPassword = false;
    auto setup = DatabaseSetup::connect(*databaseAddress(server.address(), why), needsPassword, why);
    ASSERT_TRUE(setup) << why.toStdString();
    const QString schema = QStringLiteral(QUELLIN_SOURCE_DATA "/database");
    EXPECT_EQ(setup->upgrade(schema, why), QStringList()) << "nothing is applied twice";

    const QTemporaryDir folder;
    for (const QString& file : QDir(schema).entryList(QDir::Files)) {
        QFile::copy(schema + u'/' + file, folder.filePath(file));
    }
    const QString next = folder.filePath(u"900-next.sql"_s);
    ASSERT_TRUE(writeFile(next, "create table guide.next (a integer); select 1 / 0;"));
    EXPECT_FALSE(setup->upgrade(folder.path(), why));
    EXPECT_TRUE(why.endsWith(u"\nDetails: division by zero"_s)) << why.toStdString();
    EXPECT_EQ(server.query(u"select to_regclass('guide.next')"_s), QString());
    ASSERT_TRUE(writeFile(next, "create table guide.next (a integer);"));
    EXPECT_EQ(setup->upgrade(folder.path(), why), QStringList(u"900-next.sql"_s));
    EXPECT_FALSE(setup->upgrade(schema, why));
    EXPECT_EQ(why, u"The database is newer than this program: install a newer guide."_s);

    const QString before = address;
    EXPECT_NE(server.addUser(u"anna"_s), before) << "another password";
    TestGuide phone(loop, before, u"Phone"_s);
    EXPECT_TRUE(phone.waitForConnection(SharedStoreConnection::Refused));
    phone.stores.setPassword(databaseAddress(server.addUser(u"anna"_s), why)->password.value());
    phone.stores.retryNow();
    EXPECT_TRUE(phone.waitForConnection());
    EXPECT_TRUE(setup->setUser(u"carl"_s, why)->isNew);
    EXPECT_FALSE(setup->setUser(u"carl"_s, why)->isNew);
    for (const char16_t* name :
         {u"postgres", u"guide_owner", u"guide_member", u"Anna", u"a\"b", u"", u"a\n"}) {
        EXPECT_FALSE(setup->setUser(QString::fromUtf16(name), why)) << QString::fromUtf16(name).toStdString();
        EXPECT_FALSE(why.contains(u"Details"_s)) << why.toStdString();
    }

    server.query(u"create role plain login"_s);
    server.query(u"create role maker login createrole"_s);
    server.query(u"grant connect on database guide to plain, maker"_s);
    const std::pair<QString, QString> refused[] = {
        {u"plain@"_s, u"plain may not create roles. Set the database up as a superuser, such as postgres."_s},
        {u"maker@"_s, u"maker does not own the database guide. Set it up as its owner or as a superuser."_s}};
    for (const auto& [who, expected] : refused) {
        const QString as = server.address().replace(u"postgres@"_s, who);
        auto other = DatabaseSetup::connect(*databaseAddress(as, why), needsPassword, why);
        EXPECT_FALSE(other && other->upgrade(schema, why));
        EXPECT_EQ(why, expected);
    }
}

TEST(IncrementQueueTest, IsBoundedAndBelongsToOneDatabase) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"queue"_s);
    IncrementQueue queue(path, u"postgresql://anna@a/guide"_s);
    for (std::size_t i = 0; i < IncrementQueue::kCapacity; ++i) {
        ASSERT_TRUE(queue.add({.title = u"Title"_s, .amount = 1, .rule = {}}));
    }
    EXPECT_FALSE(queue.add({.title = u"Title"_s, .amount = 1, .rule = {}}));
    const QUuid batch = queue.nextBatch()->id;
    queue.save();
    EXPECT_EQ(IncrementQueue(path, u"postgresql://anna@a/guide"_s).nextBatch()->id, batch);
    EXPECT_FALSE(IncrementQueue(path, u"postgresql://anna@b/guide"_s).nextBatch());
}

} // namespace
} // namespace guide::test
