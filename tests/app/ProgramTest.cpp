#include "platform/linux/InstanceLock.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

struct Answer {
    /// -1 when the guide crashed or did not end.
    int status = -1;
    QString output;
    QStringList errors;
};

/// Runs the guide without a display and waits for it to end.
Answer guideWith(const QStringList& words, const QString& runtimeFolder) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    // Qt warns when it is not set.
    environment.insert(u"XDG_RUNTIME_DIR"_s, runtimeFolder);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(QUELLIN_GUIDE), words);
    Answer answer;
    if (process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit) {
        answer.status = process.exitCode();
    }
    answer.output = QString::fromLocal8Bit(process.readAllStandardOutput());
    answer.errors = QString::fromLocal8Bit(process.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
    process.kill();
    process.waitForFinished();
    return answer;
}

TEST(Program, EndsWithOneLineWhenItCannotStart) {
    const QTemporaryDir folder;
    const auto path = [&folder](const QString& name) { return folder.filePath(name); };
    const auto write = [&path](const QString& name, const QByteArray& content) {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return file.fileName();
    };
    const QString file = write(u"file"_s, "no folder");
    const QString broken = write(u"broken.plist"_s, "<plist version=\"1.0\"><dict><key>Chan");
    const QString german = write(u"german.plist"_s, R"(<plist version="1.0"><dict><key>Channels</key><array>
<dict><key>Location</key><string>58f4ded60befe78cb3360001</string><key>Title</key><string>Eins</string>
<key>Language</key><string>de</string><key>Icon</key><string>Other/a</string></dict></array></dict></plist>)");
    const QString profile = path(u"profile"_s);
    ASSERT_TRUE(QDir().mkpath(profile + "/documents"_L1) && QDir().mkpath(profile + "/runtime"_L1));
    const InstanceLock other(profile + "/documents"_L1, profile + "/runtime"_L1, QByteArray());
    ASSERT_EQ(other.outcome(), InstanceLock::Outcome::First);

    const struct {
        const char* name;
        QStringList words;
        QString line;
    } cases[] = {
        {"pictures below a file", {u"--demo"_s, u"--screenshots"_s, file + "/p"_L1}, file},
        {"pictures of a profile in use",
         {u"--demo"_s, u"--profile"_s, profile, u"--screenshots"_s, path(u"p"_s)},
         u"another guide uses this profile"_s},
        {"catalogue missing", {u"--catalogue"_s, path(u"absent.plist"_s)}, path(u"absent.plist"_s)},
        {"catalogue broken", {u"--catalogue"_s, broken}, broken},
        {"no channel of the catalogue can be shown",
         {u"--catalogue"_s, german},
         u"1 of 1 channels left out: 1 language"_s},
        {"selection missing", {u"--select"_s, path(u"absent.json"_s)}, path(u"absent.json"_s)},
    };
    for (const auto& each : cases) {
        const Answer answer = guideWith(each.words, folder.path());
        EXPECT_EQ(answer.status, 1) << each.name;
        ASSERT_EQ(answer.errors.size(), 1) << each.name << answer.errors.join(u'\n').toStdString();
        EXPECT_TRUE(answer.errors[0].contains(each.line)) << each.name << answer.errors[0].toStdString();
    }
}

TEST(Program, UpdatesWithoutAWindow) {
    const QTemporaryDir folder;
    const QStringList words{u"--update"_s, u"--demo"_s, u"--profile"_s, folder.filePath(u"profile"_s)};
    const Answer first = guideWith(words, folder.path());
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(first.output, u"12 channels updated, 0 failed\n"_s);
    EXPECT_EQ(guideWith(words, folder.path()).output, u"0 channels updated, 0 failed\n"_s)
        << "what was stored is still good";
}

} // namespace
} // namespace guide
