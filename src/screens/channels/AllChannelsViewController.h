#pragma once

#include "screens/channels/ChannelGroups.h"
#include "screens/channels/SelectionEditor.h"
#include "screens/shell/ListingsScreen.h"

#include <cstddef>
#include <memory>
#include <optional>

namespace guide {

/// The catalogue: a list of groups, or as its submenu the channels of one group, where a tap selects or
/// unselects a channel. A search goes over all channels, whichever group is open.
class AllChannelsViewController final : public ListingsScreen {
  public:
    /// The list of groups.
    AllChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                              std::shared_ptr<SelectionEditor> editor);
    /// The channels of one group.
    AllChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                              std::shared_ptr<SelectionEditor> editor,
                              std::shared_ptr<const ChannelGroups> groups, const QString& group);

    bool selectAll() override;
    /// The selection or the catalogue has changed.
    void reloadData() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void searchTextEdited(const QString& text) override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    struct LastTap {
        ObjectId channel;
        bool checked = false;
    };

    bool showsGroups() const { return !m_list; }
    void show();
    void showGroups();
    void showChannels();
    Row groupRow(const ChannelGroups::Group& group, const std::unordered_set<ObjectId>& selected) const;
    void updateChecks();
    void setButtons();

    void openGroup(const RowId& row, const QString& group);
    void tapped(const ObjectId& channel, bool extending);
    /// The channels on show from one to the other, in either order.
    std::vector<ObjectId> range(const ObjectId& from, const ObjectId& to) const;
    std::vector<ObjectId> shownChannels() const;
    bool allSelected() const;
    void selectShown();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const std::shared_ptr<SelectionEditor> m_editor;
    std::shared_ptr<const ChannelGroups> m_groups;
    const bool m_selectedSubmenu;
    QString m_group;
    /// Empty when nothing is searched.
    QString m_searched;
    /// The channels on show; unset while the groups are.
    std::optional<ChannelGroups::Places> m_list;
    std::optional<LastTap> m_lastTap;
};

} // namespace guide
