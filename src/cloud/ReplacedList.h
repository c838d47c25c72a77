#pragma once

#include "platform/Moment.h"

#include <QString>
#include <QStringList>

#include <cstddef>

namespace guide {

/// A list that one from another device has replaced.
struct ReplacedList {
    enum class Kind { Favorites, Selection };

    Kind kind = Kind::Favorites;
    /// When it was replaced.
    Moment date;
    /// How many rules or channels it has.
    std::size_t count = 0;
    /// The name of its file.
    QString name = {};
    /// How many of them the present list lacks, and the titles of the first of those.
    std::size_t lacking = 0;
    QStringList titles = {};

    friend bool operator==(const ReplacedList&, const ReplacedList&) = default;
};

} // namespace guide
