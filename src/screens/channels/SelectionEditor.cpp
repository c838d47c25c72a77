#include "screens/channels/SelectionEditor.h"

#include "screens/Localized.h"
#include "text/display/Transliteration.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString topic() {
    return u"removed channels"_s;
}

} // namespace

SelectionEditor::SelectionEditor(std::shared_ptr<const ScreenEnvironment> environment, TabBarController& tabs)
    : m_environment(std::move(environment))
    , m_tabs(tabs)
    , m_screens(tabs, m_environment->applicationState) {}

std::unordered_set<ObjectId> SelectionEditor::selectedSet() const {
    const std::vector<ObjectId> channels = selected();
    return {channels.begin(), channels.end()};
}

void SelectionEditor::add(const std::vector<ObjectId>& channels) {
    restore(takeRemoved({channels.begin(), channels.end()}));
    std::vector<ObjectId> now = selected();
    std::unordered_set<ObjectId> known(now.begin(), now.end());
    std::ranges::copy_if(channels, std::back_inserter(now),
                         [&known](const ObjectId& channel) { return known.insert(channel).second; });
    change(std::move(now));
    refreshOtherViewControllers();
    m_environment->updates.checkAndUpdateAllChannels();
}

void SelectionEditor::remove(const std::vector<ObjectId>& channels) {
    std::optional<Removed> removed = takeOut(channels);
    if (!removed) {
        return;
    }
    std::shared_ptr<Removals> removals = m_removals.lock();
    if (!removals) {
        m_removals = removals = std::make_shared<Removals>();
    }
    removals->push_back(*std::move(removed));
    presentUndo(removals);
}

void SelectionEditor::removeForGood(const std::vector<ObjectId>& channels) {
    takeRemoved({channels.begin(), channels.end()});
    takeOut(channels);
}

std::optional<SelectionEditor::Removed> SelectionEditor::takeOut(const std::vector<ObjectId>& channels) {
    const std::unordered_set<ObjectId> leaving(channels.begin(), channels.end());
    const std::vector<ObjectId> before = selected();
    std::vector<ObjectId> kept;
    std::vector<ObjectId> ids;
    Removed removed;
    for (std::size_t place = 0; place < before.size(); ++place) {
        const ObjectId& channel = before[place];
        if (!leaving.contains(channel)) {
            kept.push_back(channel);
            continue;
        }
        ids.push_back(channel);
        removed.channels.push_back({channel, place, m_environment->channels.channelWithChannelId(channel)});
    }
    if (ids.empty()) {
        return std::nullopt;
    }
    // Before the lists are removed: a load that ends now must not store another one.
    change(std::move(kept));
    removed.lists = m_environment->listings.removeListingsForChannels(std::move(ids));
    m_environment->alarmSynchronisation.setSynchronized(false);
    refreshOtherViewControllers();
    return removed;
}

void SelectionEditor::move(const ObjectId& channel, const std::optional<ObjectId>& before) {
    std::vector<ObjectId> channels = selected();
    const auto from = std::ranges::find(channels, channel);
    if (from == channels.end() || before == channel) {
        return;
    }
    channels.erase(from);
    channels.insert(before ? std::ranges::find(channels, *before) : channels.end(), channel);
    change(std::move(channels));
    refreshOtherViewControllers();
}

void SelectionEditor::askToRemoveAll() {
    ask({Localized::tr("Warning"),
         Localized::tr("Unselect all selected channels?"),
         {{Localized::tr("Cancel"), AlertAction::Style::Cancel},
          {Localized::tr("Unselect"), AlertAction::Style::Destructive, [weak = weak_from_this()] {
               if (const auto self = weak.lock()) {
                   self->remove(self->selected());
               }
           }}}});
}

/// The tabs are disabled while nothing is selected.
void SelectionEditor::change(std::vector<ObjectId> channels) {
    const bool wasEmpty = selected().empty();
    const bool isEmpty = channels.empty();
    m_environment->channels.setSelected(std::move(channels));
    if (isEmpty && !wasEmpty) {
        m_tabs.disableTabs();
    } else if (!isEmpty && wasEmpty) {
        m_tabs.enableTabs();
    }
}

void SelectionEditor::refreshOtherViewControllers() {
    m_screens.setModifiedSelectedChannels();
    m_screens.reloadData();
}

// ---- undoing a removal

void SelectionEditor::presentUndo(const std::shared_ptr<const Removals>& removals) {
    std::size_t count = 0;
    for (const Removed& removed : *removals) {
        count += removed.channels.size();
    }
    const QString text = count == 1
                             ? Localized::tr("%1 removed").arg(titleOf(removals->front().channels.front().id))
                             : Localized::tr("%n channel(s) removed", nullptr, static_cast<int>(count));
    m_tabs.presentNotice({text, Localized::tr("Undo"),
                          [weak = weak_from_this(), removals] {
                              if (const auto self = weak.lock()) {
                                  self->m_removals.reset();
                                  self->restore(*removals);
                                  self->refreshOtherViewControllers();
                                  self->m_environment->updates.checkAndUpdateAllChannels();
                              }
                          },
                          topic()});
}

void SelectionEditor::restore(const Removals& removals) {
    std::vector<ObjectId> channels = selected();
    std::unordered_set<ObjectId> known(channels.begin(), channels.end());
    std::vector<const Removed::Channel*> restored;
    for (auto removed = removals.rbegin(); removed != removals.rend(); ++removed) {
        for (const Removed::Channel& channel : removed->channels) {
            if (known.insert(channel.id).second) {
                const std::size_t place = std::min(channel.place, channels.size());
                channels.insert(channels.begin() + static_cast<std::ptrdiff_t>(place), channel.id);
                restored.push_back(&channel);
            }
        }
    }
    if (restored.empty()) {
        return;
    }
    change(std::move(channels));
    for (const Removed::Channel* channel : restored) {
        const auto record = m_environment->channels.channelWithChannelId(channel->id);
        if (record && channel->record && record != channel->record) {
            record->takeLoadStateFrom(*channel->record);
        }
    }
    for (const Removed& removed : removals) {
        m_environment->listings.restoreListings(removed.lists);
    }
    m_environment->alarmSynchronisation.setSynchronized(false);
}

SelectionEditor::Removals SelectionEditor::takeRemoved(const std::unordered_set<ObjectId>& channels) {
    Removals taken;
    const std::shared_ptr<Removals> removals = m_removals.lock();
    if (!removals) {
        return taken;
    }
    for (Removed& removed : *removals) {
        Removed returning{.channels = {}, .lists = removed.lists};
        std::erase_if(removed.channels, [&](const Removed::Channel& channel) {
            const bool returns = channels.contains(channel.id);
            if (returns) {
                returning.channels.push_back(channel);
            }
            return returns;
        });
        if (!returning.channels.empty()) {
            taken.push_back(std::move(returning));
        }
    }
    if (taken.empty()) {
        return taken;
    }
    std::erase_if(*removals, [](const Removed& removed) { return removed.channels.empty(); });
    if (removals->empty()) {
        m_tabs.withdrawNotice(topic());
    } else {
        presentUndo(removals);
    }
    return taken;
}

QString SelectionEditor::titleOf(const ObjectId& channel) const {
    const SharedCatalogueSnapshot catalogue = m_environment->catalogue.snapshot();
    const CatalogueChannel* found = catalogue->find(channel);
    return found ? latin2Cyrillic(found->title, found->language, m_environment->alphabet) : u"?"_s;
}

} // namespace guide
