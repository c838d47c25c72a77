#include "probe/DeviceJSON.h"

#include "alarms/FavoritesFile.h"
#include "probe/Command.h"
#include "store/ShowDigest.h"

#include <QCborArray>
#include <QDateTime>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

QJsonValue jsonTextOrNull(const QString& text) {
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

/// The older form of a rule: title, minutes, date and perhaps whether only replays or premieres count.
QCborArray olderFavorite(const QJsonArray& json) {
    QCborArray array;
    for (const QJsonValue& each : json) {
        const auto moment =
            each.isString() && array.size() == 2 ? momentFromText(each.toString()) : std::nullopt;
        array.append(
            moment ? QCborValue(QDateTime::fromMSecsSinceEpoch(moment->time_since_epoch().count(), Qt::UTC))
                   : QCborValue::fromJsonValue(each));
    }
    return array;
}

} // namespace

QString textOf(const QJsonObject& json, const char* key) {
    return json.value(QLatin1StringView(key)).toString();
}

QJsonObject favoriteJSON(const Favorite& rule) {
    return {{u"id"_s, rule.identificator},
            {u"minutes"_s, rule.minutes.value_or(-1)},
            {u"date"_s, jsonMoment(rule.date)},
            {u"previouslyShown"_s,
             rule.previouslyShown ? QJsonValue(*rule.previouslyShown) : QJsonValue(QJsonValue::Null)}};
}

QJsonArray favoritesJSON(const std::vector<Favorite>& rules) {
    QJsonArray json;
    for (const Favorite& rule : rules) {
        json.append(favoriteJSON(rule));
    }
    return json;
}

std::optional<Favorite> favoriteOfJSON(const QJsonObject& json) {
    const auto date = momentFromText(textOf(json, "date"));
    if (!json.value(u"id"_s).isString() || !json.value(u"minutes"_s).isDouble() || !date) {
        return std::nullopt;
    }
    const int minutes = json.value(u"minutes"_s).toInt();
    const QJsonValue previouslyShown = json.value(u"previouslyShown"_s);
    return Favorite{.identificator = textOf(json, "id"),
                    .minutes = minutes < 0 ? std::nullopt : std::optional(minutes),
                    .date = *date,
                    .previouslyShown =
                        previouslyShown.isBool() ? std::optional(previouslyShown.toBool()) : std::nullopt};
}

QCborValue favoritesMirrorOfJSON(const QJsonArray& json) {
    QCborArray mirror;
    for (const QJsonValue& each : json) {
        if (each.isArray()) {
            mirror.append(olderFavorite(each.toArray()));
        } else if (const auto rule = favoriteOfJSON(each.toObject())) {
            mirror.append(favoritesMirror({*rule}).toArray().at(0));
        } else {
            mirror.append(each.toString().toUtf8());
        }
    }
    return mirror;
}

std::vector<ObjectId> channelsOfJSON(const QJsonArray& json) {
    std::vector<ObjectId> channels;
    for (const QJsonValue& each : json) {
        channels.push_back(ObjectId::fromHex(each.toString()));
    }
    return channels;
}

QJsonObject eventJSON(const CalendarEvent& event, const QString& identifier, qsizetype calendar) {
    QJsonArray alarms;
    for (const std::chrono::seconds offset : event.alarmOffsets) {
        alarms.append(static_cast<qint64>(offset.count()));
    }
    return {{u"id"_s, identifier},
            {u"calendar"_s, calendar},
            {u"title"_s, jsonTextOrNull(event.title)},
            {u"location"_s, jsonTextOrNull(event.location)},
            {u"url"_s, event.url ? QJsonValue(event.url->toString()) : QJsonValue(QJsonValue::Null)},
            {u"start"_s, jsonMoment(event.startDate)},
            {u"end"_s, jsonMoment(event.endDate)},
            {u"alarms"_s, alarms}};
}

bool setEventFromJSON(CalendarEvent& event, const QJsonObject& json, const QString& scheme) {
    const auto setText = [&json](QString& text, const char* key) {
        const QJsonValue value = json.value(QLatin1StringView(key));
        if (value.isString() || value.isNull()) {
            text = value.toString();
        }
    };
    setText(event.title, "title");
    setText(event.location, "location");
    if (const QJsonValue url = json.value(u"url"_s); url.isString()) {
        event.url = QUrl(url.toString());
    } else if (url.isNull()) {
        event.url.reset();
    } else if (url.isObject()) {
        const QJsonObject show = url.toObject();
        const auto start = momentFromText(textOf(show, "start"));
        if (!start) {
            return false;
        }
        event.url = urlDigestFromChannel(ObjectId::fromHex(textOf(show, "channel")), *start,
                                         textOf(show, "title"), scheme);
    }
    if (const QJsonValue alarms = json.value(u"alarms"_s); alarms.isArray()) {
        event.alarmOffsets.clear();
        for (const QJsonValue& offset : alarms.toArray()) {
            event.alarmOffsets.emplace_back(offset.toInteger());
        }
    }
    if (json.contains(u"start"_s)) {
        const auto start = momentFromText(textOf(json, "start"));
        if (!start) {
            return false;
        }
        event.startDate = *start;
    }
    if (const QJsonValue end = json.value(u"end"_s); end.isString()) {
        event.endDate = momentFromText(end.toString());
        return event.endDate.has_value();
    }
    return true;
}

} // namespace guide::probe
