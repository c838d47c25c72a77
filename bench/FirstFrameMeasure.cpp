// From the start of the program to the first frame with the shows of a dozen channels, whose lists are on
// disk, against the first frame of a guide without channels.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr double kAtMost = 1.5;
constexpr std::size_t kStarts = 9;
constexpr int kPatience = 60'000;

[[noreturn]] void fail(const QString& why) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(why));
    std::exit(1);
}

QProcessEnvironment environment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_LOGGING_RULES"_s, u"guide.frames.debug=true"_s);
    if (!environment.contains(u"DISPLAY"_s)) {
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    }
    return environment;
}

/// Starts the guide and waits until it logs the frame. Returns milliseconds; `renderer` is set to the
/// renderer's name.
double timeTo(const QByteArray& frame, const QStringList& words, QByteArray& renderer) {
    QProcess guide;
    guide.setProcessEnvironment(environment());
    guide.setProcessChannelMode(QProcess::MergedChannels);
    QElapsedTimer timer;
    timer.start();
    guide.start(QStringLiteral(QUELLIN_GUIDE), words);
    QByteArray said;
    while (guide.waitForReadyRead(kPatience)) {
        said += guide.readAll();
        const qsizetype line = said.indexOf(frame + ", ");
        const qsizetype end = line < 0 ? line : said.indexOf('\n', line);
        if (end >= 0) {
            const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
            renderer = said.mid(line + frame.size() + 2, end - line - frame.size() - 2);
            guide.kill();
            guide.waitForFinished();
            return time;
        }
    }
    fail(u"the guide never drew its %1:\n%2"_s.arg(QLatin1String(frame), QString::fromUtf8(said)));
}

int measure() {
    const QTemporaryDir folder;
    const QString full = folder.filePath(u"full"_s);
    const QString empty = folder.filePath(u"empty"_s);
    // A first start with the demo writes the lists and exits.
    QProcess first;
    first.setProcessEnvironment(environment());
    first.start(QStringLiteral(QUELLIN_GUIDE),
                {u"--demo"_s, u"--profile"_s, full, u"--screenshots"_s, folder.filePath(u"pictures"_s)});
    if (!first.waitForFinished(kPatience) || first.exitCode() != 0) {
        fail(u"the demo cannot be run:\n"_s + QString::fromUtf8(first.readAllStandardError()));
    }
    const QStringList catalogue{u"--catalogue"_s, full + u"/demo/Data.plist"_s, u"--hosts"_s,
                                full + u"/demo/hosts.json"_s};
    std::array<double, kStarts> guide{};
    std::array<double, kStarts> floor{};
    QByteArray renderer;
    for (std::size_t i = 0; i < kStarts; ++i) {
        guide[i] = timeTo("filled frame", QStringList{u"--profile"_s, full} + catalogue, renderer);
        floor[i] = timeTo("first frame", QStringList{u"--profile"_s, empty} + catalogue, renderer);
    }
    std::sort(guide.begin(), guide.end());
    std::sort(floor.begin(), floor.end());
    std::printf("{\"row\": \"first frame, %s\", \"unit\": \"ms\", \"guide\": %.1f, \"floor\": %.1f, "
                "\"atMost\": %g}\n",
                renderer.constData(), guide[kStarts / 2], floor[kStarts / 2], kAtMost);
    return 0;
}

} // namespace
} // namespace guide::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return guide::bench::measure();
}
