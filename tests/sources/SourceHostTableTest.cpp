#include "sources/SourceHostTable.h"

#include "platform/files/FileReplacement.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

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
    struct Row {
        QString key;
        std::optional<QString> base;
        std::optional<QString> name;
        std::optional<QString> stem;
    };
    const Row rows[] = {
        {u"bare"_s, u"https://a.example"_s, u"a.example"_s, u"https://a.example.hr"_s},
        {u"port"_s, u"https://127.0.0.1:8080"_s, u"127.0.0.1:8080"_s, u"https://127.0.0.1.hr:8080"_s},
        {u"http"_s, u"http://a.example"_s, u"a.example"_s, u"http://a.example.hr"_s},
        {u"path"_s, u"https://a.example/x"_s, u"a.example/x"_s, u"https://a.example.hr/x"_s},
        {u"letters"_s, u"https://httpbin.example"_s, u"httpbin.example"_s, u"https://httpbin.example.hr"_s},
        {u"number"_s, {}, {}, {}},
        {u"empty"_s, {}, {}, {}},
        {u"scheme"_s, {}, {}, {}},
        {u"missing"_s, {}, {}, {}},
    };
    const CountedWarnings counted;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.key.toStdString());
        EXPECT_EQ(hosts.base(row.key), row.base);
        EXPECT_EQ(hosts.name(row.key), row.name);
        EXPECT_EQ(hosts.baseOfStem(row.key, u"hr"_s), row.stem);
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

} // namespace
} // namespace guide
