#pragma once

#include "ScreenWorld.h"
#include "cloud/SharedPlaceActions.h"
#include "cloud/UserDataActions.h"

namespace guide::test {

/// The data of a user. The answers come from the main queue.
struct WorldUserData final : UserDataActions {
    explicit WorldUserData(DispatchQueue& ownMainQueue)
        : mainQueue(ownMainQueue) {}
    void exportData(MainBlock<std::optional<QString>> mainBlock) override {
        mainBlock.post(mainQueue, std::optional(exported));
    }
    void count(MainBlock<UserDataCounts> mainBlock) override {
        mainBlock.post(mainQueue, UserDataCounts(counts));
    }
    void erase(bool more, MainBlock<UserDataCounts> mainBlock) override {
        erased << more;
        mainBlock.post(mainQueue, std::exchange(counts, {}));
    }
    void replacedLists(MainBlock<std::vector<ReplacedList>> mainBlock) override {
        mainBlock.post(mainQueue, std::vector(lists));
    }
    void restore(const ReplacedList& list, MainBlock<bool> mainBlock) override {
        restored << list.name;
        mainBlock.post(mainQueue, bool(works));
    }
    DispatchQueue& mainQueue;
    std::optional<QString> exported = u"/home/tv-app-data.txt"_s;
    UserDataCounts counts{2, 5, 1, 3, 4, true, true};
    std::vector<ReplacedList> lists;
    QList<bool> erased;
    QStringList restored;
    bool works = true;
};

/// Refuses addresses that contain "bad".
struct WorldSharedPlace final : SharedPlaceActions {
    explicit WorldSharedPlace(DispatchQueue& ownMainQueue)
        : mainQueue(ownMainQueue) {}
    SharedPlace place() const override { return now; }
    void choose(const QString& address, MainBlock<QString> mainBlock) override {
        const bool isBad = address.contains(u"bad"_s);
        if (!isBad) {
            now = {.kind = address.isEmpty()          ? SharedPlace::Kind::ThisDevice
                           : address.startsWith(u'/') ? SharedPlace::Kind::Folder
                                                      : SharedPlace::Kind::Database,
                   .address = address};
        }
        mainBlock.post(mainQueue, isBad ? u"The database cannot be reached."_s : QString());
    }
    void retryNow() override {}
    void setObserver(std::weak_ptr<const void> /*owner*/, std::function<void()> changed) override {
        observer = std::move(changed);
    }
    DispatchQueue& mainQueue;
    SharedPlace now;
    std::function<void()> observer;
};

} // namespace guide::test
