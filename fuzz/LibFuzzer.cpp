// The libFuzzer program. Besides libFuzzer's options it accepts:
//   --target=NAME         what to fuzz
//   --list                prints each target and the files below src/ with its dictionary
//   --seeds=FOLDER        writes the target's seeds and exits
#include "FuzzTarget.h"
#include "MemoryWatch.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

using guide::fuzz::FuzzTarget;

/// Allowance independent of the input: tables created once, buffers of libraries.
constexpr std::size_t kFixedMemory = 2 << 20;

const FuzzTarget* chosen = nullptr;
/// The highest memory use per byte of input so far; inputs below a minimum size do not count.
double peakPerByte = 0;

[[noreturn]] void usage() {
    std::fputs("--target=NAME, one of --list, is missing\n", stderr);
    std::exit(2);
}

std::string_view valueOf(std::string_view name, int count, char** arguments) {
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument.starts_with(name)) {
            return argument.substr(name.size());
        }
    }
    return {};
}

void list() {
    for (const FuzzTarget& target : guide::fuzz::fuzzTargets()) {
        std::printf("%s", target.name.c_str());
        for (const std::string& file : target.literals) {
            std::printf(" %s", file.c_str());
        }
        std::printf("\n");
    }
}

void writeSeeds(const FuzzTarget& target, const QString& folder) {
    QDir().mkpath(folder);
    int number = 0;
    for (const QByteArray& seed : target.seeds()) {
        QFile file(folder + QStringLiteral("/seed-%1").arg(++number));
        if (!file.open(QIODevice::WriteOnly) || file.write(seed) != seed.size()) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
            std::exit(1);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    if (std::count(*arguments, *arguments + *count, std::string_view("--list")) > 0) {
        list();
        std::exit(0);
    }
    const std::string_view name = valueOf("--target=", *count, *arguments);
    const auto& targets = guide::fuzz::fuzzTargets();
    const auto target = std::find_if(targets.begin(), targets.end(),
                                     [name](const FuzzTarget& each) { return each.name == name; });
    if (target == targets.end()) {
        usage();
    }
    chosen = &*target;
    if (const std::string_view folder = valueOf("--seeds=", *count, *arguments); !folder.empty()) {
        writeSeeds(*chosen, QString::fromUtf8(folder.data(), static_cast<qsizetype>(folder.size())));
        std::exit(0);
    }
    // Creates caches and tables, so that no measured run does.
    for (const QByteArray& seed : chosen->seeds()) {
        chosen->run(seed);
    }
    std::atexit([] { std::fprintf(stderr, "peak memory per byte of input: %.1f\n", peakPerByte); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const guide::fuzz::MemoryWatch watch;
    chosen->run(input);
    if (chosen->maxMemoryPerByte > 0) {
        const std::size_t peak = watch.peak();
        const std::size_t bound = kFixedMemory + size * static_cast<std::size_t>(chosen->maxMemoryPerByte);
        if (peak > bound) {
            std::fprintf(stderr, "%zu bytes allocated for an input of %zu\n", peak, size);
        }
        guide::fuzz::require(peak <= bound, "memory is a small multiple of the input");
        if (size >= 4096) {
            peakPerByte = std::max(peakPerByte, static_cast<double>(peak) / static_cast<double>(size));
        }
    }
    return 0;
}
