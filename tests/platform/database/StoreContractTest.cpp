// What every store must do, in memory, in a folder or file, and in a database.
#include "PostgresServer.h"
#include "TestGuide.h"
#include "platform/linux/FolderKeyValueStore.h"
#include "platform/linux/SharedFolderKeyValueStore.h"
#include "platform/linux/database/SQLiteRecordStore.h"
#include "platform/memory/ManualClock.h"
#include "platform/memory/MemoryKeyValueStore.h"
#include "platform/memory/MemoryRecordStore.h"

#include <QCborArray>
#include <QCborMap>
#include <QDateTime>

#include <limits>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

class ValuesUnderTest {
  public:
    virtual ~ValuesUnderTest() = default;
    virtual KeyValueStore& store() = 0;
    /// What another device does; without a value, it removes the key.
    virtual void setElsewhere(const QString& key, const std::optional<QCborValue>& value) = 0;
    virtual std::optional<QCborValue> valueElsewhere(const QString& key) = 0;

    TestLoop loop;
};

class MemoryValues final : public ValuesUnderTest {
  public:
    KeyValueStore& store() override { return m_store; }
    void setElsewhere(const QString& key, const std::optional<QCborValue>& value) override {
        m_store.setExternally(key, value);
    }
    std::optional<QCborValue> valueElsewhere(const QString& key) override { return m_store.valueForKey(key); }

  private:
    MemoryKeyValueStore m_store;
};

class StoredValues : public ValuesUnderTest {
  public:
    void setElsewhere(const QString& key, const std::optional<QCborValue>& value) override {
        if (value) {
            EXPECT_TRUE(other().setValue(key, *value));
        } else {
            other().removeKey(key);
        }
    }
    std::optional<QCborValue> valueElsewhere(const QString& key) override { return other().valueForKey(key); }
    virtual KeyValueStore& other() = 0;
};

/// Two stores of different kinds on one folder.
class FolderValues final : public StoredValues {
  public:
    FolderValues() {
        EXPECT_TRUE(TestGuide::waitFor([&] { return m_store.sharedState().isRead; }));
    }
    KeyValueStore& store() override { return m_store; }
    KeyValueStore& other() override { return m_other; }

  private:
    const QTemporaryDir m_folder;
    const QTemporaryDir m_kept;
    SharedFolderKeyValueStore m_store{
        {.folder = m_folder.path(), .device = u"desk-1"_s, .keepsIn = m_kept.path()},
        loop.clock,
        loop.queues};
    FolderKeyValueStore m_other{m_folder.path(), QStringLiteral("phone-2"), loop.queues};
};

class PostgresValues final : public StoredValues {
  public:
    PostgresValues() {
        EXPECT_TRUE(m_device.waitForConnection());
        EXPECT_TRUE(m_other.waitForConnection());
    }
    KeyValueStore& store() override { return m_device.values(); }
    KeyValueStore& other() override { return m_other.values(); }

  private:
    const PostgresServer m_server;
    const QString m_address{m_server.addUser(u"anna"_s)};
    TestGuide m_device{loop, m_address, u"Phone"_s};
    TestGuide m_other{loop, m_address, u"Tablet"_s};
};

struct ValuesKind {
    const char* name;
    std::unique_ptr<ValuesUnderTest> (*make)();
};

class KeyValueStoreTest : public testing::TestWithParam<ValuesKind>, public KeyValueStoreObserver {
  protected:
    void valuesChangedExternally(const QStringList& keys) override { m_announced += keys; }
    bool isAnnounced(QStringList keys) {
        return TestGuide::waitFor([&] {
            m_announced.removeDuplicates();
            m_announced.sort();
            return m_announced == keys;
        });
    }
    KeyValueStore& store() { return test->store(); }

    const std::unique_ptr<ValuesUnderTest> test{GetParam().make()};
    QStringList m_announced;
};

