#pragma once

#include "core/ListingsType.h"
#include "core/TVChannels.h"
#include "platform/BackgroundTasks.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/LifeCycle.h"
#include "platform/files/Folders.h"
#include "platform/queues/DispatchQueue.h"
#include "platform/queues/MainBlock.h"
#include "store/FavoriteTitles.h"
#include "store/ListMerge.h"
#include "store/ListingsObserver.h"
#include "store/PopularShows.h"
#include "store/ScheduleQueries.h"
#include "store/ShowItem.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

namespace guide {

/// What the store works with. All of it must outlive the last block on the store's queues.
struct TVListingsEnvironment {
    const Clock& clock;
    const Device& device;
    const Folders& folders;
    DispatchQueues& queues;
    BackgroundTasks& backgroundTasks;
    const ApplicationStateSource& applicationState;
    TVChannels& channels;
    const Alphabet& alphabet;
    const FavoriteTitlesSource& favorites;
    PopularShows& popularShows;
    ListingsObserver& observer;
    /// The application's URL scheme; empty when it has none.
    QString scheme;
    /// How many shows per channel the screens want.
    std::function<int()> showCount;
};

/// Lists that were removed from the store.
struct RemovedListings;

using ShowCounts = std::unordered_map<ObjectId, unsigned>;
using ShowsBlock = std::function<void(ShowItems)>;

/// The store of schedules: a list of shows for each channel, a file for each list, and all queries over them.
/// Any thread. Operations do not block unless documented. Queries made before the first read is complete wait
/// for it.
class TVListings {
  public:
    /// Starts reading the listing files of the selected channels in the background.
    explicit TVListings(TVListingsEnvironment environment);
    ~TVListings();

    // ---- changes

    /// Replaces the stored lists with freshly read ones, prepared as described for mergedList(). A channel
    /// whose new list is empty or entirely past keeps its old one; a channel that is no longer selected gets
    /// none. The load time of every stored channel is set on return.
    MergeResult merge(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now, ListingsType type,
                      const ReadOutcome& read = {});

    /// Stores lists as they are, in ascending start time, under the same rules.
    void storeLists(const std::unordered_map<ObjectId, ShowList>& lists);

    /// Removes the list but not its file.
    void removeListingsForChannel(const ObjectId& channel) { removeListingsForChannels({channel}); }
    /// The same for several channels at the cost of one. The lists are kept for restoreListings() as long as
    /// the result is.
    std::shared_ptr<const RemovedListings> removeListingsForChannels(std::vector<ObjectId> channels);
    /// Puts removed lists back, of channels that are selected again and have no new list. They are written
    /// with the load time of the channel's record.
    void restoreListings(std::shared_ptr<const RemovedListings> removed);
    /// Rebuilds the list of all shows, without those that have ended, and starts a refresh of the most
    /// watched ones.
    void updatePopularList();

    /// Stores the list of the most watched shows, so that it outlives the process.
    void storePopularShows(ShowList list);

    /// Replaces the details of one stored show, and its pictures when any are given. Does nothing when the
    /// list no longer holds this very entry.
    void updateDetails(std::shared_ptr<const TVEntry> entry,
                       std::shared_ptr<const TVEntrySupplementalData> details, const PictureURLs& pictures);
    /// Sets the IMDb page, and the pictures when any are given, on every show of the channel with exactly
    /// this mask and title.
    void updateIMDBForChannel(const ObjectId& channel, const QString& identificator,
                              TVListingsCategory category, const QUrl& url, const PictureURLs& pictureURLs);

    // ---- files

    /// Sets the channel's load time at once and schedules its list for saving. While the application is in
    /// the background, the list is written soon.
    void addToSaveSchedule(const ObjectId& channel);
    /// Writes the scheduled lists soon. Without this call each of them is written within ten minutes.
    void checkEnded();
    /// Blocks on the file queue.
    bool isScheduledForSaving(const ObjectId& channel);
    /// Starts writing the scheduled lists. What cannot be written stays scheduled.
    void commitFiles();
    /// Blocks until all pending changes and queries are done and all scheduled lists are written, or until
    /// the time is up; then no further file is started. True when nothing is left to write.
    bool finishWriting(std::chrono::milliseconds atMost);

    // ---- queries

    /// One list for each selected channel, in the selected order, with the first showCount shows that are not
    /// over; the list may be empty.
    void
    onAirShowsWithQueue(std::shared_ptr<DispatchQueue> queue,
                        std::function<void(std::vector<ObjectId> selected, std::vector<ShowSpan>)> block);
    void onAirShows(MainBlock<std::vector<ObjectId>, std::vector<ShowSpan>> mainBlock);
    /// The shows of the channel that are not over.
    void cachedListForChannel(const ObjectId& channel, MainBlock<ShowSpan> mainBlock);
    /// For each selected channel how many shows are not over, counted up to showCount.
    void showCountForSelectedChannelsForQueue(std::shared_ptr<DispatchQueue> queue,
                                              std::function<void(ShowCounts)> block);
    /// Shows that share a bit with the mask; series only if the mask includes them.
    void showsWithCategory(TVListingsCategory category, QueuePriority priority,
                           MainBlock<ShowSpan> mainBlock);
    /// The shows of a selector: the most watched, those of the evening, or all.
    void allShowsWithCategory(TVListingsCategory category, QueuePriority priority,
                              MainBlock<ShowSpan> mainBlock);
    /// For each selector how many shows of today its query would list.
    void showCountsOfToday(std::vector<TVListingsCategory> selectors, QueuePriority priority,
                           MainBlock<std::vector<int>> mainBlock);
    /// Shows that contain the pattern in one of their texts, ignoring case and diacritics. The block runs on
    /// the global user-initiated queue.
    void showsContainingPattern(const QString& pattern, ShowsBlock highPriorityBlock);
    /// The show with this digest URL. The block is not called when there is none; then `notFound` is.
    void showWithURL(const QUrl& url, MainBlock<ShowItem> mainBlock, MainBlock<> notFound = {[] {}});
    void favoritesScheduleWithPriority(QueuePriority priority, MainBlock<ShowSpan> mainBlock);
    /// The block runs on the access queue and must not wait for the store.
    void favoritesScheduleWithBlock(ShowsBlock block);
    /// Favourites that have not begun. The block runs on the access queue and must not wait for the store.
    void favoritesScheduleWithURLBlock(std::function<void(FavoritesToCome)> URLBlock);
    void showScheduleForTitle(const QString& title, QueuePriority priority, MainBlock<ShowSpan> mainBlock);
    /// Whether a show with this source title and this flag is running or to come.
    void broadcastForTitle(const QString& title, bool previouslyShown, MainBlock<bool> mainBlock);

  private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace guide
