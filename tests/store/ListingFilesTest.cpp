#include "StoreWorld.h"
#include "fakes/ManualQueues.h"
#include "platform/memory/ManualClock.h"

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

/// What a process does that saves one list after another. Each list has its number in every title.
struct Saver {
    explicit Saver(const QString& folder)
        : world(clock, queues, folder)
        , listings(world.open()) {
        queues.runAll();
    }

    bool save(int number) {
        ParsedLists parsed;
        for (int i = 0; i < 200; ++i) {
            const Moment start = clock.now() + std::chrono::minutes(i);
            parsed[channel(1)].push_back(
                extended({start, start + std::chrono::minutes(1), QString::number(number)}));
        }
        listings.merge({{channel(1), u"one"_s, u"cs"_s}}, std::move(parsed), clock.now(),
                       ListingsType::XMLTV);
        return listings.finishWriting(std::chrono::milliseconds(0));
    }

    ManualClock clock;
    ManualQueues queues{clock};
    StoreWorld world;
    TVListings& listings;
};

/// The number of the list in the file; nothing when the file is not one whole list.
std::optional<int> storedNumber(const QString& folder) {
    ManualClock clock;
    ManualQueues queues(clock);
    const StoreWorld world(clock, queues, folder);
    const std::optional<Titles> stored = world.fileTitles(channel(1));
    if (!stored || stored->size() != 200 ||
        std::count(stored->begin(), stored->end(), stored->front()) != 200) {
        return std::nullopt;
    }
    return std::stoi(stored->front());
}

pid_t startChild(const std::function<void()>& body) {
    const pid_t child = ::fork();
    if (child == 0) {
        body();
        ::_exit(0);
    }
    return child;
}

TEST(ListingFilesTest, AKilledProcessLeavesAWholeList) {
    QTemporaryDir folder;
    int last = 0;
    for (int round = 0; round < 12; ++round) {
        int ready[2];
        ASSERT_EQ(::pipe(ready), 0);
        const pid_t child = startChild([&] {
            Saver saver(folder.path());
            for (int number = last + 1;; ++number) {
                saver.save(number);
                [[maybe_unused]] const ssize_t told = ::write(ready[1], "", 1);
            }
        });
        char byte = 0;
        ASSERT_EQ(::read(ready[0], &byte, 1), 1);
        ::usleep(static_cast<useconds_t>(round * 1'373));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(ready[0]);
        ::close(ready[1]);
        const std::optional<int> stored = storedNumber(folder.path());
        ASSERT_TRUE(stored) << "round " << round;
        EXPECT_GT(*stored, last);
        last = *stored;
    }
}

TEST(ListingFilesTest, AFullDiskLeavesTheOldListAndKeepsTheNewOneScheduled) {
    QTemporaryDir folder;
    ASSERT_TRUE(Saver(folder.path()).save(1));
    const pid_t child = startChild([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        Saver saver(folder.path());
        rlimit limit{};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = 1000;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const bool refused = !saver.save(2) && saver.listings.isScheduledForSaving(channel(1));
        const bool kept = storedNumber(folder.path()) == 1;
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const bool repaired = saver.listings.finishWriting(std::chrono::milliseconds(0));
        ::_exit(refused && kept && repaired ? 7 : 1);
    });
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_EQ(storedNumber(folder.path()), 2);
    EXPECT_EQ(QDir(folder.path()).entryList({u".*"_s}, QDir::Files | QDir::Hidden), QStringList{});
}

TEST(ListingFilesTest, ATruncatedFileCountsAsAbsent) {
    QTemporaryDir folder;
    ASSERT_TRUE(Saver(folder.path()).save(1));
    Saver reader(folder.path());
    QFile file(reader.world.listingsFile(channel(1)));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    for (qsizetype length = 0; length < whole.size(); length += 1 + length / 20) {
        SCOPED_TRACE(length);
        ASSERT_TRUE(replaceFile(file.fileName(), whole.first(length)));
        ASSERT_FALSE(storedNumber(folder.path()));
        Saver restarted(folder.path());
        EXPECT_FALSE(QFile::exists(file.fileName()));
        EXPECT_EQ(restarted.world.channels->channelWithChannelId(channel(1))->timeLoaded(), std::nullopt);
    }
    ASSERT_TRUE(replaceFile(file.fileName(), whole));
    EXPECT_EQ(storedNumber(folder.path()), 1);
}

} // namespace
} // namespace guide::test
