#pragma once

#include "screens/kit/TabBarController.h"
#include "screens/shell/ScreenBroadcast.h"
#include "screens/shell/ScreenEnvironment.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

namespace guide {

/// Changes the selection as the user asks, with all that follows from a change: the store, the alarms, the
/// tabs and the other screens. A notice offers to undo what was removed; the removed lists are kept as long
/// as the notice is. Main queue.
class SelectionEditor : public std::enable_shared_from_this<SelectionEditor> {
  public:
    /// The tabs must outlive the editor.
    SelectionEditor(std::shared_ptr<const ScreenEnvironment> environment, TabBarController& tabs);

    std::vector<ObjectId> selected() const { return m_environment->channels.selected(); }
    std::unordered_set<ObjectId> selectedSet() const;

    /// Selects the channels, after the others and in the order given. One whose removal can still be undone
    /// returns to its place. Starts a check.
    void add(const std::vector<ObjectId>& channels);
    void remove(const std::vector<ObjectId>& channels);
    /// The same without an offer to undo it: the channels are about to be forgotten.
    void removeForGood(const std::vector<ObjectId>& channels);
    /// Moves a selected channel before another one, or to the end.
    void move(const ObjectId& channel, const std::optional<ObjectId>& before);

    /// Removes all channels if the user confirms it.
    void askToRemoveAll();
    void ask(Alert alert) { m_tabs.presentAlert(std::move(alert)); }

  private:
    /// What one removal took out of the selection.
    struct Removed {
        struct Channel {
            ObjectId id;
            /// In the selection before the removal.
            std::size_t place = 0;
            std::shared_ptr<const TVChannel> record;
        };
        std::vector<Channel> channels;
        std::shared_ptr<const RemovedListings> lists;
    };
    /// The removals that one notice undoes, in their order.
    using Removals = std::vector<Removed>;

    /// Nothing when none of the channels is selected.
    std::optional<Removed> takeOut(const std::vector<ObjectId>& channels);
    void change(std::vector<ObjectId> selected);
    void refreshOtherViewControllers();
    void presentUndo(const std::shared_ptr<const Removals>& removals);
    void restore(const Removals& removals);
    /// Takes the channels out of what can be undone.
    Removals takeRemoved(const std::unordered_set<ObjectId>& channels);
    QString titleOf(const ObjectId& channel) const;

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    TabBarController& m_tabs;
    ScreenBroadcast m_screens;
    /// Owned by the notice.
    std::weak_ptr<Removals> m_removals;
};

} // namespace guide
