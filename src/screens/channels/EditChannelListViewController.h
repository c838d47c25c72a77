#pragma once

#include "core/own/OwnSources.h"
#include "screens/MinuteTick.h"
#include "screens/channels/SelectionEditor.h"
#include "screens/shell/ListingsScreen.h"

#include <memory>

namespace guide {

/// The selected channels, which the user reorders and removes here.
class EditChannelListViewController final : public ListingsScreen {
  public:
    EditChannelListViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                  TabBarController& tabs);

    /// Opens the catalogue.
    void showChannelListWithChannelData();

    void applicationDidBecomeActive() override;
    void offerTopShows(const TopShows& top) override;
    void loadsEnded(const std::unordered_set<ObjectId>& channels) override;
    void reloadData() override;

  protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;
    std::vector<RowAction> actionsForRow(const RowId& id) override;

  private:
    /// The names of the user's sources by their channels.
    const std::unordered_map<ObjectId, QString>& ownSourceNames();
    Row channelRow(const ObjectId& channel, const CatalogueSnapshot& catalogue);
    void reloadTable();
    void reloadRow(const ObjectId& channel);
    void setEditing(bool editing);
    void setButtons();
    /// Where there are no channels yet: from sources of the user or the catalogue.
    void addChannels();
    void showOwnSources();
    void showOptions();
    std::function<void()> catalogueOpener();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const std::shared_ptr<SelectionEditor> m_editor;
    MinuteTick m_minuteTick;
    /// Of which the names are.
    SharedOwnSources m_ownSources;
    std::unordered_map<ObjectId, QString> m_ownSourceNames;
};

} // namespace guide
