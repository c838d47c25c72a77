#pragma once

#include "screens/kit/LatestAnswer.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"
#include "screens/sources/SourceActions.h"
#include "screens/sources/SourceChannelGroups.h"

#include <QSet>

#include <memory>
#include <optional>
#include <vector>

namespace guide {

/// The channels of a source, of which the user chooses: by search, by group, all that are shown, or ranges.
/// The rows are made in the background.
class SourceChannelsViewController : public ListingsScreen {
  public:
    /// Choosing more channels at once has to be confirmed.
    static constexpr int kMostWithoutAsking = 200;

    /// The channels of a source that was added, from what was fetched last.
    SourceChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                 const OwnSourceId& source);

    bool selectAll() override;

  protected:
    explicit SourceChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment);

    void viewDidLoad() override;
    void viewWillAppear() override;
    void searchTextEdited(const QString& text) override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

    /// What is shown above the channels while nothing is searched for. The ids of the sections stay the same.
    virtual std::vector<Section> headSections() const { return {}; }
    virtual void headEvent(const RowId&, const RowEvent&) {}
    virtual QString doneTitle() const;
    /// The user has chosen.
    virtual void done();
    virtual bool canBeDone() const { return m_proposal.has_value(); }

    void propose(SourceProposal proposal) { m_proposal = std::move(proposal); }
    /// Shows the proposal's channels.
    void start();
    /// Its content has changed.
    void updateHead();
    void setButtons();
    /// The matches of a playlist have changed.
    void makeGroups();

    const ScreenEnvironment& environment() const { return *m_environment; }
    const std::shared_ptr<const ScreenEnvironment>& sharedEnvironment() const { return m_environment; }
    SourceActions& actions() const { return *m_environment->sourceActions; }
    const SourceProposal& proposal() const { return *m_proposal; }
    /// Null unless it is a playlist.
    const std::shared_ptr<PlaylistMatches>& matches() const { return m_matches; }
    std::vector<MatchedEntry> matchedEntries() const;
    bool anyChosen() const { return !m_chosen.isEmpty(); }
    void setChosen(const std::vector<QString>& keys, bool chosen);
    /// In the order of the list.
    QStringList chosenKeys() const;

  private:
    struct LastTap {
        RowId row;
        bool checked = false;
    };

    void readAgain();
    void readFailed(const QString& sentence);
    void show();
    Section groupSection() const;
    SourceChannelGroups::Places shownPlaces() const;
    std::vector<QString> shownKeys() const;
    bool allShownChosen() const;
    void tapped(const RowId& row, bool extending);
    void selectShown();
    void updateChecks();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    std::optional<OwnSourceId> m_source;
    std::optional<SourceProposal> m_proposal;
    std::shared_ptr<PlaylistMatches> m_matches;
    std::shared_ptr<const SourceChannelGroups> m_groups;
    std::size_t m_group = 0;
    QString m_searched;
    QSet<QString> m_chosen;
    std::optional<LastTap> m_lastTap;
    SourceActions::Token m_reading;
    LatestAnswer m_groupsAnswer;
    LatestAnswer m_rowsAnswer;
};

} // namespace guide
