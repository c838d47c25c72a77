#include "FuzzTarget.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <random>

namespace guide::fuzz {

namespace {

/// Runs the input. A violated invariant aborts the process.
void run(const FuzzTarget& target, const QByteArray& input, const std::string& what) {
    const testing::ScopedTrace trace(__FILE__, __LINE__, target.name + ": " + what);
    target.run(input);
}

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

TEST(Fuzz, AcceptsSeedsAndTheirMutations) {
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
                run(target, mutated(seeds[i], random), "mutation of seed " + std::to_string(i));
            }
        }
        run(target, {}, "empty input");
    }
}

TEST(Fuzz, AcceptsInputsThatOnceFailed) {
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
