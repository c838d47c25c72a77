#include "parsers/ShowJSON.h"

#include <QDateTime>
#include <QJsonArray>
#include <QTimeZone>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QJsonValue json(const std::optional<QUrl>& url) {
    return url ? QJsonValue(url->toString(QUrl::FullyEncoded)) : QJsonValue(QJsonValue::Null);
}

QJsonValue json(const std::optional<Moment>& moment) {
    return moment ? QJsonValue(isoMoment(*moment)) : QJsonValue(QJsonValue::Null);
}

QJsonObject detailsJSON(const TVEntrySupplementalData& details) {
    return {
        {u"description"_s, jsonText(details.description)},
        {u"episodeDescription"_s, jsonText(details.episodeDescription)},
        {u"details"_s, jsonText(details.details)},
        {u"directedBy"_s, jsonText(details.directedBy)},
        {u"roles"_s, jsonText(details.roles)},
        {u"imdbURL"_s, json(details.imdbURL)},
        {u"trailerURL"_s, json(details.trailerURL)},
    };
}

QJsonArray picturesJSON(const PictureURLs& pictures) {
    QStringList texts;
    for (const QByteArray& picture : pictures.encoded()) {
        texts.append(QString::fromLatin1(picture));
    }
    texts.sort();
    return QJsonArray::fromStringList(texts);
}

} // namespace

QJsonValue jsonText(const std::optional<QString>& text) {
    if (!text) {
        return QJsonValue::Null;
    }
    QString whole = *text;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        if (!whole[i].isSurrogate()) {
            continue;
        }
        if (whole[i].isHighSurrogate() && i + 1 < whole.size() && whole[i + 1].isLowSurrogate()) {
            ++i;
        } else {
            whole[i] = QChar::ReplacementCharacter;
        }
    }
    return whole;
}

QString isoMoment(Moment moment) {
    const auto sinceEpoch = moment.time_since_epoch().count();
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(sinceEpoch, Qt::UTC);
    return time.toString(sinceEpoch % 1000 != 0 ? Qt::ISODateWithMs : Qt::ISODate);
}

QJsonObject showJSON(const ShowItem& item) {
    const TVEntry& entry = *item.entry();
    QJsonObject show{
        {u"channel"_s, entry.channel().hex()},
        {u"sourceId"_s, jsonText(entry.sourceId())},
        {u"language"_s, jsonText(entry.language())},
        {u"title"_s, jsonText(entry.title())},
        {u"identificator"_s, jsonText(entry.identificator())},
        {u"start"_s, json(entry.dateTime())},
        {u"end"_s, json(entry.endDateTime())},
        {u"subtitle"_s, jsonText(entry.subtitle1())},
        {u"instantDetails"_s, jsonText(entry.instantDetails1())},
        {u"instantDescription"_s, jsonText(entry.instantDescription1())},
        {u"previouslyShown"_s, entry.previouslyShown()},
        {u"url"_s, json(entry.url())},
        {u"categories"_s, QJsonValue::Null},
        {u"details"_s, QJsonValue::Null},
        {u"pictures"_s, QJsonValue::Null},
    };
    const int parts = item.elementCount();
    if (parts > 1) {
        show[u"categories"_s] = static_cast<qint64>(*item.categories());
    }
    if (parts > 2) {
        show[u"details"_s] = detailsJSON(*item.details());
    }
    if (parts > 3) {
        show[u"pictures"_s] = picturesJSON(item.pictures());
    }
    return show;
}

QJsonObject factsJSON(const ShowItem& item) {
    static const ShowFacts kNone;
    const ShowFacts& facts = item.entry()->facts() ? *item.entry()->facts() : kNone;
    const auto number = [](const std::optional<int>& value) {
        return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
    };
    QJsonObject episode;
    const std::pair<QString, std::optional<int>> parts[] = {{u"season"_s, facts.episode.season},
                                                            {u"episode"_s, facts.episode.episode},
                                                            {u"episodes"_s, facts.episode.episodes},
                                                            {u"part"_s, facts.episode.part},
                                                            {u"parts"_s, facts.episode.parts}};
    for (const auto& [name, value] : parts) {
        if (value) {
            episode[name] = *value;
        }
    }
    const QJsonArray countries =
        QJsonArray::fromStringList(QStringList(facts.countries.begin(), facts.countries.end()));
    return {{u"originalTitle"_s, jsonText(facts.originalTitle)},
            {u"episode"_s, episode.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(episode)},
            {u"year"_s, number(facts.year)},
            {u"countries"_s, countries.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(countries)},
            {u"ageRating"_s, jsonText(facts.ageRating)},
            {u"starRating"_s, facts.starRating ? QJsonValue(QJsonObject{{u"value"_s, facts.starRating->value},
                                                                        {u"most"_s, facts.starRating->most}})
                                               : QJsonValue(QJsonValue::Null)},
            {u"newness"_s, facts.newness == Newness::New      ? QJsonValue(u"new"_s)
                           : facts.newness == Newness::Repeat ? QJsonValue(u"repeat"_s)
                                                              : QJsonValue(QJsonValue::Null)}};
}

QJsonObject showDetailsJSON(const ShowItem& item) {
    return {{u"categories"_s, static_cast<qint64>(item.categories().value_or(0))},
            {u"details"_s, detailsJSON(*item.details())},
            {u"pictures"_s, picturesJSON(item.pictures())}};
}

QJsonObject listsJSON(const MergeResult& merged, bool withFacts) {
    QJsonObject channels;
    for (const auto& [channel, list] : merged.lists) {
        QJsonArray shows;
        for (const ShowItem& item : *list) {
            QJsonObject show = showJSON(item);
            if (withFacts) {
                const QJsonObject facts = factsJSON(item);
                for (auto fact = facts.begin(); fact != facts.end(); ++fact) {
                    show[fact.key()] = *fact;
                }
            }
            shows.append(show);
        }
        channels[channel.hex()] = shows;
    }
    return {{u"channels"_s, channels}};
}

} // namespace guide