TEST_P(KeyValueStoreTest, KeepsTypesOfValues) {
    QCborArray deep;
    for (int arrays = 1; arrays < 16; ++arrays) {
        deep = QCborArray{QCborValue(deep)};
    }
    const std::vector<std::pair<QString, QCborValue>> values{
        {u"flag"_s, true},
        {u"number"_s, (qint64{1} << 60) + 1},
        {u"double"_s, 5.0},
        {u"fraction"_s, -0.1},
        {u"infinity"_s, std::numeric_limits<double>::infinity()},
        {u"deep"_s, deep},
        {u"text"_s, u"Večer \"x\" \\ 📺"_s},
        {u"empty bytes"_s, QByteArray()},
        {u"date"_s, QCborValue(QDateTime(QDate(2025, 12, 31), QTime(18, 30, 1, 234), Qt::UTC))},
        {u"SelectedChannels"_s, QCborArray{QByteArray(12, '\x58'), QByteArray(12, '\0'), QCborArray{}}},
        {u"key '); drop \n ž"_s, 1},
        {u""_s, 2},
    };
    for (const auto& [key, value] : values) {
        ASSERT_TRUE(store().setValue(key, value)) << key.toStdString();
    }
    for (const auto& each : values) {
        const QString& key = each.first;
        EXPECT_EQ(store().valueForKey(key), each.second) << key.toStdString();
        ASSERT_TRUE(TestGuide::waitFor([&] { return test->valueElsewhere(key).has_value(); }))
            << key.toStdString();
        EXPECT_EQ(test->valueElsewhere(key)->type(), each.second.type()) << key.toStdString();
        EXPECT_EQ(test->valueElsewhere(key), each.second) << key.toStdString();
    }
    if (GetParam().name != "Memory"_ba) {
        EXPECT_FALSE(store().setValue(u"text"_s, QCborMap{{1, 2}})) << "not one of the types";
        EXPECT_FALSE(store().setValue(u"text"_s, QCborArray{QCborValue(deep)})) << "too deep";
        EXPECT_EQ(store().valueForKey(u"text"_s), values[6].second) << "the old value is kept";
    }
    store().removeKey(u"text"_s);
    store().removeKey(u"missing"_s);
    EXPECT_FALSE(store().valueForKey(u"text"_s));
    EXPECT_TRUE(TestGuide::waitFor([&] { return !test->valueElsewhere(u"text"_s); }));
}

