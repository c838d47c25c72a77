#pragma once

#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"
#include "screens/sources/PlaylistMatches.h"

#include <memory>

namespace guide {

/// The numbers of entries matched by id, by name, to review, and not at all.
QString matchCountsText(const PlaylistMatches::Counts& counts, const QLocale& locale);

/// The entries of a playlist whose schedules have to be reviewed, and those without; a search goes over all
/// entries. What is on now shows whether a match is right.
class MatchReviewViewController final : public TableViewController {
  public:
    MatchReviewViewController(std::shared_ptr<const ScreenEnvironment> environment,
                              std::shared_ptr<PlaylistMatches> matches);

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void searchTextEdited(const QString& text) override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void show();
    Row entryRow(const SectionId& section, const MatchedEntry& entry) const;

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const std::shared_ptr<PlaylistMatches> m_matches;
    QString m_searched;
};

/// Chooses the channel of a feed that gives an entry of a playlist its schedule: of the candidates, of the
/// feeds by a search, or none.
class MatchChoiceViewController final : public TableViewController {
  public:
    MatchChoiceViewController(std::shared_ptr<const ScreenEnvironment> environment,
                              std::shared_ptr<PlaylistMatches> matches, QString entry);

  protected:
    void viewDidLoad() override;
    void searchTextEdited(const QString& text) override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void show();
    Row channelRow(const SectionId& section, const OwnSourceId& source, const FeedChannels& feed,
                   const PreviewChannel& channel) const;
    std::vector<Section> candidates(const MatchedEntry& entry) const;
    std::vector<GuideChannel> withAWordOf(const QString& name) const;
    std::vector<Section> found(const QString& pattern) const;

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const std::shared_ptr<PlaylistMatches> m_matches;
    const QString m_entry;
    QString m_searched;
    /// Of the rows, in the order of their numbers.
    mutable std::vector<GuideChannel> m_shown;
};

} // namespace guide
