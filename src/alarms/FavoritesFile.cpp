#include "alarms/FavoritesFile.h"

#include "platform/archive/Archive.h"

#include <QCborArray>
#include <QCborMap>
#include <QDateTime>
#include <QDebug>

#include <utility>

namespace guide {

namespace {

constexpr QLatin1StringView kTitle("id");
constexpr QLatin1StringView kMinutes("minutes");
constexpr QLatin1StringView kDate("date");
constexpr QLatin1StringView kPreviouslyShown("previouslyShown");

/// The lead time of a rule without a recurring alarm.
constexpr int kNoAlarm = -1;

QCborValue valueOf(const Favorite& rule) {
    QCborMap map;
    map.insert(kTitle, rule.identificator);
    map.insert(kMinutes, rule.minutes.value_or(kNoAlarm));
    map.insert(kDate, static_cast<qint64>(rule.date.time_since_epoch().count()));
    if (rule.previouslyShown) {
        map.insert(kPreviouslyShown, *rule.previouslyShown);
    }
    return map;
}

std::optional<Favorite> ruleOf(const QCborValue& value) {
    const QCborMap map = value.toMap();
    const QCborValue title = map.value(kTitle);
    const QCborValue minutes = map.value(kMinutes);
    const QCborValue date = map.value(kDate);
    const QCborValue previouslyShown = map.value(kPreviouslyShown);
    if (!title.isString() || !minutes.isInteger() || !date.isInteger() ||
        !std::in_range<int>(minutes.toInteger())) {
        return std::nullopt;
    }
    Favorite rule{.identificator = title.toString(),
                  .minutes = static_cast<int>(minutes.toInteger()),
                  .date = Moment(std::chrono::milliseconds(date.toInteger())),
                  .previouslyShown = {}};
    if (*rule.minutes < 0) {
        rule.minutes.reset();
    }
    if (previouslyShown.isBool()) {
        rule.previouslyShown = previouslyShown.toBool();
    }
    return rule;
}

std::optional<Favorite> ruleOfOlderForm(const QCborArray& array) {
    const QCborValue date = array.at(2);
    if (!array.at(0).isString() || !array.at(1).isInteger() || !date.isDateTime() ||
        !std::in_range<int>(array.at(1).toInteger())) {
        return std::nullopt;
    }
    Favorite rule{.identificator = array.at(0).toString(),
                  .minutes = static_cast<int>(array.at(1).toInteger()),
                  .date = Moment(std::chrono::milliseconds(date.toDateTime().toMSecsSinceEpoch())),
                  .previouslyShown = {}};
    if (*rule.minutes < 0) {
        rule.minutes.reset();
    }
    if (const QCborValue replays = array.at(3); replays.isBool() || replays.isInteger()) {
        rule.previouslyShown = replays.isBool() ? replays.toBool() : replays.toInteger() != 0;
    }
    return rule;
}

std::optional<Favorite> ruleOfElement(const QCborValue& element) {
    if (element.isArray()) {
        return ruleOfOlderForm(element.toArray());
    }
    const std::optional<QCborValue> root = unarchivedRoot(element.toByteArray());
    return root ? ruleOf(*root) : std::nullopt;
}

} // namespace

QByteArray favoritesFileContent(const std::vector<Favorite>& rules) {
    QCborArray array;
    for (const Favorite& rule : rules) {
        array.append(valueOf(rule));
    }
    return archivedData(array);
}

std::optional<std::vector<Favorite>> favoritesOfFile(const QByteArray& content) {
    const std::optional<QCborValue> root = unarchivedRoot(content);
    if (!root || !root->isArray()) {
        return std::nullopt;
    }
    const QCborArray array = root->toArray();
    std::vector<Favorite> rules;
    rules.reserve(static_cast<std::size_t>(array.size()));
    for (const auto& element : array) {
        std::optional<Favorite> rule = ruleOf(element);
        if (!rule) {
            return std::nullopt;
        }
        rules.push_back(*std::move(rule));
    }
    return rules;
}

QCborValue favoritesMirror(const std::vector<Favorite>& rules) {
    QCborArray array;
    for (const Favorite& rule : rules) {
        array.append(archivedData(valueOf(rule)));
    }
    return array;
}

std::optional<std::vector<Favorite>> favoritesOfMirror(const QCborValue& value) {
    if (!value.isArray()) {
        return std::nullopt;
    }
    const QCborArray array = value.toArray();
    std::vector<Favorite> rules;
    rules.reserve(static_cast<std::size_t>(array.size()));
    bool hasArchives = false;
    for (const auto& element : array) {
        hasArchives = hasArchives || element.isByteArray();
        if (std::optional<Favorite> rule = ruleOfElement(element)) {
            rules.push_back(*std::move(rule));
        }
    }
    if (const auto unread = array.size() - std::ssize(rules); unread > 0) {
        qWarning("Favorites: %lld of %lld rules of another device cannot be read", qlonglong(unread),
                 qlonglong(array.size()));
    }
    if (rules.empty() && hasArchives) {
        return std::nullopt;
    }
    return rules;
}

} // namespace guide