TEST_P(KeyValueStoreTest, AnnouncesWhatOthersChange) {
    ASSERT_TRUE(store().setValue(u"a"_s, 1));
    ASSERT_TRUE(store().setValue(u"b"_s, 1));
    ASSERT_TRUE(TestGuide::waitFor([&] {
        return test->valueElsewhere(u"a"_s).has_value() && test->valueElsewhere(u"b"_s).has_value();
    }));
    store().setObserver(this);
    test->setElsewhere(u"a"_s, 2);
    test->setElsewhere(u"b"_s, std::nullopt);
    test->setElsewhere(u"c"_s, u"x"_s);
    EXPECT_TRUE(isAnnounced({u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(store().valueForKey(u"a"_s), QCborValue(2));
    EXPECT_EQ(store().valueForKey(u"b"_s), std::nullopt);

    m_announced.clear();
    ASSERT_TRUE(store().setValue(u"a"_s, 3));
    ASSERT_TRUE(TestGuide::waitFor([&] { return test->valueElsewhere(u"a"_s) == QCborValue(3); }));
    test->setElsewhere(u"d"_s, 1);
    EXPECT_TRUE(isAnnounced({u"d"_s})) << "not the change of this device";
    store().setObserver(nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, KeyValueStoreTest,
    testing::Values(
        ValuesKind{"Memory",
                   []() -> std::unique_ptr<ValuesUnderTest> { return std::make_unique<MemoryValues>(); }},
        ValuesKind{"Folder",
                   []() -> std::unique_ptr<ValuesUnderTest> { return std::make_unique<FolderValues>(); }},
        ValuesKind{"Postgres",
                   []() -> std::unique_ptr<ValuesUnderTest> { return std::make_unique<PostgresValues>(); }}),
    [](const auto& kind) { return std::string(kind.param.name); });

class RecordsUnderTest {
  public:
    virtual ~RecordsUnderTest() = default;
    virtual RecordStore& store() = 0;
    /// So that the next change is later.
    virtual void letTimePass() { clock.advance(std::chrono::milliseconds(5)); }
    virtual bool isSharedWithStrangers() const { return false; }

    TestLoop loop;
    ManualClock clock;
};

class MemoryRecords final : public RecordsUnderTest {
  public:
    RecordStore& store() override { return m_store; }

  private:
    MemoryRecordStore m_store{clock};
};

class SQLiteRecords final : public RecordsUnderTest {
  public:
    RecordStore& store() override { return m_store; }

  private:
    const QTemporaryDir m_folder;
    SQLiteRecordStore m_store{m_folder.filePath(u"counters.sqlite"_s), clock};
};

class PostgresRecords final : public RecordsUnderTest {
  public:
    PostgresRecords() {
        m_server.query(u"update guide.limits set minimum = -1000"_s);
        EXPECT_TRUE(m_device.waitForConnection());
    }
    RecordStore& store() override { return m_device.records(); }
    void letTimePass() override {}
    bool isSharedWithStrangers() const override { return true; }

  private:
    const PostgresServer m_server;
    TestGuide m_device{loop, m_server.addUser(u"anna"_s), u"Phone"_s};
};

struct RecordsKind {
    const char* name;
    std::unique_ptr<RecordsUnderTest> (*make)();
};

class RecordStoreTest : public testing::TestWithParam<RecordsKind> {
  protected:
    std::vector<std::pair<QString, std::int64_t>> counters(std::size_t limit) {
        std::vector<std::pair<QString, std::int64_t>> found;
        const auto records = store().countersByModification(limit);
        EXPECT_TRUE(records);
        for (const CounterRecord& record : records.value_or(std::vector<CounterRecord>())) {
            found.emplace_back(record.title, record.counter);
        }
        return found;
    }
    RecordStore& store() { return test->store(); }

    const std::unique_ptr<RecordsUnderTest> test{GetParam().make()};
};

TEST_P(RecordStoreTest, IncrementsByTheRule) {
    constexpr CounterRule kAny{};
    constexpr CounterRule kAddition{.makesMissing = true, .removesBelowOne = false};
    constexpr CounterRule kRemoval{.makesMissing = false, .removesBelowOne = true};
    struct Case {
        const char* title;
        std::vector<std::pair<int, CounterRule>> increments;
        std::optional<std::int64_t> counter;
    };
    const Case cases[] = {
        {"made", {{2, kAny}}, 2},
        {"made negative", {{-1, kAny}}, -1},
        {"sum", {{2, kAny}, {3, kAny}, {-1, kAny}}, 4},
        {"removed at 0", {{2, kAny}, {-2, kAny}}, std::nullopt},
        {"made again", {{2, kAny}, {-2, kAny}, {1, kAny}}, 1},
        {"negative, raised not far enough", {{-3, kAny}, {2, kAny}}, std::nullopt},
        {"negative, raised to 1", {{-3, kAny}, {4, kAny}}, 1},
        {"an addition keeps what is below 1", {{-3, kAny}, {2, kAddition}}, -1},
        {"a removal makes nothing", {{-1, kRemoval}}, std::nullopt},
        {"a removal removes", {{1, kAny}, {-1, kRemoval}}, std::nullopt},
        {"a removal lowers", {{2, kAddition}, {-1, kRemoval}}, 1},
        {"'); drop table counters; --", {{2, kAny}}, 2},
        {"{\"a\",\\b,NULL}", {{3, kAny}}, 3},
    };
    for (const Case& each : cases) {
        for (const auto& [amount, rule] : each.increments) {
            EXPECT_TRUE(store().incrementCounter(QString::fromUtf8(each.title), amount, rule)) << each.title;
        }
    }
    for (const Case& each : cases) {
        const std::optional<CounterRecord> found = store().counter(QString::fromUtf8(each.title));
        EXPECT_EQ(found ? std::optional(found->counter) : std::nullopt, each.counter) << each.title;
    }
    EXPECT_EQ(counters(1000).size(), 9U);
}

TEST_P(RecordStoreTest, ListsTheMostRecentlyChangedFirst) {
    for (const char16_t* title : {u"a", u"b", u"c", u"b"}) {
        EXPECT_TRUE(store().incrementCounter(QString::fromUtf16(title), 2, {}));
        test->letTimePass();
    }
    using Counters = std::vector<std::pair<QString, std::int64_t>>;
    EXPECT_EQ(counters(1000), (Counters{{u"b"_s, 4}, {u"c"_s, 2}, {u"a"_s, 2}}));
    EXPECT_EQ(counters(2), (Counters{{u"b"_s, 4}, {u"c"_s, 2}}));
    EXPECT_EQ(counters(0), Counters());
    EXPECT_TRUE(store().removeCounters({u"b"_s, u"missing"_s}));
    EXPECT_EQ(counters(1000).size(), test->isSharedWithStrangers() ? 3U : 2U);
    EXPECT_EQ(store().setCounter(u"a"_s, 7), !test->isSharedWithStrangers());
    EXPECT_EQ(store().counter(u"a"_s)->counter, test->isSharedWithStrangers() ? 2 : 7);
}

INSTANTIATE_TEST_SUITE_P(Kinds, RecordStoreTest,
                         testing::Values(RecordsKind{"Memory",
                                                     []() -> std::unique_ptr<RecordsUnderTest> {
                                                         return std::make_unique<MemoryRecords>();
                                                     }},
                                         RecordsKind{"SQLite",
                                                     []() -> std::unique_ptr<RecordsUnderTest> {
                                                         return std::make_unique<SQLiteRecords>();
                                                     }},
                                         RecordsKind{"Postgres",
                                                     []() -> std::unique_ptr<RecordsUnderTest> {
                                                         return std::make_unique<PostgresRecords>();
                                                     }}),
                         [](const auto& kind) { return std::string(kind.param.name); });

} // namespace
} // namespace guide::test
