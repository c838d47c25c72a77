#pragma once

#include "alarms/Favorites.h"
#include "core/ObjectId.h"
#include "platform/Moment.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace guide {

/// What a user can do to alarms. Main queue; the work is done in the background, and the screens are
/// refreshed when it is done.
///
/// `sync` commits the change and refreshes the screens; a caller that makes several changes passes true only
/// for the last. `manual` means that the user acted on this show directly: the action is counted, and silent
/// hours do not apply.
class AlarmActions {
  public:
    virtual ~AlarmActions() = default;

    /// An alarm on one broadcast.
    virtual void setAlarmForTitle(const QString& title, const ObjectId& onChannel, Moment at, Moment until,
                                  int minutes, bool sync, bool manual) = 0;
    virtual void removeAlarmForTitle(const QString& title, const ObjectId& onChannel, Moment at, bool sync,
                                     bool manual) = 0;
    /// A recurring alarm on a favourite: on any broadcast, or only on premieres (false) or replays (true).
    virtual void setAlarmForTitle(const QString& title, int minutes, std::optional<bool> previouslyShown,
                                  bool manual) = 0;
    /// Ends a recurring alarm and removes all alarms of the title; the favourite stays.
    virtual void removeAlarmForTitle(const QString& title, bool sync, bool manual) = 0;
    /// The same for several titles at once; not counted.
    virtual void removeAlarmsForTitles(const QStringList& titles, bool sync) = 0;

    /// The lead time of the last alarm that was set on one broadcast.
    virtual int lastAlarmMinutes() const = 0;
};

/// What a user can do to favourites. Main queue.
class FavoriteActions {
  public:
    virtual ~FavoriteActions() = default;
    /// Only refreshes the screens if there is already a rule with the title.
    virtual void addFavorite(const QString& title) = 0;
    /// Removes the rules and all alarms of the titles, and refreshes the screens once.
    virtual void removeFavorites(const QStringList& titles) = 0;
    /// Notes that the user set an alarm by the rule with the title. False when there is none.
    virtual bool noteAlarmSet(const QString& title) = 0;
    void removeFavorite(const QString& title) { removeFavorites({title}); }
    /// Undoes a removal: the rules of the titles return with their settings to the places that they have in
    /// `before`. A title that has a rule again keeps it.
    virtual void restoreFavorites(const FavoritesSnapshot& before, const QStringList& titles) = 0;
};

} // namespace guide
