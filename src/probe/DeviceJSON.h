#pragma once

#include "alarms/Favorites.h"
#include "core/ObjectId.h"
#include "platform/calendar/EventStore.h"

#include <QCborValue>
#include <QJsonArray>
#include <QJsonObject>

#include <optional>
#include <vector>

namespace guide::probe {

// The values of a made-up device as JSON.

QJsonObject favoriteJSON(const Favorite& rule);
QJsonArray favoritesJSON(const std::vector<Favorite>& rules);
/// Nothing without a title, lead time or date.
std::optional<Favorite> favoriteOfJSON(const QJsonObject& json);
/// The value of the key "Favorites": archives of rules for objects, arrays as they are, other data for texts.
QCborValue favoritesMirrorOfJSON(const QJsonArray& json);

std::vector<ObjectId> channelsOfJSON(const QJsonArray& json);

/// The guide's parts of an event, without its calendar; `url` and `identifier` are as they are to be printed.
QJsonObject eventJSON(const CalendarEvent& event, const QString& identifier, qsizetype calendar);
/// Sets what the object names. False when a time cannot be read.
bool setEventFromJSON(CalendarEvent& event, const QJsonObject& json, const QString& scheme);

QString textOf(const QJsonObject& json, const char* key);

} // namespace guide::probe
