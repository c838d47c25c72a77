#include "platform/files/FileReplacement.h"
#include "sources/SourceHostTable.h"
#include "sources/SourceId.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

int warnings = 0;

/// Counts the log lines during its lifetime.
class CountedWarnings {
  public:
    CountedWarnings() {
        warnings = 0;
        m_previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString&) {
            warnings += type == QtWarningMsg ? 1 : 0;
        });
    }
    ~CountedWarnings() { qInstallMessageHandler(m_previous); }

  private:
    QtMessageHandler m_previous;
};

TEST(SourceHostTableTest, KeepsTheSchemeOrAddsOne) {
    RowTally tally;
    const SourceHostTable hosts = *SourceHostTable::fromJson(R"({
        "bare": "a.example", "port": "127.0.0.1:8080/", "http": "http://a.example", "path": " https://a.example/x/ ",
        "letters": "httpbin.example", "number": 5, "empty": "", "scheme": "http://"})",
                                                             &tally);
    EXPECT_EQ(tally.summary(u"hosts"_s), u"1 of 8 hosts left out: 1 type"_s);
    const std::tuple<QString, std::optional<QString>, std::optional<QString>, std::optional<QString>> rows[] =
        {
            {u"bare"_s, u"https://a.example"_s, u"a.example"_s, u"https://a.example.hr"_s},
            {u"port"_s, u"https://127.0.0.1:8080"_s, u"127.0.0.1:8080"_s, u"https://127.0.0.1.hr:8080"_s},
            {u"http"_s, u"http://a.example"_s, u"a.example"_s, u"http://a.example.hr"_s},
            {u"path"_s, u"https://a.example/x"_s, u"a.example/x"_s, u"https://a.example.hr/x"_s},
            {u"letters"_s, u"https://httpbin.example"_s, u"httpbin.example"_s,
             u"https://httpbin.example.hr"_s},
            {u"number"_s, {}, {}, {}},
            {u"empty"_s, {}, {}, {}},
            {u"scheme"_s, {}, {}, {}},
            {u"missing"_s, {}, {}, {}},
        };
    const CountedWarnings counted;
    for (const auto& [key, base, name, stem] : rows) {
        SCOPED_TRACE(key.toStdString());
        EXPECT_EQ(hosts.base(key), base);
        EXPECT_EQ(hosts.name(key), name);
        EXPECT_EQ(hosts.baseOfStem(key, u"hr"_s), stem);
    }
    EXPECT_EQ(hosts.base(u"bare"_s, u"http"_s), u"http://a.example"_s);
    EXPECT_EQ(hosts.base(u"path"_s, u"http"_s), u"https://a.example/x"_s);
    EXPECT_EQ(warnings, 4) << "one for each key";
    const SourceHostTable marked = *SourceHostTable::fromJson(R"({"a": "x-%@.example:81"})");
    EXPECT_EQ(marked.baseOfStem(u"a"_s, u"net"_s), u"https://x-net.example:81"_s);
}

TEST(SourceHostTableTest, OverrideReplacesKeyByKey) {
    QTemporaryDir bundle;
    QTemporaryDir configuration;
    const CountedWarnings counted;
    ASSERT_TRUE(replaceFile(bundle.filePath(u"hosts.json"_s),
                            R"({"A": "a.example", "B": "b.example", "C": "c.example"})"));
    EXPECT_EQ(SourceHostTable::installed(bundle.path(), configuration.path()).value(u"A"_s), u"a.example"_s);
    EXPECT_EQ(warnings, 0) << "an override is not logged";

    ASSERT_TRUE(replaceFile(configuration.filePath(u"hosts.json"_s), R"({"A": "own.example", "B": ""})"));
    const SourceHostTable table = SourceHostTable::installed(bundle.path(), configuration.path());
    EXPECT_EQ(table.value(u"A"_s), u"own.example"_s);
    EXPECT_EQ(table.base(u"B"_s), std::nullopt) << "switched off";
    EXPECT_EQ(table.value(u"C"_s), u"c.example"_s);

    ASSERT_TRUE(replaceFile(configuration.filePath(u"hosts.json"_s), R"({"A": )"));
    EXPECT_EQ(SourceHostTable::installed(bundle.path(), configuration.path()).value(u"A"_s), u"a.example"_s);
}

TEST(SourceIdTest, PortNumbersAreThirtyTwoBitsWide) {
    for (const QString& id : {u"0"_s, u"42"_s, u"60050"_s, u"2147483647"_s}) {
        EXPECT_TRUE(sourceIdUsedByPortNetwork(id)) << id.toStdString();
    }
    for (const QString& id : {u""_s, u"042"_s, u"00"_s, u"42x"_s, u"-5"_s, u"+5"_s, u" 5"_s, u"2147483648"_s,
                              u"4294967338"_s, u"99999999999999999999999"_s, u"\u0664\u0662"_s, u"４２"_s}) {
        EXPECT_FALSE(sourceIdUsedByPortNetwork(id)) << id.toStdString();
    }
}

TEST(SourceIdTest, ServersHaveTheZoneOfTheirCountry) {
    for (const QString& country : {u"ro"_s, u"sk"_s, u"hu"_s, u"hr"_s, u"rs"_s, u"cz"_s, u"ba"_s}) {
        ASSERT_TRUE(timeZoneForServer(country)) << country.toStdString();
        EXPECT_TRUE(timeZoneForServer(country)->isValid()) << "known to the system";
    }
    EXPECT_EQ(timeZoneForServer(u"www.example.hr")->id(), "Europe/Zagreb");
    for (const QString& server : {u"x.zz"_s, u"z"_s, u""_s, u"x.HU"_s}) {
        EXPECT_FALSE(timeZoneForServer(server)) << server.toStdString();
    }
}

} // namespace
} // namespace guide
