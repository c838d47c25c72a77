// Memory growth while a packed national feed loads for a dozen channels: of the catalogue, against the feed's
// unpacked size; of a source that the user added, against a bound that does not depend on it. Each load runs
// in its own process, because the peak of a process never falls.

#include "GeneratedFeed.h"
#include "parsers/ListDriver.h"
#include "parsers/own/OwnFeedReader.h"
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
constexpr double kMostOfOwnFeed = 24e6;
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

ObjectId channel(int number) {
    ObjectId::Bytes id{};
    id[11] = static_cast<std::uint8_t>(number + 1);
    return ObjectId(id);
}

QString feedChannel(int number) {
    return generatedChannelId(number * 25);
}

/// Loads the feed as the update cycle does.
ParsedLists loadPage(const QString& path, const Clock& clock, const Alphabet& alphabet) {
    std::vector<LoadItem> items;
    for (int i = 0; i < kFewChannels; ++i) {
        items.push_back({channel(i), u"s."_s + feedChannel(i), u"cs"_s});
    }
    const SourceHostTable hosts;
    const ListDriver driver({.clock = clock, .alphabet = alphabet, .hosts = hosts, .merge = nullptr});
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail("the feed cannot be read");
    }
    PageText page = pageText(file.readAll(), HTTPResponse(), kMemory);
    if (!page.text) {
        fail("the feed is not text");
    }
    return driver.read(items, {*std::move(page.text)}, Moment{}, ListingsType::XMLTV);
}

/// Loads it as a source of the user's.
ParsedLists loadOwn(const QString& path, const Clock& clock, const Alphabet& alphabet) {
    std::vector<OwnFeedItem> items;
    for (int i = 0; i < kFewChannels; ++i) {
        items.push_back({channel(i), feedChannel(i), u"cs"_s});
    }
    return readOwnFeed(path, {}, items, {.clock = clock, .alphabet = alphabet, .physicalMemory = kMemory})
        .lists;
}

using Load = ParsedLists (*)(const QString& path, const Clock& clock, const Alphabet& alphabet);

/// Prints the growth.
int measureLoad(Load load, const QString& path) {
    QLoggingCategory::setFilterRules(u"guide.*=false"_s);
    const FixedClock clock;
    const Alphabet alphabet;
    const double idle = statusBytes("VmHWM:");
    const ParsedLists lists = load(path, clock, alphabet);
    const double peak = statusBytes("VmHWM:");
    if (lists.size() != kFewChannels ||
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

/// The median of several loads.
double growthOf(const QString& step, const QString& path) {
    std::array<double, kLoads> growths{};
    std::generate(growths.begin(), growths.end(), [&] { return stepOf(step, path); });
    std::sort(growths.begin(), growths.end());
    return growths[kLoads / 2];
}

void printRow(const char* row, double growth, double floor, double atMost) {
    std::printf(R"({"row": "%s", "unit": "MB", "guide": %.1f, "floor": %.1f, "atMost": %g})"
                "\n",
                row, growth / 1e6, floor / 1e6, atMost);
}

int measure() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"feed.xml.gz"_s);
    const double unpacked = stepOf(u"make"_s, path);
    printRow("feed, 12 channels, packed, memory", growthOf(u"page"_s, path), unpacked, kAtMost);
    printRow("own feed, 12 channels, packed, memory", growthOf(u"own"_s, path), kMostOfOwnFeed, 1);
    return 0;
}

} // namespace
} // namespace guide::bench

int main(int argc, char** argv) {
    using namespace guide::bench;
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 3) {
        return measure();
    }
    if (words[1] == QLatin1String("make")) {
        return make(words[2]);
    }
    return measureLoad(words[1] == QLatin1String("own") ? loadOwn : loadPage, words[2]);
}
