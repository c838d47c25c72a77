// Memory growth while a packed national feed loads for a dozen channels, against the feed's unpacked size.
// Each load runs in its own process, because the peak of a process never falls.

#include "GeneratedFeed.h"
#include "parsers/ListDriver.h"
#include "sources/PageText.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <zlib.h>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr std::uint64_t kMemory = std::uint64_t{8} << 30;
constexpr int kFewChannels = 12;
constexpr double kAtMost = 1.3;
constexpr int kLoads = 5;

class FixedClock final : public Clock {
  public:
    Moment now() const override { return Moment{}; }
};

[[noreturn]] void fail(const char* why) {
    std::fprintf(stderr, "%s\n", why);
    std::exit(1);
}

/// The value of a line of /proc/self/status in bytes.
double statusBytes(QByteArrayView key) {
    QFile file(u"/proc/self/status"_s);
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith(key)) {
                return line.mid(key.size()).trimmed().split(' ').front().toDouble() * 1024;
            }
        }
    }
    fail("the kernel does not report the memory used");
}

/// Writes the packed feed; prints its unpacked size.
int make(const QString& path) {
    const QByteArray plain = generatedFeed({});
    const gzFile file = gzopen(QFile::encodeName(path).constData(), "wb6");
    const bool written = file && gzwrite(file, plain.constData(), static_cast<unsigned>(plain.size())) ==
                                     static_cast<int>(plain.size());
    if (!file || gzclose(file) != Z_OK || !written) {
        fail("the feed cannot be written");
    }
    std::printf("%lld\n", static_cast<long long>(plain.size()));
    return 0;
}

/// Loads the feed as the update cycle does; prints the growth.
int load(const QString& path) {
    QLoggingCategory::setFilterRules(u"guide.*=false"_s);
    std::vector<LoadItem> items;
    items.reserve(kFewChannels);
    for (int i = 0; i < kFewChannels; ++i) {
        ObjectId::Bytes id{};
        id[11] = static_cast<std::uint8_t>(i + 1);
        items.push_back({ObjectId(id), u"s."_s + generatedChannelId(i * 25), u"cs"_s});
    }
    const FixedClock clock;
    const Alphabet alphabet;
    const SourceHostTable hosts;
    const ListDriver driver({.clock = clock, .alphabet = alphabet, .hosts = hosts, .merge = nullptr});

    const double idle = statusBytes("VmHWM:");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail("the feed cannot be read");
    }
    std::vector<QByteArray> pages;
    {
        PageText page = pageText(file.readAll(), HTTPResponse(), kMemory);
        if (!page.text) {
            fail("the feed is not text");
        }
        pages.push_back(*std::move(page.text));
    }
    const ParsedLists lists = driver.read(items, pages, Moment{}, ListingsType::XMLTV);
    const double peak = statusBytes("VmHWM:");
    if (lists.size() != items.size() ||
        std::any_of(lists.begin(), lists.end(), [](const auto& list) { return list.second.size() < 100; })) {
        fail("shows are missing");
    }
    std::printf("%.0f\n", peak - idle);
    return 0;
}

/// The output of this program when started for one step of the measurement.
double stepOf(const QString& step, const QString& path) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {step, path});
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        fail("a step of the measurement failed");
    }
    return process.readAllStandardOutput().trimmed().toDouble();
}

int measure() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"feed.xml.gz"_s);
    const double unpacked = stepOf(u"make"_s, path);
    std::array<double, kLoads> growths{};
    std::generate(growths.begin(), growths.end(), [&path] { return stepOf(u"load"_s, path); });
    std::sort(growths.begin(), growths.end());
    std::printf(R"({"row": "feed, 12 channels, packed, memory", "unit": "MB", "guide": %.1f, "floor": %.1f, )"
                R"("atMost": %g})"
                "\n",
                growths[kLoads / 2] / 1e6, unpacked / 1e6, kAtMost);
    return 0;
}

} // namespace
} // namespace guide::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 3 && words[1] == QLatin1String("make")) {
        return guide::bench::make(words[2]);
    }
    return words.size() == 3 ? guide::bench::load(words[2]) : guide::bench::measure();
}
