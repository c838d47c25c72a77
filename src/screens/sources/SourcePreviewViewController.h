#pragma once

#include "screens/sources/PlaylistFeeds.h"
#include "screens/sources/SourceChannelsViewController.h"

#include <chrono>

namespace guide {

/// What a source has to offer before it is added, and its channels to choose from.
class SourcePreviewViewController final : public SourceChannelsViewController {
  public:
    SourcePreviewViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                SourceProposal proposal);

  protected:
    void viewDidLoad() override;
    std::vector<Section> headSections() const override;
    void headEvent(const RowId& id, const RowEvent& event) override;
    bool canBeDone() const override { return anyChosen() && !(m_feeds && m_feeds->loading()); }
    void done() override;

  private:
    bool isPlaylist() const { return m_feeds != nullptr; }
    Section sourceSection() const;
    Section warningSection() const;
    Section addAllSection() const;
    Section timeSection() const;
    Section scheduleSection() const;
    void addMatchRows(Section& section) const;
    void feedTapped(const RowId& id);
    void loadFeeds(std::function<void()> then);
    void openReview();
    /// Of the entries of a playlist, or of the channels of a feed that have shows.
    std::vector<QString> keysOfAll() const;
    void add();

    QString m_name;
    std::chrono::minutes m_shift{0};
    /// Null unless it is a playlist.
    std::shared_ptr<PlaylistFeeds> m_feeds;
    bool m_showsAllFeeds = false;
};

} // namespace guide
