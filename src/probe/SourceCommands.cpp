#include "alarms/AlarmMinutes.h"
#include "alarms/SilentHours.h"
#include "core/ObjectId.h"
#include "parsers/URLPlanner.h"
#include "probe/Command.h"
#include "sources/SourceId.h"
#include "store/ShowDigest.h"

#include <QJsonArray>
#include <QRandomGenerator>
#include <QTime>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

Outcome type(Context& context) {
    const QString& id = context.arguments.operands[0];
    return QJsonObject{{u"sourceId"_s, id},
                       {u"type"_s, int(listingsTypeForSourceId(id, context.hosts))},
                       {u"portNetwork"_s, sourceIdUsedByPortNetwork(id)}};
}

Outcome zone(Context& context) {
    const auto found = timeZoneForServer(context.arguments.operands[0]);
    return QJsonObject{
        {u"zone"_s, found ? QJsonValue(QString::fromLatin1(found->id())) : QJsonValue(QJsonValue::Null)}};
}

Outcome plan(Context& context) {
    const URLPlanner planner(context.hosts,
                             [](unsigned bound) { return QRandomGenerator::global()->bounded(bound); });
    const auto urls =
        planner.urlsForSourceId(context.arguments.operands[0], context.now, context.device.timeZone());
    if (!urls) {
        return QJsonObject{{u"urls"_s, QJsonValue::Null}};
    }
    QJsonArray list;
    for (const QUrl& url : *urls) {
        list.append(QString::fromLatin1(url.toEncoded()));
    }
    return QJsonObject{{u"urls"_s, list}};
}

Outcome objectId(Context& context) {
    const ObjectId id = ObjectId::fromHex(context.arguments.operands[0]);
    return QJsonObject{{u"hex"_s, id.hex()}, {u"hash"_s, QString::number(id.hash())}};
}

Outcome digest(Context& context) {
    const Arguments& arguments = context.arguments;
    for (const QString& needed : {u"channel"_s, u"date"_s, u"title"_s, u"scheme"_s}) {
        if (!arguments.has(needed)) {
            return Failure{u"--%1 is missing"_s.arg(needed), true};
        }
    }
    const auto date = momentFromText(*arguments.value(u"date"_s));
    if (!date) {
        return Failure{u"\"%1\" is not a time like 2026-11-21T10:00:00Z"_s.arg(*arguments.value(u"date"_s)),
                       true};
    }
    const auto url = urlDigestFromChannel(ObjectId::fromHex(*arguments.value(u"channel"_s)), *date,
                                          arguments.value(u"title"_s), *arguments.value(u"scheme"_s));
    return QJsonObject{{u"url"_s, url ? QJsonValue(url->toString()) : QJsonValue(QJsonValue::Null)}};
}

/// The number that means no alarm.
constexpr qint64 kNoAlarm = -1;

Outcome minutes(Context& context) {
    bool ok = false;
    const double number = context.arguments.operands[0].toDouble(&ok);
    if (!ok) {
        return Failure{u"\"%1\" is not a number"_s.arg(context.arguments.operands[0]), true};
    }
    return QJsonObject{{u"normalized"_s, qint64(normalizedMinutes(number).value_or(kNoAlarm))}};
}

std::optional<int> minuteOfDay(const std::optional<QString>& text) {
    const QTime time = QTime::fromString(text.value_or(QString()), u"HH:mm"_s);
    return time.isValid() ? std::optional(time.hour() * 60 + time.minute()) : std::nullopt;
}

Outcome silent(Context& context) {
    const auto from = minuteOfDay(context.arguments.value(u"from"_s));
    const auto to = minuteOfDay(context.arguments.value(u"to"_s));
    const auto at = minuteOfDay(context.arguments.value(u"at"_s));
    if (!from || !to || !at) {
        return Failure{u"--from, --to and --at each need a time like 07:00"_s, true};
    }
    return QJsonObject{{u"allowed"_s, SilentPeriod{*from, *to}.mayBeAlarmedAt(*at)}};
}

} // namespace

std::vector<Command> sourceCommands() {
    return {
        {u"type"_s, {u"SOURCE_ID"_s, {}, {}, 1, 1}, u"how the pages of a source are read"_s, type},
        {u"zone"_s, {u"SERVER_NAME"_s, {}, {}, 1, 1}, u"the time zone of a server"_s, zone},
        {u"plan"_s,
         {u"SOURCE_ID [--language L]"_s, {u"language"_s}, {}, 1, 1},
         u"the URLs that serve a source now"_s,
         plan},
        {u"digest"_s,
         {u"--channel HEX --date TIME --title T --scheme S"_s,
          {u"channel"_s, u"date"_s, u"title"_s, u"scheme"_s},
          {},
          0,
          0},
         u"the stable URL of one broadcast"_s,
         digest},
        {u"object-id"_s, {u"HEX"_s, {}, {}, 1, 1}, u"a channel's identity and its hash"_s, objectId},
        {u"minutes"_s, {u"X"_s, {}, {}, 1, 1}, u"a lead time snapped onto the scale"_s, minutes},
        {u"silent"_s,
         {u"--from HH:MM --to HH:MM --at HH:MM"_s, {u"from"_s, u"to"_s, u"at"_s}, {}, 0, 0},
         u"whether an alarm may ring in silent hours"_s,
         silent},
    };
}

} // namespace guide::probe
