#include "FuzzTarget.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <string_view>
#include <unistd.h>

// Defined by the runtime of a sanitizer.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace guide::fuzz {

namespace {

/// The target and the input that run.
std::string running;

void nameWhatRuns() {
    // Only what a signal handler may call.
    for (const std::string_view part :
         {std::string_view("\nfailed: "), std::string_view(running), std::string_view("\n")}) {
        [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, part.data(), part.size());
    }
}

/// A violated invariant aborts the process, a sanitizer ends it; both must say which input was running.
class ReplayTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        struct sigaction action{};
        action.sa_handler = [](int) { nameWhatRuns(); };
        // The signal ends the process as soon as the handler returns.
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        ::sigaction(SIGABRT, &action, nullptr);
        if (&__sanitizer_set_death_callback != nullptr) {
            __sanitizer_set_death_callback(nameWhatRuns);
        } else {
            ::sigaction(SIGSEGV, &action, nullptr);
        }
    }

    static void run(const FuzzTarget& target, const QByteArray& input, const std::string& what) {
        running = target.name + ", " + what;
        target.run(input);
    }
};

/// The seed with some bytes changed, removed or repeated.
QByteArray mutated(QByteArray input, std::mt19937& random) {
    for (unsigned changes = 1 + random() % 4; changes > 0 && !input.isEmpty(); --changes) {
        const auto at = static_cast<qsizetype>(random() % static_cast<unsigned>(input.size()));
        const auto length = std::min<qsizetype>(input.size() - at, static_cast<qsizetype>(random() % 64));
        switch (random() % 4) {
        case 0:
            input[at] = static_cast<char>(random());
            break;
        case 1:
            input.remove(at, length);
            break;
        case 2:
            input.insert(at, input.mid(at, length));
            break;
        default:
            input.truncate(at);
        }
    }
    return input;
}

TEST_F(ReplayTest, AcceptsSeedsAndTheirMutations) {
    constexpr int kMutationsPerSeed = 40;
    std::mt19937 random(20261121);
    for (const FuzzTarget& target : fuzzTargets()) {
        const std::vector<QByteArray> seeds = target.seeds();
        EXPECT_FALSE(seeds.empty()) << target.name;
        for (const std::string& file : target.literals) {
            EXPECT_TRUE(
                QFile::exists(QStringLiteral(QUELLIN_SOURCE_DATA "/../src/") + QString::fromStdString(file)))
                << file;
        }
        for (std::size_t i = 0; i < seeds.size(); ++i) {
            run(target, seeds[i], "seed " + std::to_string(i));
            for (int change = 0; change < kMutationsPerSeed; ++change) {
                run(target, mutated(seeds[i], random),
                    "mutation " + std::to_string(change) + " of seed " + std::to_string(i));
            }
        }
        run(target, {}, "empty input");
    }
}

TEST_F(ReplayTest, AcceptsInputsThatOnceFailed) {
    for (const FuzzTarget& target : fuzzTargets()) {
        const QDir regressions(QStringLiteral(QUELLIN_FUZZ_REGRESSIONS "/") +
                               QString::fromStdString(target.name));
        for (const QString& name : regressions.entryList(QDir::Files, QDir::Name)) {
            QFile file(regressions.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
            run(target, file.readAll(), name.toStdString());
        }
    }
}

} // namespace

} // namespace guide::fuzz
