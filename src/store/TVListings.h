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

/// What the store is made of and asks; all of it outlives the last block of the store's queues.
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
    /// How many shows a channel the screens want.
    std::function<int()> showCount;
};

using ShowCounts = std::unordered_map<ObjectId, unsigned>;
using ShowsBlock = std::function<void(ShowItems)>;

/// The one store of schedules: a list of shows for each channel, a file for each list, and every query over
/// them. All operations may be called from any thread; none blocks, save where it says so. A query asked
/// before the first read is done waits for it.
class TVListings {
  public:
    /// Starts to read the listing files of the selected channels in the background.
    explicit TVListings(TVListingsEnvironment environment);
    ~TVListings();

    // ---- changes

    /// Puts freshly read lists in the place of the stored ones: sorted, without double start times and
    /// closing placeholders, with end times by the rule of the listing type, without what is over. A channel
    /// whose list is empty or past keeps what it has, one that is selected no more gets nothing. The load
    /// time of every stored channel is set when this returns.
    MergeResult merge(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now, ListingsType type);

    /// Forgets the list; its file stays.
    void removeListingsForChannel(const ObjectId& channel);
    /// Makes the list of all shows anew; the second also starts the refresh of the most watched shows.
    void saveAllShows();
    void updatePopularList();

    /// Gives one show of a stored list other details, and pictures when there are any. Does nothing when the
    /// list holds this very entry no more.
    void updateDetails(std::shared_ptr<const TVEntry> entry,
                       std::shared_ptr<const TVEntrySupplementalData> details, const QSet<QUrl>& pictures);
    /// Sets the IMDb page, and the pictures when there are any, on every show of the channel with exactly
    /// this mask and title.
    void updateIMDBForChannel(const ObjectId& channel, const QString& identificator,
                              TVListingsCategory category, const QUrl& url, const QSet<QUrl>& pictureURLs);

    // ---- files

    /// Sets the channel's load time to now at once, and schedules its list; in the background it is written
    /// soon.
    void addToSaveSchedule(const ObjectId& channel);
    /// Blocks on the file queue.
    bool isScheduledForSaving(const ObjectId& channel);
    /// Writes the lists that are scheduled, in the background. What could not be written stays scheduled.
    void commitFiles();
    /// Blocks until every change and query that was asked for is done and every scheduled list is written, or
    /// the time is up: then no further file is begun. True when nothing is left to be written.
    bool finishWriting(std::chrono::milliseconds atMost);

    // ---- queries

    /// One list for each selected channel, in the selected order, also an empty one; at most showCount shows
    /// that are not over.
    void
    onAirShowsWithQueue(std::shared_ptr<DispatchQueue> queue,
                        std::function<void(std::vector<ObjectId> selected, std::vector<ShowSpan>)> block);
    void onAirShows(MainBlock<std::vector<ObjectId>, std::vector<ShowSpan>> mainBlock);
    /// The shows of the channel that are not over.
    void cachedListForChannel(const ObjectId& channel, QueuePriority priority, MainBlock<ShowSpan> mainBlock);
    /// For each selected channel how many shows are not over, counted up to showCount.
    void showCountForSelectedChannelsForQueue(std::shared_ptr<DispatchQueue> queue,
                                              std::function<void(ShowCounts)> block);
    /// Shows that share a bit with the mask, series only where the mask asks for them.
    void showsWithCategory(TVListingsCategory category, QueuePriority priority,
                           MainBlock<ShowSpan> mainBlock);
    /// The shows of a selector: the most watched, those of the evening, or all.
    void allShowsWithCategory(TVListingsCategory category, QueuePriority priority,
                              MainBlock<ShowSpan> mainBlock);
    /// Shows with the pattern in one of their texts, without regard to case and diacritics. Answers on the
    /// global user-initiated queue.
    void showsContainingPattern(const QString& pattern, ShowsBlock highPriorityBlock);
    /// The show with this digest URL. The block is not called when there is none.
    void showWithURL(const QUrl& url, MainBlock<ShowItem> mainBlock);
    void favoritesScheduleWithPriority(QueuePriority priority, MainBlock<ShowSpan> mainBlock);
    /// Answers on the access queue: the block must not wait for the store.
    void favoritesScheduleWithBlock(ShowsBlock block);
    /// Favourites that have not begun. Answers on the access queue: the block must not wait for the store.
    void favoritesScheduleWithURLBlock(std::function<void(FavoritesToCome)> URLBlock);
    void showScheduleForTitle(const QString& title, QueuePriority priority, MainBlock<ShowSpan> mainBlock);
    /// Whether a show of this source title, a repeat or not, is running or to come.
    void broadcastForTitle(const QString& title, bool previouslyShown, MainBlock<bool> mainBlock);

  private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace guide
