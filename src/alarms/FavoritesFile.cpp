#include "alarms/FavoritesFile.h"

#include "platform/archive/Archive.h"

#include <QCborArray>
#include <QCborMap>

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
    for (const auto& element : array) {
        const std::optional<QCborValue> root = unarchivedRoot(element.toByteArray());
        if (std::optional<Favorite> rule = root ? ruleOf(*root) : std::nullopt) {
            rules.push_back(*std::move(rule));
        }
    }
    return rules;
}

} // namespace guide
