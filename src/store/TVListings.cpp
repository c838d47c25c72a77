#include "store/TVListings.h"

#include "core/ListingsFile.h"
#include "platform/files/FileReplacement.h"
#include "store/ScheduleQueries.h"
#include "store/ShowCoding.h"
#include "store/ShowUpdates.h"
#include "store/TVListingsState.h"

#include <algorithm>
#include <map>
#include <unordered_set>

namespace guide {

namespace {

QString listingsPath(const Folders& folders, const ObjectId& channel) {
    return folders.caches + u'/' + listingsFileFromChannelIdentificator(channel);
}

std::shared_ptr<const ChannelList> channelList(ShowItems shows) {
    return std::make_shared<const ChannelList>(std::make_shared<const ShowItems>(std::move(shows)));
}

/// How long the file of a list is kept after its last show.
constexpr std::chrono::days kKeptAfterEnd{14};

Moment latestEnd(const ShowItems& shows) {
    Moment latest = Moment::min();
    for (const ShowItem& show : shows) {
        latest = std::max(latest, show.entry()->endDateTime().value_or(*show.entry()->dateTime()));
    }
    return latest;
}

} // namespace

TVListings::State::State(TVListingsEnvironment ownEnvironment)
    : environment(std::move(ownEnvironment))
    , access(environment.queues.makeQueue("vorel.listings.access", QueueKind::Concurrent))
    , saveSchedule(std::make_shared<SaveSchedule>(environment.queues, environment.clock, environment.folders,
                                                  environment.backgroundTasks)) {}

void TVListings::State::change(std::function<void(State&)> block) {
    access->asyncBarrier([self = shared_from_this(), block = std::move(block)] { block(*self); });
}

void TVListings::State::query(std::function<void(State&)> block) {
    underway.async(*access, [self = shared_from_this(), block = std::move(block)] { block(*self); });
}

void TVListings::State::queryAllShows(QueuePriority priority,
                                      std::function<void(State&, const AllShows&)> block) {
    // The block is moved, never copied: what it captured for the main queue must not be released here.
    query([priority, block = std::move(block)](State& state) mutable {
        state.underway.async(state.environment.queues.globalQueue(priority),
                             [self = state.shared_from_this(), all = state.allShows,
                              block = std::move(block)] { block(*self, *all); });
    });
}

void TVListings::State::startFirstRead() {
    std::vector<ObjectId> channels = environment.channels.selected();
    channels.push_back(ObjectId::popular());
    saveSchedule->setDue([weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->writeScheduledLists();
        }
    });
    change([channels = std::move(channels)](State& state) {
        std::vector<ReadList> read(channels.size());
        DispatchGroup reads;
        for (std::size_t i = 0; i < channels.size(); ++i) {
            reads.async(
                state.environment.queues.globalQueue(QueuePriority::UserInitiated),
                [&state, &channel = channels[i], &file = read[i]] { file = state.readList(channel); });
        }
        reads.wait();
        std::vector<std::pair<ObjectId, std::optional<Moment>>> without;
        for (std::size_t i = 0; i < channels.size(); ++i) {
            if (read[i].list) {
                state.lists.insert_or_assign(channels[i], std::move(read[i].list));
            } else if (channels[i] != ObjectId::popular()) {
                without.emplace_back(channels[i], read[i].lastEnd);
            }
        }
        if (const auto popular = state.lists.find(ObjectId::popular()); popular != state.lists.end()) {
            state.environment.popularShows.restore(popular->second->shows());
        }
        state.unload(without);
        state.saveAllShows(false);
    });
}

TVListings::State::ReadList TVListings::State::readList(const ObjectId& channel) const {
    std::optional<ShowItems> shows =
        unarchivedShowsOfFile(listingsPath(environment.folders, channel), environment.alphabet);
    if (!shows || shows->empty()) {
        return {};
    }
    ReadList read{.list = nullptr, .lastEnd = latestEnd(*shows)};
    const std::size_t ended = firstNotEnded(*shows, environment.clock.now());
    shows->erase(shows->begin(), shows->begin() + static_cast<std::ptrdiff_t>(ended));
    if (!shows->empty()) {
        read.list = channelList(*std::move(shows));
    }
    return read;
}

