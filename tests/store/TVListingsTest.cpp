#include "store/TVListings.h"

#include "FileStoreFixture.h"
#include "fakes/ManualQueues.h"
#include "platform/memory/ManualClock.h"

namespace guide::test {
namespace {

using namespace std::chrono_literals;

constexpr const char* kAccess = "vorel.listings.access";
constexpr const char* kFiles = "vorel.listings.file.io";

class TVListingsTest : public ::testing::Test {
  protected:
    /// Opens the store and lets it read its files.
    TVListings& made() {
        world.open();
        queues.runAll();
        return *listings;
    }

    static ParsedLists parsed(const std::vector<TestShow>& shows) {
        ParsedLists lists;
        for (const TestShow& show : shows) {
            lists[show.onChannel].push_back(extended(show));
        }
        return lists;
    }
    MergeResult merge(const std::vector<TestShow>& shows, ListingsType type = ListingsType::XMLTV) {
        const std::vector<LoadItem> items{{channel(1), u"one"_s, u"cs"_s}, {channel(2), u"two"_s, u"sk"_s}};
        return listings->merge(items, parsed(shows), clock.now(), type);
    }

    std::vector<Titles> onAir() {
        std::vector<Titles> answer;
        listings->onAirShows({[&](const std::vector<ObjectId>& selected, const std::vector<ShowSpan>& shows) {
            EXPECT_EQ(selected, world.channels->selected());
            for (const ShowSpan& span : shows) {
                answer.push_back(titles(span));
            }
        }});
        queues.runAll();
        return answer;
    }
    Titles cachedList(int number) {
        Titles answer{"no answer"};
        listings->cachedListForChannel(channel(number),
                                       {[&](const ShowSpan& shows) { answer = titles(shows); }});
        queues.runAll();
        return answer;
    }
    Titles found(const QString& pattern) {
        Titles answer{"no answer"};
        listings->showsContainingPattern(pattern, [&](const ShowItems& shows) { answer = titles(shows); });
        queues.runAll();
        return answer;
    }

