#pragma once

#include "ScreenWorld.h"
#include "cloud/SharedPlaceActions.h"
#include "cloud/UserDataActions.h"
#include "screens/options/AddressTexts.h"

#include <gtest/gtest.h>

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
        chosen << address;
        const bool isBad = address.contains(u"bad"_s) || !why.isEmpty();
        if (!isBad && (missing.isEmpty() || address != missing)) {
            now = {.kind = address.isEmpty()          ? SharedPlace::Kind::ThisDevice
                           : address.startsWith(u'/') ? SharedPlace::Kind::Folder
                                                      : SharedPlace::Kind::Database,
                   .address = withoutPassword(address).address,
                   .deviceName = now.deviceName};
        }
        mainBlock.post(mainQueue, !why.isEmpty()       ? QString(why)
                                  : isBad              ? u"The database cannot be reached."_s
                                  : address == missing ? QString::fromLatin1(kFolderIsMissing)
                                                       : QString());
    }
    void createFolder(const QString& path, MainBlock<QString> mainBlock) override {
        EXPECT_EQ(path, missing);
        missing.clear();
        mainBlock.post(mainQueue, QString());
    }
    void setDeviceName(const QString& name) override { now.deviceName = name; }
    void retryNow() override {}
    void setObserver(std::weak_ptr<const void> /*owner*/, std::function<void()> changed) override {
        observer = std::move(changed);
    }
    DispatchQueue& mainQueue;
    SharedPlace now{.deviceName = u"Notebook"_s};
    QStringList chosen;
    QString why;
    /// A folder that could be created.
    QString missing = u"/home/anna/none"_s;
    std::function<void()> observer;
};

} // namespace guide::test
