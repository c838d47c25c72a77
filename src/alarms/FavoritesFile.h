#pragma once

#include "alarms/Favorites.h"

#include <QByteArray>
#include <QCborValue>

#include <optional>
#include <vector>

namespace guide {

/// The content of the file of rules: an archive of all of them, in their order.
QByteArray favoritesFileContent(const std::vector<Favorite>& rules);
/// The reverse; nothing when the content is damaged or a rule lacks its title, lead time or date.
std::optional<std::vector<Favorite>> favoritesOfFile(const QByteArray& content);

/// The form of the rules in the key-value store: an array with an archive of each rule.
QCborValue favoritesMirror(const std::vector<Favorite>& rules);
/// The reverse; nothing when the value is not an array. An element may also have the older form, an array of
/// title, lead time, date and perhaps whether only replays count. Any other element is left out and logged.
/// Archives none of which can be read are not an empty list but nothing: a newer guide may have made them.
std::optional<std::vector<Favorite>> favoritesOfMirror(const QCborValue& value);

} // namespace guide
