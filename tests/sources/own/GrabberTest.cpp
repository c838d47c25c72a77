#include "sources/own/Grabber.h"

#include "fakes/Files.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/SpawnedProgramRunner.h"
#include "platform/memory/ScriptedProgramRunner.h"
#include "sources/own/SourceDownload.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class GrabberTest : public testing::Test {
  protected:
    GrabberTest() {
        for (const QString& name : {u"own"_s, u"user"_s, u"bin"_s, u"bin2"_s, u"cache"_s}) {
            QDir(root.path()).mkdir(name);
        }
        request.configurationFolder = root.filePath(u"own"_s);
        request.userConfigurationFolder = root.filePath(u"user"_s);
        request.path = root.filePath(u"cache/content"_s);
        request.longestSilence = 1s;
        request.longest = 3s;
        request.mostOutput = 100'000;
    }

    /// A program of this name with the shell commands.
    QString program(const QString& name, const QString& commands, bool isExecutable = true) const {
        const QString path = root.filePath(name);
        EXPECT_TRUE(replaceFile(path, (u"#!/bin/sh\n"_s + commands).toUtf8()));
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner |
                                        (isExecutable ? QFile::ExeOwner : QFile::Permissions()));
        return path;
    }
    Grab run(const QString& commands) {
        request.program = program(u"bin/tv_grab_test"_s, commands);
        return grab(runner, request);
    }

    QTemporaryDir root;
    SpawnedProgramRunner runner{300ms};
    GrabRequest request;
};

TEST_F(GrabberTest, FindsWhatTheFoldersHave) {
    const QString trace = u"echo > '%1'"_s.arg(root.filePath(u"cache/run"_s));
    for (const QString& name : {u"bin/tv_grab_zeta"_s, u"bin2/tv_grab_zeta"_s, u"bin2/tv_grab_alfa"_s,
                                u"bin/tv_grab_old~"_s, u"bin/tv_grab_zeta.conf"_s, u"bin/other"_s}) {
        program(name, trace);
    }
    program(u"bin/tv_grab_plain"_s, trace, false);
    EXPECT_EQ(findGrabbers({root.filePath(u"bin"_s), u"/no/such"_s, root.filePath(u"bin2"_s)}),
              QStringList({root.filePath(u"bin2/tv_grab_alfa"_s), root.filePath(u"bin/tv_grab_zeta"_s)}));
    EXPECT_FALSE(QFile::exists(root.filePath(u"cache/run"_s))) << "none was run";
}

TEST_F(GrabberTest, EveryRunHasAResultAndOnlyAGoodOneReplacesTheFile) {
    const QString baseline = u"[ \"$1\" = --capabilities ] && { echo baseline; exit 0; }\n"
                             "while [ $# -gt 1 ]; do [ \"$1\" = --output ] && out=$2; shift; done\n"_s;
    const QString leaky = u"echo 'http://jan:pw@a.example/x?key=1 password: abc' >&2; exit 4"_s;
    using enum SourceResult;
    const struct {
        const char* name;
        QString commands;
        SourceResult result;
        QByteArray content = {};
        QString detail = {};
    } rows[] = {
        {"prints", u"echo \"<tv/>$#\""_s, Read, "<tv/>0\n"},
        {"writes", baseline + u"echo '<tv/>' > $out"_s, Read, "<tv/>\n"},
        {"prints though it should write", baseline + u"echo '<tv/>'"_s, Read, "<tv/>\n"},
        {"nothing", u"exit 0"_s, Empty},
        {"fails with a part", baseline + u"echo '<tv>' > $out; exit 1"_s, Incomplete, "<tv>\n", u"1"_s},
        {"wants to be configured",
         u"echo 'run me with --configure' >&2; exit 1"_s,
         GrabberNotConfigured,
         {},
         u"1"_s},
        {"dies with a part", u"echo '<tv>'; kill -9 $$"_s, Incomplete, "<tv>\n", u"9"_s},
        {"hangs", u"[ -n \"$1\" ] || sleep 600"_s, GrabberSilent},
        {"hangs with a part", u"[ -n \"$1\" ] || { echo '<tv>'; sleep 600; }"_s, Incomplete, "<tv>\n"},
        {"floods", u"[ -n \"$1\" ] || yes '<programme/>'"_s, GrabberFlooded},
        {"floods a file", baseline + u"yes > $out"_s, GrabberFlooded},
        {"asks on the terminal", u"read a < /dev/tty || exit 7; echo x"_s, GrabberFailed, {}, u"7"_s},
        {"fails", leaky, GrabberFailed, {}, u"4"_s},
    };
    Grab grab;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ASSERT_TRUE(replaceFile(request.path, "old"));
        QFile::remove(beginningOf(request.path));
        grab = run(row.commands);
        EXPECT_EQ(grab.result, row.result);
        EXPECT_EQ(grab.detail, row.detail);
        EXPECT_EQ(test::contentOf(request.path), row.result == Read ? row.content : "old");
        EXPECT_EQ(test::contentOf(beginningOf(request.path)),
                  row.result == Incomplete ? row.content : QByteArray());
        EXPECT_EQ(test::contentOf(grab.file), row.content);
    }
    EXPECT_EQ(grab.output, u"http://a.example/x?… password: …\n"_s);
    EXPECT_EQ(QDir(root.filePath(u"cache"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(u"content"_s));
    request.program = root.filePath(u"bin/gone"_s);
    EXPECT_EQ(guide::grab(runner, request).result, NoFile);
}

TEST_F(GrabberTest, NeverRunsWithoutTheConfigurationThatItNeeds) {
    request.program = program(u"bin/tv_grab_test"_s, {});
    ScriptedProgramRunner scripted([](const ProgramRun& run) {
        return ScriptedProgramRunner::printed(
            run.arguments == QStringList(u"--capabilities"_s) ? "baseline\nmanualconfig\n" : "<tv/>");
    });
    EXPECT_EQ(grab(scripted, request).result, SourceResult::GrabberNotConfigured);
    EXPECT_EQ(scripted.runs().size(), 1u);
    for (const QString& folder : {request.userConfigurationFolder, request.configurationFolder}) {
        const QString configuration = folder + u"/tv_grab_test.conf"_s;
        ASSERT_TRUE(replaceFile(configuration, {}));
        EXPECT_EQ(grab(scripted, request).result, SourceResult::Read);
        EXPECT_EQ(scripted.runs().back().arguments.first(8),
                  (QStringList{u"--config-file"_s, configuration, u"--days"_s, u"7"_s, u"--offset"_s, u"0"_s,
                               u"--quiet"_s, u"--output"_s}));
    }
}

} // namespace
} // namespace guide
