#pragma once

#include "screens/MinuteTick.h"
#include "screens/detail/ShowPage.h"
#include "screens/kit/LatestAnswer.h"
#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <QSet>

#include <memory>
#include <optional>
#include <vector>

namespace guide {

/// One broadcast: its head with picture, title and facts, what the user can do with it, the alarm of a
/// favourite, and every text known about it. Details that are missing are fetched when the screen appears.
class DetailViewController final : public ListingsScreen {
  public:
    DetailViewController(std::shared_ptr<const ScreenEnvironment> environment, ShowItem show,
                         const QString& channelIconName);

    const ShowItem& show() const { return m_show; }

    void applicationDidBecomeActive() override;
    void notificationsSynched() override;
    void recolor() override;
    void favoritesUpdated() override;

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    enum class Action {
        Favourite,
        Alert,
        Play,
        Trailer,
        Pictures,
        IMDb,
        Broadcasts,
        PastBroadcasts,
        CopyLink
    };

    const TVEntry& entry() const { return *m_show.entry(); }
    const QUrl* imdbURL() const;
    /// The rule that makes alarms for the show; null when there is none. Valid while the favourites live.
    const Favorite* ruleIn(const FavoritesSnapshot& favorites) const;

    void loadContent();
    Row headRow(Moment now) const;
    Row actionsRow(Moment now);
    void addAction(std::vector<ActionButton>& buttons, Action action, ActionSymbol symbol,
                   const QString& title);
    Section favouriteSection() const;
    Section groupSection(const ShowGroup& group) const;

    void loadDetails();
    void askForIMDbLink();
    void loadPicture();

    void perform(Action action);
    void favoriteSwitched(bool on);
    void selectedAlarm();
    void openAlarmSettings(bool hasOtherType);
    void refuseOrAllow();
    void openBroadcasts(bool lookForPastShows);
    void copyLink();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    ShowItem m_show;
    const PictureKey m_channelIcon;
    QString m_channelTitle;
    std::optional<QUrl> m_stream;
    /// The screen of the alarm that was opened last.
    std::weak_ptr<const ViewController> m_alarmSettings;
    PictureKey m_picture;
    /// The buttons that are shown, in order.
    std::vector<Action> m_actions;
    /// The names of the groups whose people are all shown.
    QSet<QString> m_unfolded;
    bool m_favourite = false;
    /// While the favourite is being removed the switch is disabled.
    bool m_favouriteEnabled = true;
    /// The user has switched the favourite off, and the alarms have not been synchronised since.
    bool m_removing = false;
    bool m_askedForDetails = false;
    bool m_askedForIMDbLink = false;
    LatestAnswer m_details;
    LatestAnswer m_imdbLink;
    LatestAnswer m_pictureAnswer;
    LatestAnswer m_otherType;
    MinuteTick m_minuteTick;
};

} // namespace guide
