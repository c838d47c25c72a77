#include "sources/own/Grabber.h"

#include "platform/files/FileReplacement.h"
#include "sources/own/SourceDownload.h"

#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using Reason = ProgramEnd::Reason;

constexpr std::chrono::seconds kLongestAnswer{15};
constexpr std::int64_t kMostAnswer = 64 * 1024;
constexpr qsizetype kMostGrabbers = 200;
constexpr int kDays = 7;

/// What the program prints when it is asked about itself; empty for nothing.
QString answer(ProgramRunner& runner, const QString& program, const QString& option,
               const std::function<bool()>& stopped) {
    const ProgramEnd end = runner.run({.program = program,
                                       .arguments = {option},
                                       .mostOutput = kMostAnswer,
                                       .longestSilence = kLongestAnswer,
                                       .longest = kLongestAnswer,
                                       .stopped = stopped});
    const bool isGood = end.reason == Reason::Exited && end.exitStatus == 0;
    return isGood ? QString::fromUtf8(end.output) : QString();
}

QSet<QString> capabilitiesOf(ProgramRunner& runner, const QString& program,
                             const std::function<bool()>& stopped) {
    const QStringList words =
        answer(runner, program, u"--capabilities"_s, stopped).simplified().split(u' ', Qt::SkipEmptyParts);
    return {words.cbegin(), words.cend()};
}

bool needsConfiguration(const QSet<QString>& capabilities) {
    return capabilities.contains(u"manualconfig"_s) || capabilities.contains(u"apiconfig"_s);
}

/// Programs print addresses and passwords when something goes wrong.
QString withoutSecrets(QString text) {
    static const QRegularExpression user(u"://[^\\s/@]*@"_s);
    static const QRegularExpression query(u"(://[^\\s?#\"'<>]*)\\?[^\\s\"'<>]*"_s);
    static const QRegularExpression named(
        u"\\b((?:pass(?:word|wd)?|token|secret|api_?key|user(?:name)?)\\s*[=:]\\s*)\\S+"_s,
        QRegularExpression::CaseInsensitiveOption);
    return text.replace(user, u"://"_s).replace(query, u"\\1?…"_s).replace(named, u"\\1…"_s);
}

SourceResult failureOf(const ProgramEnd& end) {
    switch (end.reason) {
    case Reason::Silent:
        return SourceResult::GrabberSilent;
    case Reason::TooLong:
        return SourceResult::GrabberTooLong;
    case Reason::TooMuchOutput:
        return SourceResult::GrabberFlooded;
    case Reason::Stopped:
        return SourceResult::Cancelled;
    case Reason::NoRoom:
        return SourceResult::NoRoom;
    case Reason::NotStarted:
        return SourceResult::NoFile;
    case Reason::Exited:
        if (end.exitStatus == 0) {
            return SourceResult::Empty;
        }
        [[fallthrough]];
    case Reason::Crashed:
        break;
    }
    // By the convention, such programs tell the user to run them with this option.
    return end.errorOutput.contains("--configure") ? SourceResult::GrabberNotConfigured
                                                   : SourceResult::GrabberFailed;
}

/// Whether the output, though not whole, is worth reading.
bool isWorthKeeping(Reason reason) {
    return reason != Reason::TooMuchOutput && reason != Reason::Stopped && reason != Reason::NoRoom;
}

} // namespace

QStringList grabberFolders() {
    QStringList folders = qEnvironmentVariable("PATH").split(u':', Qt::SkipEmptyParts);
    const QString home = QDir::homePath();
    folders += {home + u"/.xmltv"_s, home + u"/bin"_s, home + u"/.local/bin"_s};
    folders.removeIf([](const QString& folder) { return QDir::isRelativePath(folder); });
    return folders;
}

QStringList findGrabbers(const QStringList& folders) {
    QMap<QString, QString> paths;
    for (const QString& folder : folders) {
        const QFileInfoList files =
            QDir(folder).entryInfoList({u"tv_grab_*"_s}, QDir::Files | QDir::Executable, QDir::Name);
        for (const QFileInfo& file : files) {
            const QString name = file.fileName();
            if (paths.size() < kMostGrabbers && !name.endsWith(u'~') && !name.endsWith(".conf"_L1) &&
                !paths.contains(name)) {
                paths.insert(name, file.absoluteFilePath());
            }
        }
    }
    return paths.values();
}

Grab grab(ProgramRunner& runner, const GrabRequest& request) {
    const QFileInfo program(request.program);
    if (!program.isFile() || !program.isExecutable()) {
        return {.result = SourceResult::NoFile};
    }
    const QSet<QString> capabilities = capabilitiesOf(runner, program.absoluteFilePath(), request.stopped);
    const QString name = program.fileName() + u".conf"_s;
    QString configuration;
    for (const QString& folder : {request.configurationFolder, request.userConfigurationFolder}) {
        if (configuration.isEmpty() && QFileInfo(folder + u'/' + name).isFile()) {
            configuration = folder + u'/' + name;
        }
    }
    if (configuration.isEmpty() && needsConfiguration(capabilities)) {
        return {.result = SourceResult::GrabberNotConfigured};
    }

    // On the same file system as what it replaces.
    const QTemporaryDir folder(QFileInfo(request.path).absolutePath() + u"/grab-XXXXXX"_s);
    if (!folder.isValid()) {
        return {.result = SourceResult::NoRoom};
    }
    const QString printed = folder.filePath(u"printed"_s);
    const QString written = folder.filePath(u"written"_s);
    ProgramRun run{.program = program.absoluteFilePath(),
                   .arguments = {},
                   .outputPath = printed,
                   .mostOutput = request.mostOutput,
                   .longestSilence = request.longestSilence,
                   .longest = request.longest,
                   .stopped = request.stopped};
    if (capabilities.contains(u"baseline"_s)) {
        run.ownOutputPath = written;
        run.arguments = {u"--days"_s,  QString::number(kDays), u"--offset"_s, u"0"_s,
                         u"--quiet"_s, u"--output"_s,          written};
        if (!configuration.isEmpty()) {
            run.arguments = QStringList{u"--config-file"_s, configuration} + run.arguments;
        }
    }
    const ProgramEnd end = runner.run(run);

    Grab grab;
    grab.output = withoutSecrets(QString::fromUtf8(end.errorOutput));
    const bool isWhole = end.reason == Reason::Exited && end.exitStatus == 0;
    if (!isWhole && (end.reason == Reason::Exited || end.reason == Reason::Crashed)) {
        grab.detail = QString::number(end.exitStatus);
    }
    // Some take the option and print all the same.
    const QString output = QFileInfo(written).size() > 0 ? written : printed;
    if (QFileInfo(output).size() == 0 || !(isWhole || isWorthKeeping(end.reason))) {
        grab.result = failureOf(end);
        return grab;
    }
    grab.file = isWhole ? request.path : beginningOf(request.path);
    if (!replaceFileWith(grab.file, output)) {
        grab.file.clear();
        grab.result = SourceResult::NoRoom;
        return grab;
    }
    grab.result = isWhole ? SourceResult::Read : SourceResult::Incomplete;
    if (isWhole) {
        QFile::remove(beginningOf(request.path));
    }
    return grab;
}

} // namespace guide
