#pragma once

#include "store/ShowItem.h"

#include <QDateTime>

#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace guide::test {

using namespace Qt::StringLiterals;

inline const Alphabet& latinAlphabet() {
    static const Alphabet alphabet;
    return alphabet;
}

/// "2025-12-31T18:30:00Z"
inline Moment moment(const char* text) {
    const QDateTime time = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODateWithMs);
    return Moment(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
}

inline ObjectId channel(int number) {
    return ObjectId::fromHex(QStringLiteral("%1").arg(number, 24, 16, QLatin1Char('0')));
}

struct TestShow {
    std::optional<Moment> start;
    std::optional<Moment> end;
    QString title = QStringLiteral("Show");
    std::optional<TVListingsCategory> categories = 0;
    ObjectId onChannel = channel(1);
};

/// When the tests of the store begin.
constexpr Moment kNow{std::chrono::hours(1000)};

inline Moment hour(int afterNow) {
    return kNow + std::chrono::hours(afterNow);
}

/// A show from one hour to another, counted from the beginning of the test.
inline TestShow show(int from, int until, const QString& title = QStringLiteral("Show"),
                     std::optional<TVListingsCategory> categories = 0,
                     const ObjectId& onChannel = channel(1)) {
    return {hour(from), hour(until), title, categories, onChannel};
}

inline ExtendedTVEntry extended(const TestShow& show) {
    auto entry = std::make_shared<TVEntry>(latinAlphabet());
    entry->setChannel(show.onChannel);
    entry->setDateTime(show.start);
    entry->setEndDateTime(show.end);
    entry->setIdentificator(show.title);
    return {std::move(entry), show.categories, nullptr, {}};
}

inline ShowItem item(const TestShow& show) {
    return ShowItem(extended(show));
}

inline ShowItems items(const std::vector<TestShow>& shows) {
    ShowItems result;
    for (const TestShow& show : shows) {
        result.push_back(item(show));
    }
    return result;
}

/// The source titles, in order.
template <class Shows>
std::vector<std::string> titles(const Shows& shows) {
    std::vector<std::string> result;
    result.reserve(shows.size());
    for (const ShowItem& show : shows) {
        result.push_back(show.entry()->identificator().value_or(QString()).toStdString());
    }
    return result;
}

using Titles = std::vector<std::string>;

} // namespace guide::test
