#include "platform/linux/SpawnedProgramRunner.h"

#include "fakes/Files.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Reason = ProgramEnd::Reason;

class SpawnedProgramRunnerTest : public testing::Test {
  protected:
    ProgramRun script(const QString& text) const {
        return {.program = u"/bin/sh"_s,
                .arguments = {u"-c"_s, text, u"name"_s, u"$HOME * ;"_s},
                .mostOutput = 100'000,
                .longestSilence = 20s,
                .longest = 30s};
    }
    /// Whether the process of this id is gone or only waits to be reaped.
    static bool isGone(const QByteArray& id) {
        const QByteArray stat = test::contentOf(u"/proc/%1/stat"_s.arg(QString::fromLatin1(id.trimmed())));
        return id.trimmed().toInt() > 0 && (stat.isEmpty() || stat.contains(") Z "));
    }

    QTemporaryDir folder;
    SpawnedProgramRunner runner{500ms};
};

TEST_F(SpawnedProgramRunnerTest, RunsWithoutShellTerminalOrInput) {
    ProgramRun run =
        script(u"printf '%s|' \"$1\"; cat; (: < /dev/tty) 2>/dev/null || printf 'no terminal|'; "
               // The runner lowers the priority right after the start.
               "while [ \"$(nice)\" != 10 ]; do sleep 0.01; done; nice; echo problem >&2; exit 3"_s);
    const ProgramEnd end = runner.run(run);
    EXPECT_EQ(end.reason, Reason::Exited);
    EXPECT_EQ(end.exitStatus, 3);
    EXPECT_EQ(end.output, "$HOME * ;|no terminal|10\n");
    EXPECT_EQ(end.errorOutput, "problem\n");

    run.outputPath = folder.filePath(u"output"_s);
    const ProgramEnd toFile = runner.run(run);
    EXPECT_EQ(toFile.output, QByteArray());
    EXPECT_EQ(test::contentOf(run.outputPath), end.output);
    EXPECT_EQ(toFile.outputBytes, end.output.size());
}

TEST_F(SpawnedProgramRunnerTest, EveryEndHasAReason) {
    const struct {
        const char* name;
        QString script;
        Reason reason;
        int exitStatus;
        qint64 mostOutput;
    } rows[] = {
        {"hangs", u"echo first; sleep 600"_s, Reason::Silent, 0, 6},
        {"ignores the request to end", u"trap '' TERM; while :; do sleep 600; done"_s, Reason::Silent, 0, 0},
        {"ends politely", u"trap 'echo last; exit 0' TERM; echo first; sleep 600 & wait"_s, Reason::Silent, 0,
         11},
        {"talks without end", u"while :; do echo x >&2; sleep 0.02; done"_s, Reason::TooLong, 0, 0},
        {"floods", u"yes"_s, Reason::TooMuchOutput, 0, 100'000},
        {"floods and ends", u"yes | head -c 150000"_s, Reason::TooMuchOutput, 0, 100'000},
        {"crashes", u"echo x; kill -SEGV $$"_s, Reason::Crashed, SIGSEGV, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ProgramRun run = script(row.script);
        run.outputPath = folder.filePath(u"output"_s);
        run.longestSilence = 1s;
        run.longest = 2s;
        const ProgramEnd end = runner.run(run);
        EXPECT_EQ(end.reason, row.reason);
        EXPECT_EQ(end.exitStatus, row.exitStatus);
        EXPECT_LE(QFileInfo(run.outputPath).size(), row.mostOutput);
        EXPECT_GE(QFileInfo(run.outputPath).size(), row.mostOutput == 100'000 ? 30'000 : row.mostOutput);
    }
    for (const QString& program : {u"/no/such/program"_s, folder.path(), u"/etc/passwd"_s}) {
        ProgramRun run = script({});
        run.program = program;
        EXPECT_EQ(runner.run(run).reason, Reason::NotStarted) << program.toStdString();
    }
    ProgramRun run = script(u"echo x"_s);
    run.outputPath = u"/dev/full"_s;
    EXPECT_EQ(runner.run(run).reason, Reason::NoRoom);
}

TEST_F(SpawnedProgramRunnerTest, LeavesNoChildren) {
    for (const QString& text : {u"sleep 600 & echo $!"_s, u"sleep 600 >/dev/null 2>&1 & echo $!"_s,
                                u"(trap '' TERM; sleep 600) & echo $!"_s}) {
        SCOPED_TRACE(text.toStdString());
        const ProgramEnd end = runner.run(script(text));
        EXPECT_EQ(end.reason, Reason::Exited);
        EXPECT_TRUE(QTest::qWaitFor([&] { return isGone(end.output); })) << end.output.toStdString();
    }
}

TEST_F(SpawnedProgramRunnerTest, AFileThatTheProgramWritesIsOutput) {
    ProgramRun run = script(
        u"for i in 1 2 3 4 5 6 7 8; do echo x >> '%1'; sleep 0.2; done"_s.arg(folder.filePath(u"own"_s)));
    run.ownOutputPath = folder.filePath(u"own"_s);
    run.longestSilence = 1s;
    EXPECT_EQ(runner.run(run).reason, Reason::Exited) << "it was never silent";

    run.arguments[1] = u"yes > '%1'"_s.arg(run.ownOutputPath);
    EXPECT_EQ(runner.run(run).reason, Reason::TooMuchOutput);
}

TEST_F(SpawnedProgramRunnerTest, KeepsTheEndOfErrorsAndEndsWhenStopped) {
    ProgramRun run = script(u"yes >&2"_s);
    int asked = 0;
    run.stopped = [&asked] { return ++asked > 20; };
    const ProgramEnd end = runner.run(run);
    EXPECT_EQ(end.reason, Reason::Stopped);
    EXPECT_EQ(end.errorOutput.size(), 64 * 1024);
}

} // namespace
} // namespace guide