void TVListings::State::saveAllShows(bool updatePopular) {
    // Shows that start at the same time are ordered by the user's order of channels.
    AllShows::Lists ordered;
    std::unordered_set<ObjectId> placed{ObjectId::popular()};
    for (const ObjectId& channel : environment.channels.selected()) {
        if (const auto list = lists.find(channel); list != lists.end() && placed.insert(channel).second) {
            ordered.push_back(list->second);
        }
    }
    std::map<ObjectId, std::shared_ptr<const ChannelList>> others;
    for (const auto& [channel, list] : lists) {
        if (!placed.contains(channel)) {
            others.emplace(channel, list);
        }
    }
    for (auto& [channel, list] : others) {
        ordered.push_back(std::move(list));
    }
    allShows = std::make_shared<const AllShows>(std::move(ordered), environment.clock.now(), allShows);
    if (updatePopular) {
        environment.popularShows.refresh(allShows);
    }
}

void TVListings::State::replaceList(const ObjectId& channel, ShowItems shows) {
    lists.insert_or_assign(channel, channelList(std::move(shows)));
    saveAllShows(false);
    setTimeLoaded(channel);
    scheduleSaving({channel});
}

Moment TVListings::State::latestLoad() const {
    const Moment now = environment.clock.now();
    Moment latest = Moment(std::chrono::milliseconds(0));
    for (const ObjectId& channel : environment.channels.selected()) {
        const auto loaded = fileModificationDate(listingsPath(environment.folders, channel));
        if (loaded && *loaded <= now) {
            latest = std::max(latest, *loaded);
        }
    }
    return latest;
}

// A clock that is ahead must not cost any list. A file is therefore deleted only when its last show ended
// kKeptAfterEnd before the latest load time in the profile as well as before the time of the clock: the load
// of another list shows that the time has really passed. Load times after that of the clock do not count. A
// clock that was ahead leaves such times behind, but only until those lists are loaded again.
void TVListings::State::unload(
    const std::vector<std::pair<ObjectId, std::optional<Moment>>>& lastEnds) const {
    std::optional<Moment> deletedBefore;
    for (const auto& [channel, lastEnd] : lastEnds) {
        const auto record = environment.channels.channelWithChannelId(channel);
        if (!record) {
            continue;
        }
        if (lastEnd && !deletedBefore) {
            deletedBefore = latestLoad() - kKeptAfterEnd;
        }
        if (lastEnd && *lastEnd < *deletedBefore) {
            record->unload();
        } else {
            record->requireReload();
        }
    }
}

void TVListings::State::setTimeLoaded(const ObjectId& channel) const {
    if (channel == ObjectId::popular()) {
        return;
    }
    if (const auto record = environment.channels.channelWithChannelId(channel)) {
        record->setTimeLoaded(environment.clock.now());
    }
}

void TVListings::State::scheduleSaving(std::vector<ObjectId> channels) {
    saveSchedule->add(std::move(channels));
    environment.queues.mainQueue().async([self = shared_from_this()] {
        if (self->environment.applicationState.applicationState() == ApplicationState::Background) {
            self->commitFiles();
        }
    });
}

void TVListings::State::commitFiles() {
    saveSchedule->setAbandoned(false);
    writeScheduledLists();
}

void TVListings::State::writeScheduledLists() {
    query([](State& state) {
        // Every list that is already scheduled on the file queue is among these.
        state.underway.async(
            state.saveSchedule->queue(),
            [self = state.shared_from_this(), lists = state.lists] { self->saveSchedule->write(lists); });
    });
}

TVListings::TVListings(TVListingsEnvironment environment)
    : m_state(std::make_shared<State>(std::move(environment))) {
    m_state->startFirstRead();
}

TVListings::~TVListings() = default;

MergeResult TVListings::merge(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now,
                              ListingsType type, const ReadOutcome& read) {
    std::unordered_map<ObjectId, ShowList> stored;
    if (read.incomplete || read.keepsRicher) {
        m_state->access->sync([&] {
            for (const LoadItem& item : items) {
                if (const auto list = m_state->lists.find(item.channel); list != m_state->lists.end()) {
                    stored.emplace(item.channel, list->second->shows());
                }
            }
        });
    }
    MergeResult result = mergedLists(items, std::move(parsed), now, type, read, stored);
    storeLists(result.lists);
    return result;
}