    ManualClock clock{kNow};
    ManualQueues queues{clock};
    QTemporaryDir folder;
    FileStoreFixture world{clock, queues, folder.path()};
    std::unique_ptr<TVListings>& listings = world.listings;
};

TEST_F(TVListingsTest, FirstReadCutsEndedShowsAndUnloadsEmptyChannels) {
    world.writeFile(channel(1), {show(-2, -1, u"old"_s), show(-1, 1, u"A"_s), show(-1, 0, u"ended behind"_s),
                                 show(1, 2, u"B"_s)});
    world.writeFile(channel(2), {show(-1, 0, u"ends now"_s)});
    world.writeFile(ObjectId::popular(), {show(-1, 0, u"P"_s)});
    world.channels->channelWithChannelId(channel(2))->setTimeLoaded(kNow);
    EXPECT_TRUE(replaceFile(world.listingsFile(channel(3)), "damaged"));
    made();
    EXPECT_EQ(cachedList(1), (Titles{"A", "ended behind", "B"}));
    EXPECT_EQ(cachedList(2), Titles{});
    EXPECT_EQ(world.channels->channelWithChannelId(channel(2))->timeLoaded(), std::nullopt) << "it is due";
    EXPECT_EQ(world.channels->channelWithChannelId(channel(3))->timeLoaded(), std::nullopt);
    EXPECT_EQ(found(u"b"_s), Titles{"B"}) << "all shows are those that have not ended";
    EXPECT_EQ(world.observer.replacements, 0);
}

TEST_F(TVListingsTest, FilesAreDeletedOnlyWhenTheyAreLongOver) {
    const auto day = [](int days) { return kNow + std::chrono::days(days); };
    const struct {
        const char* name;
        int now, lastEnd, loaded, otherLoaded;
        bool kept;
    } rows[] = {
        {"over for 14 days", 14, 0, -7, 14, true},
        {"for longer, as another load shows", 15, 0, -7, 15, false},
        {"the other load was long ago", 15, 0, -7, 13, true},
        {"only this list was ever loaded", 400, 0, -7, -7, true},
        {"the clock is a year ahead", 365, 7, 0, 0, true},
        {"a load with a clock that was ahead", 15, 7, 0, 365, true},
        {"which no longer helps to keep files", 30, 0, -7, 15, false},
        {"the clock is behind", -365, 7, 0, 0, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        clock.set(day(row.now));
        world.writeFile(channel(1), {{day(row.lastEnd) - std::chrono::hours(2), day(row.lastEnd), u"A"_s},
                                     {day(row.lastEnd) - std::chrono::hours(1), {}, u"B"_s}});
        const auto date = [this](int number, Moment loaded) {
            const QString path = world.listingsFile(channel(number));
            QFile file(path);
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            ASSERT_TRUE(replaceFile(path, file.readAll(), loaded));
        };
        date(1, day(row.loaded));
        world.writeFile(channel(2), {{day(500), day(501), u"C"_s}});
        date(2, day(row.otherLoaded));
        made();
        EXPECT_EQ(QFile::exists(world.listingsFile(channel(1))), row.kept);
        QFile::remove(world.listingsFile(channel(1)));
    }
}

TEST_F(TVListingsTest, AStartWithAClockThatIsAheadLosesNothing) {
    made();
    merge({show(0, 100, u"A"_s), show(1, 2, u"B"_s, 0, channel(2))});
    EXPECT_TRUE(listings->finishWriting(std::chrono::milliseconds(0)));

    clock.set(kNow + std::chrono::days(365));
    world.makeChannels();
    made();
    EXPECT_EQ(onAir(), (std::vector<Titles>{{}, {}, {}}));
    merge({show(3, 4, u"C"_s)}); // What the source has today is a year old.
    merge({show(365 * 24, 365 * 24 + 1, u"D"_s, 0, channel(2))});
    EXPECT_TRUE(listings->finishWriting(std::chrono::milliseconds(0)));

    clock.set(kNow + std::chrono::hours(1));
    world.makeChannels();
    made();
    EXPECT_EQ(onAir(), (std::vector<Titles>{{"A"}, {"D"}, {}}));
    const auto due = [this](int number) {
        return world.channels->channelWithChannelId(channel(number))
            ->reloadNeeded(clock.now(), std::chrono::hours(24));
    };
    EXPECT_FALSE(due(1));
    EXPECT_TRUE(due(2)) << "loaded in the future";
}

TEST_F(TVListingsTest, QueriesWaitForTheFirstRead) {
    world.writeFile(channel(1), {show(0, 1, u"A"_s)});
    world.open();
    EXPECT_EQ(onAir(), (std::vector<Titles>{{"A"}, {}, {}}));
}

TEST_F(TVListingsTest, WhoIsToldOfNewListsFindsThem) {
    made();
    world.favorites.titles = {u"B"_s};
    std::optional<FavoritesToCome> favorites;
    world.observer.told = [&] {
        listings->favoritesScheduleWithURLBlock([&](FavoritesToCome found) { favorites = std::move(found); });
    };
    merge({show(2, 3, u"B"_s), show(0, 1, u"A"_s)});
    queues.runAll();
    ASSERT_TRUE(favorites);
    EXPECT_EQ(titles(favorites->shows), Titles{"B"});
}

TEST_F(TVListingsTest, MergeStoresSchedulesAndAnnounces) {
    made();
    clock.advance(std::chrono::minutes(5));
    const MergeResult result =
        merge({show(2, 3, u"B"_s), show(0, 1, u"A"_s), show(-2, -1, u"old"_s, 0, channel(2)),
               show(0, 1, u"not asked for"_s, 0, channel(3))});
    EXPECT_EQ(result.outcomes, (decltype(result.outcomes){{channel(1), MergeOutcome::Stored},
                                                          {channel(2), MergeOutcome::OnlyPast}}));
    ASSERT_EQ(result.lists.size(), 1u);
    EXPECT_EQ(titles(*result.lists.at(channel(1))), (Titles{"A", "B"}));
    EXPECT_EQ(result.lists.at(channel(1))->front().entry()->language(), u"cs"_s);
    // At once, before any queue has run.
    EXPECT_EQ(world.channels->channelWithChannelId(channel(1))->timeLoaded(), clock.now());
    EXPECT_EQ(world.channels->channelWithChannelId(channel(2))->timeLoaded(), std::nullopt);
    EXPECT_EQ(world.observer.replacements, 1);

    queues.runAll();
    EXPECT_TRUE(listings->isScheduledForSaving(channel(1)));
    EXPECT_FALSE(listings->isScheduledForSaving(channel(2)));
    EXPECT_EQ(onAir(), (std::vector<Titles>{{"A", "B"}, {}, {}}));
    EXPECT_EQ(world.fileTitles(channel(1)), std::nullopt) << "written in the foreground";
    EXPECT_EQ(found(u"b"_s), Titles{"B"});

    merge({show(0, 1, u"C"_s)});
    EXPECT_EQ(merge({}).outcomes.at(channel(1)), MergeOutcome::Empty);
    EXPECT_EQ(merge({show(-2, -1, u"D"_s)}).outcomes.at(channel(1)), MergeOutcome::OnlyPast);
    EXPECT_EQ(cachedList(1), Titles{"C"});
    EXPECT_EQ(world.observer.replacements, 2);
}

TEST_F(TVListingsTest, OnlyIncompletePagesKeepStoredShows) {
    made();
    const std::vector<LoadItem> items{{channel(1), u"one"_s, u"cs"_s}};
    const std::vector<TestShow> whole{{hour(0), hour(1), u"A"_s}, {hour(1), hour(2), u"B"_s}};
    const std::vector<TestShow> part{{hour(0), hour(1), u"A2"_s}};
    merge(whole);
    const MergeResult result =
        listings->merge(items, parsed(part), clock.now(), ListingsType::XMLTV, {.incomplete = true});
    EXPECT_TRUE(result.read.incomplete);
    EXPECT_EQ(result.lists.at(channel(1))->size(), 2U);
    EXPECT_EQ(cachedList(1), (Titles{"A2", "B"}));
    listings->merge(items, parsed(part), clock.now(), ListingsType::XMLTV);
    EXPECT_EQ(cachedList(1), Titles{"A2"});
}

TEST_F(TVListingsTest, CommitWritesFilesDatedByTheLoad) {
    world.writeFile(channel(2), {show(0, 1, u"old file"_s)});
    made();
    merge({show(0, 1, u"A"_s), show(1, 3, u"B"_s), show(0, 1, u"C"_s, 0, channel(2))});
    queues.runAll();
    clock.advance(std::chrono::hours(1));
    world.channels->channelWithChannelId(channel(1))->requireReload(); // which found nothing
    listings->commitFiles();
    EXPECT_EQ(queues.run(kAccess), 1u);
    EXPECT_EQ(queues.run(kFiles), 2u) << "the timer and the commit";
    EXPECT_EQ(world.tasks.running(), 1u);
    queues.runAll();
    EXPECT_EQ(world.tasks.running(), 0u);
    EXPECT_EQ(world.fileTitles(channel(1)), Titles{"B"}) << "ended shows are cut";
    EXPECT_EQ(fileModificationDate(world.listingsFile(channel(1))), kNow);
    EXPECT_EQ(world.fileTitles(channel(2)), Titles{"old file"}) << "an empty list writes nothing";
    EXPECT_FALSE(listings->isScheduledForSaving(channel(1)));
    EXPECT_FALSE(listings->isScheduledForSaving(channel(2)));
    listings->commitFiles();
    queues.runAll();
    EXPECT_EQ(world.tasks.begun(), 3u);
    EXPECT_EQ(world.tasks.running(), 0u);
}

TEST_F(TVListingsTest, InTheBackgroundScheduledListsAreWrittenSoon) {
    made();
    world.state.state = ApplicationState::Background;
    merge({show(0, 1, u"A"_s)});
    queues.runAll();
    EXPECT_EQ(world.fileTitles(channel(1)), Titles{"A"});
    EXPECT_FALSE(listings->isScheduledForSaving(channel(1)));
}

TEST_F(TVListingsTest, ListsAreWrittenSoonAfterACheckAndOtherwiseEveryTenMinutes) {
    using namespace std::chrono_literals;
    const auto pass = [this](std::chrono::seconds time) {
        clock.advance(time);
        queues.runAll();
        return world.tasks.begun();
    };
    made();
    listings->checkEnded();
    queues.runAll();
    EXPECT_EQ(queues.delayed(), 0u) << "nothing to write";

    merge({show(0, 2, u"A"_s)});
    listings->checkEnded();
    queues.runAll();
    EXPECT_EQ(pass(19s), 0u);
    EXPECT_EQ(pass(1s), 1u);
    EXPECT_EQ(world.fileTitles(channel(1)), Titles{"A"});
    EXPECT_EQ(pass(1h), 1u) << "written once";
    EXPECT_EQ(queues.delayed(), 0u);

    merge({show(0, 2, u"B"_s)});
    queues.runAll();
    pass(5min);
    merge({show(0, 2, u"C"_s, 0, channel(2))});
    queues.runAll();
    QDir().mkdir(world.listingsFile(channel(2))); // so that writing the file fails
    EXPECT_EQ(pass(5min), 2u);
    EXPECT_EQ(world.fileTitles(channel(1)), Titles{"B"});
    QDir().rmdir(world.listingsFile(channel(2)));
    EXPECT_EQ(pass(10min), 3u);
    EXPECT_EQ(world.fileTitles(channel(2)), Titles{"C"});
    EXPECT_EQ(queues.delayed(), 0u);

    merge({show(0, 2, u"D"_s)});
    listings->checkEnded();
    queues.runAll();
    world.listings.reset();
    pass(1h);
    EXPECT_EQ(world.fileTitles(channel(1)), Titles{"B"}) << "timers do not outlive the store";
}

TEST_F(TVListingsTest, AReadOnlyProfileIsReadAndNothingIsWritten) {
    world.writeFile(channel(1), {show(0, 1, u"A"_s)});
    world.folders.writable = false;
    made();
    EXPECT_EQ(onAir(), (std::vector<Titles>{{"A"}, {}, {}}));
    merge({show(0, 1, u"B"_s)});
    listings->checkEnded();
    EXPECT_TRUE(listings->finishWriting(std::chrono::milliseconds(0)));
    EXPECT_EQ(queues.delayed(), 0u);
    EXPECT_EQ(onAir(), (std::vector<Titles>{{"B"}, {}, {}}));
    EXPECT_EQ(world.fileTitles(channel(1)), Titles{"A"});
}

TEST_F(TVListingsTest, CommitBetweenMergeAndStoreLosesNothing) {
    made();
    listings->commitFiles();
    queues.run(kAccess); // the commit has taken the old lists
    merge({show(0, 1, u"A"_s)});
    queues.runAll();
    EXPECT_TRUE(listings->isScheduledForSaving(channel(1)));
    EXPECT_TRUE(listings->finishWriting(std::chrono::milliseconds(0)));
    EXPECT_EQ(world.fileTitles(channel(1)), Titles{"A"});
}

TEST_F(TVListingsTest, AFailedWriteStaysScheduled) {
    made();
    merge({show(0, 1, u"A"_s), show(0, 1, u"C"_s, 0, channel(2))});
    QDir().mkdir(world.listingsFile(channel(1))); // a directory, so that writing the file fails
    EXPECT_FALSE(listings->finishWriting(std::chrono::milliseconds(0)));
    EXPECT_TRUE(listings->isScheduledForSaving(channel(1)));
    EXPECT_FALSE(listings->isScheduledForSaving(channel(2)));
    QDir().rmdir(world.listingsFile(channel(1)));
    EXPECT_TRUE(listings->finishWriting(std::chrono::milliseconds(0)));
    EXPECT_EQ(world.fileTitles(channel(1)), Titles{"A"});
}

TEST_F(TVListingsTest, AnExpiredWritingTaskIsEnded) {
    made();
    listings->commitFiles();
    queues.run(kAccess);
    queues.run(kFiles);
    world.tasks.expireAll();
    queues.runAll();
    EXPECT_EQ(world.tasks.running(), 0u);
}

TEST_F(TVListingsTest, OnAirReadsTheFileOfAChannelThatIsNotStored) {
    made();
    world.writeFile(channel(4),
                    {show(-1, 0, u"old"_s), show(0, 1, u"A"_s), show(1, 2, u"B"_s), show(2, 3, u"C"_s)});
    world.channels->setSelected({channel(4), channel(1)});
    EXPECT_EQ(onAir(), (std::vector<Titles>{{"A", "B"}, {}}));
    EXPECT_EQ(cachedList(4), Titles{});
    world.writeFile(channel(4), {show(-2, -1, u"older"_s), show(-1, 0, u"ends now"_s)});
    EXPECT_EQ(onAir(), (std::vector<Titles>{{}, {}}));
}

TEST_F(TVListingsTest, CountsShowsThatAreNotOverUpToShowCount) {
    made();
    merge({show(-1, 0, u"old"_s), show(0, 1, u"A"_s), show(1, 2, u"B"_s), show(2, 3, u"C"_s),
           show(0, 1, u"D"_s, 0, channel(2))});
    ShowCounts counts;
    std::shared_ptr<DispatchQueue> queue = queues.makeQueue("check", QueueKind::Serial);
    listings->showCountForSelectedChannelsForQueue(queue, [&](const ShowCounts& answer) {
        EXPECT_TRUE(ManualQueues::isCurrent(*queue));
        counts = answer;
    });
    queues.runAll();
    EXPECT_EQ(counts, (ShowCounts{{channel(1), 2}, {channel(2), 1}, {channel(3), 0}}));
}

TEST_F(TVListingsTest, AllShowsPutTheUsersFirstChannelFirst) {
    made();
    merge({show(0, 1, u"A1"_s), show(0, 1, u"A2"_s, 0, channel(2))});
    world.channels->setSelected({channel(2), channel(1)});
    listings->updatePopularList();
    EXPECT_EQ(found(u"a"_s), (Titles{"A2", "A1"}));
    clock.set(hour(1));
    EXPECT_EQ(found(u"a"_s).size(), 2u) << "a show that ends now is not over";
    listings->updatePopularList();
    EXPECT_EQ(found(u"a"_s), Titles{}) << "but it has ended";
}

TEST_F(TVListingsTest, AListOfADeselectedChannelIsNotStored) {
    made();
    world.channels->setSelected({channel(2)});
    listings->removeListingsForChannel(channel(1));
    merge({show(0, 1, u"A1"_s), show(0, 1, u"A2"_s, 0, channel(2))});
    EXPECT_EQ(found(u"a"_s), Titles{"A2"});
    EXPECT_TRUE(listings->finishWriting(std::chrono::milliseconds(0)));
    EXPECT_FALSE(QFile::exists(world.listingsFile(channel(1))));
}

TEST_F(TVListingsTest, RemovedListsLeaveTheirFiles) {
    world.writeFile(channel(1), {show(0, 1, u"A"_s)});
    made();
    listings->removeListingsForChannel(channel(1));
    EXPECT_EQ(cachedList(1), Titles{});
    EXPECT_EQ(found(u"a"_s), Titles{});
    EXPECT_TRUE(QFile::exists(world.listingsFile(channel(1))));
    EXPECT_EQ(world.popular.refreshes, 1);
    listings->updatePopularList();
    queues.runAll();
    EXPECT_EQ(world.popular.refreshes, 2);
}

TEST_F(TVListingsTest, RemovedListsCanBeRestored) {
    made();
    merge({show(0, 2, u"A1"_s), show(0, 2, u"A2"_s, 0, channel(2))});
    queues.runAll();
    const std::vector<ObjectId> all = world.channels->selected();
    world.channels->setSelected({});
    auto removed = listings->removeListingsForChannels(all);
    // Nothing is left to write.
    EXPECT_TRUE(listings->finishWriting(1s));
    EXPECT_EQ(found(u"a"_s), Titles{});

    world.channels->setSelected({channel(2), channel(1)});
    world.channels->channelWithChannelId(channel(1))->setTimeLoaded(kNow - 20h);
    merge({show(1, 2, u"A3"_s, 0, channel(2))});
    listings->restoreListings(removed);
    EXPECT_EQ(found(u"a"_s), (Titles{"A1", "A3"})) << "a newer list stays";
    EXPECT_TRUE(listings->finishWriting(1s));
    EXPECT_EQ(fileModificationDate(world.listingsFile(channel(1))), kNow - 20h);

    world.channels->setSelected({channel(2)});
    removed = listings->removeListingsForChannels({channel(1)});
    listings->restoreListings(removed);
    EXPECT_EQ(cachedList(1), Titles{}) << "it is not selected";
}

TEST_F(TVListingsTest, UpdatedShowsAreFoundAndWrittenAndOldListsStayTheSame) {
    made();
    const ShowList old = merge({show(0, 1, u"A"_s), show(1, 2, u"B"_s, 1)}).lists.at(channel(1));
    listings->commitFiles();
    queues.runAll();
    auto details = std::make_shared<TVEntrySupplementalData>();
    details->roles = u"Žanda"_s;
    clock.advance(std::chrono::minutes(1));
    listings->updateDetails((*old)[0].entry(), details, {});
    EXPECT_EQ(found(u"zanda"_s), Titles{"A"});
    EXPECT_TRUE(listings->isScheduledForSaving(channel(1)));
    EXPECT_EQ(world.channels->channelWithChannelId(channel(1))->timeLoaded(), clock.now());
    EXPECT_EQ((*old)[0].elementCount(), 2);
    listings->updateIMDBForChannel(channel(1), u"B"_s, 1, QUrl(u"https://i/1"_s), {QUrl(u"https://p/1"_s)});
    EXPECT_TRUE(listings->finishWriting(std::chrono::milliseconds(0)));
    const auto read = unarchivedShowsOfFile(world.listingsFile(channel(1)), latinAlphabet());
    ASSERT_TRUE(read);
    EXPECT_EQ((*read)[0].details()->roles, u"Žanda"_s);
    EXPECT_EQ((*read)[1].details()->imdbURL, QUrl(u"https://i/1"_s));
    EXPECT_EQ((*read)[1].elementCount(), 4);

    const auto gone = merge({show(0, 1, u"A"_s)}).lists.at(channel(1));
    listings->commitFiles();
    queues.runAll();
    listings->updateDetails((*old)[0].entry(), details, {});
    listings->updateIMDBForChannel(channel(3), u"B"_s, 1, QUrl(), {});
    queues.runAll();
    EXPECT_FALSE(listings->isScheduledForSaving(channel(1)))
        << "the entry belongs to a list that was replaced";
}

TEST_F(TVListingsTest, BlocksRunOnTheDocumentedQueues) {
    made();
    merge({show(0, 1, u"A"_s)});
    queues.runAll();
    world.popular.list = std::make_shared<const ShowItems>(ShowItems{item(show(0, 1, u"P"_s))});
    int answers = 0;
    const auto onMain = [&](const auto&...) {
        EXPECT_TRUE(ManualQueues::isCurrent(queues.mainQueue()));
        ++answers;
    };
    listings->showsContainingPattern(u"a"_s, [&](const ShowItems&) {
        EXPECT_TRUE(ManualQueues::isCurrent(queues.globalQueue(QueuePriority::UserInitiated)));
        ++answers;
    });
    listings->favoritesScheduleWithBlock([&](const ShowItems&) { ++answers; });
    listings->favoritesScheduleWithURLBlock([&](const FavoritesToCome&) { ++answers; });
    listings->showsWithCategory(1, QueuePriority::Background, {onMain});
    listings->allShowsWithCategory(TVListingsCategoryMostWatched, QueuePriority::Background, {onMain});
    listings->favoritesScheduleWithPriority(QueuePriority::Background, {onMain});
    listings->showScheduleForTitle(u"A"_s, QueuePriority::Background, {onMain});
    listings->broadcastForTitle(u"A"_s, false, {onMain});
    const auto url = TVEntry(*item(show(0, 1, u"A"_s)).entry()).urlDigestWithScheme(u"guide"_s);
    listings->showWithURL(*url, {onMain});
    const auto held = std::make_shared<int>();
    listings->showWithURL(QUrl(u"guide://absent"_s), {[&answers, held](const ShowItem&) { answers = -100; }});
    queues.runAll();
    EXPECT_EQ(answers, 9);
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace
} // namespace guide::test
