#pragma once

#include "platform/Device.h"
#include "store/ShowItem.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTimeZone>

#include <optional>
#include <vector>

namespace guide {

class Alphabet;

/// A headed text of a show's page.
struct ShowGroup {
    QString name;
    QString content;
    /// Whether each line is a person.
    bool isPeople = false;

    friend bool operator==(const ShowGroup&, const ShowGroup&) = default;
};

/// The texts known about a show, in the order in which its page has them; without those that are empty.
std::vector<ShowGroup> showGroups(const ShowItem& show, const Alphabet& alphabet);

/// Where a show stands at a moment.
struct ShowState {
    bool running = false;
    bool over = false;
    /// Elapsed share while it is running.
    std::optional<double> progress = {};
    /// In words; empty when the show begins later than within the hour.
    QString text = {};
};
ShowState showState(const std::optional<Moment>& start, const std::optional<Moment>& end, Moment now);

/// Day, times, duration, and what the source says in a few words, such as country and year.
QStringList showFacts(const TVEntry& entry, const std::optional<Moment>& end, Moment now,
                      const Device& device);

/// The names of a text that lists people by lines or commas, as "Name" or "Name (role)".
QStringList peopleOf(const QString& text);

} // namespace guide
