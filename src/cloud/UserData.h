#pragma once

#include "alarms/AlarmActions.h"
#include "alarms/AlarmCalendar.h"
#include "cloud/CloudSync.h"
#include "cloud/UserDataActions.h"
#include "core/Catalogue.h"

#include <QByteArray>

namespace guide {

/// The dependencies of UserData. All of them must outlive the last block on the queues.
struct UserDataEnvironment {
    const Clock& clock;
    DispatchQueues& queues;
    const Catalogue& catalogue;
    TVChannels& channels;
    TVShows& shows;
    TVListings& listings;
    KeyValueStore& keyValueStore;
    UserDefaults& userDefaults;
    AlarmSynchronisation& alarmSynchronisation;
    AlarmActions& alarmActions;
    FavoriteActions& favoriteActions;
    ReplacedLists& replacedLists;
    CloudSync& cloudSync;
    /// Where the exported file goes.
    QString exportFolder;
    /// The alarms as last read. Any thread; may be empty.
    std::function<std::shared_ptr<const KnownEvents>()> knownEvents;
    /// Calls the block on the main queue after the changes of the calendar that were asked for before. May be
    /// empty.
    std::function<void(Block block)> afterCalendarChanges;
    /// No channel is selected any more: tabs and screens follow. Main queue.
    std::function<void()> selectionErased;
};

/// The data that the guide holds about the user: channels, favourites, alarms and shared settings.
class UserData final : public UserDataActions {
  public:
    explicit UserData(UserDataEnvironment environment);

    /// The content of the exported file, in UTF-8. Reads the rules if they have not been read. Any thread.
    QByteArray exportedText() const;

    void exportData(MainBlock<std::optional<QString>> mainBlock) override;
    void count(MainBlock<UserDataCounts> mainBlock) override;
    void erase(bool more, MainBlock<UserDataCounts> mainBlock) override;
    void replacedLists(MainBlock<std::vector<ReplacedList>> mainBlock) override;
    void restore(const ReplacedList& list, MainBlock<bool> mainBlock) override;

  private:
    UserDataCounts countInMemory() const;
    /// Of the alarms to come, in the order of their starts; a title as often as it has alarms.
    QStringList titlesOfAlarms() const;
    /// Answers when the calendar has done its part. `rules` are those that there were.
    void answerErased(UserDataCounts counts, std::shared_ptr<const FavoritesSnapshot> rules,
                      MainBlock<UserDataCounts> mainBlock);

    const UserDataEnvironment m_environment;
    const std::shared_ptr<DispatchQueue> m_queue;
    /// Blocks on the main queue hold it weakly.
    const std::shared_ptr<const void> m_alive = std::make_shared<char>();
};

} // namespace guide