void TVListings::storeLists(const std::unordered_map<ObjectId, ShowList>& lists) {
    ChannelLists made;
    for (const auto& [channel, list] : lists) {
        made.emplace(channel, std::make_shared<const ChannelList>(list));
        m_state->setTimeLoaded(channel);
    }
    if (made.empty()) {
        return;
    }
    m_state->change([made = std::move(made)](State& state) {
        std::vector<ObjectId> channels;
        for (const auto& [channel, list] : made) {
            // The user may have deselected the channel while its pages were being loaded.
            if (!state.environment.channels.channelWithChannelId(channel)) {
                continue;
            }
            state.lists.insert_or_assign(channel, list);
            channels.push_back(channel);
        }
        state.scheduleSaving(std::move(channels));
        // Before anyone who is told can ask.
        state.saveAllShows(false);
    });
    m_state->environment.observer.listingsReplaced();
}

std::shared_ptr<const RemovedListings> TVListings::removeListingsForChannels(std::vector<ObjectId> channels) {
    auto removed = std::make_shared<RemovedListings>();
    // Only a caller that keeps the result can restore the lists.
    m_state->change([channels = std::move(channels), weak = std::weak_ptr(removed)](State& state) {
        const auto kept = weak.lock();
        for (const ObjectId& channel : channels) {
            auto list = state.lists.extract(channel);
            if (kept && !list.empty()) {
                kept->lists.insert(std::move(list));
            }
        }
        state.saveAllShows(true);
    });
    return removed;
}

void TVListings::restoreListings(std::shared_ptr<const RemovedListings> removed) {
    m_state->change([removed = std::move(removed)](State& state) {
        bool changed = false;
        for (const auto& [channel, list] : removed->lists) {
            const auto record = state.environment.channels.channelWithChannelId(channel);
            if (!record || !state.lists.emplace(channel, list).second) {
                continue;
            }
            changed = true;
            // The list may have been waiting to be written when it was removed.
            if (const auto loaded = record->timeLoaded()) {
                state.saveSchedule->add({channel}, *loaded);
            }
        }
        if (changed) {
            state.saveAllShows(true);
        }
    });
}

void TVListings::updatePopularList() {
    m_state->change([](State& state) { state.saveAllShows(true); });
}

void TVListings::storePopularShows(ShowList list) {
    m_state->change([list = std::move(list)](State& state) {
        state.lists.insert_or_assign(ObjectId::popular(), std::make_shared<const ChannelList>(list));
        state.scheduleSaving({ObjectId::popular()});
    });
}

void TVListings::updateDetails(std::shared_ptr<const TVEntry> entry,
                               std::shared_ptr<const TVEntrySupplementalData> details,
                               const PictureURLs& pictures) {
    m_state->change([entry = std::move(entry), details = std::move(details), pictures](State& state) {
        const auto list = state.lists.find(entry->channel());
        if (list == state.lists.end()) {
            return;
        }
        if (auto updated = listWithDetails(*list->second->shows(), *entry, details, pictures)) {
            state.replaceList(entry->channel(), *std::move(updated));
        }
    });
}

void TVListings::updateIMDBForChannel(const ObjectId& channel, const QString& identificator,
                                      TVListingsCategory category, const QUrl& url,
                                      const PictureURLs& pictureURLs) {
    m_state->change([channel, identificator, category, url, pictureURLs](State& state) {
        const auto list = state.lists.find(channel);
        if (list == state.lists.end()) {
            return;
        }
        if (auto updated = listWithIMDB(*list->second->shows(), identificator, category, url, pictureURLs)) {
            state.replaceList(channel, *std::move(updated));
        }
    });
}

void TVListings::addToSaveSchedule(const ObjectId& channel) {
    m_state->setTimeLoaded(channel);
    m_state->scheduleSaving({channel});
}

bool TVListings::isScheduledForSaving(const ObjectId& channel) {
    return m_state->saveSchedule->contains(channel);
}

void TVListings::checkEnded() {
    // After the changes that the check made.
    m_state->query([](State& state) {
        state.saveSchedule->queue().async([schedule = state.saveSchedule] { schedule->checkEnded(); });
    });
}

void TVListings::commitFiles() {
    m_state->commitFiles();
}

bool TVListings::finishWriting(std::chrono::milliseconds atMost) {
    m_state->commitFiles();
    if (!m_state->underway.wait(atMost)) {
        m_state->saveSchedule->setAbandoned(true);
        return false;
    }
    return m_state->saveSchedule->empty();
}

} // namespace guide
