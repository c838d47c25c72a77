#pragma once

#include "core/ObjectId.h"
#include "platform/Moment.h"

#include <QString>

#include <compare>
#include <functional>
#include <optional>
#include <variant>

namespace guide {

/// A section's identity within its table: a channel's hexadecimal id, an ISO date, or a name that the screen
/// chooses.
using SectionId = QString;

/// Identifies the show of a row. Shows of one channel that start together differ in `ordinal`.
struct ShowRowKey {
    ObjectId channel;
    std::optional<Moment> start;
    int ordinal = 0;

    friend bool operator==(const ShowRowKey&, const ShowRowKey&) = default;
};

/// Identifies a row within its table and stays the same while the row's content changes.
struct RowId {
    SectionId section;
    /// A show, a channel, or any other row by its name within the section.
    std::variant<ShowRowKey, ObjectId, QString> key;

    const ShowRowKey* show() const { return std::get_if<ShowRowKey>(&key); }
    const ObjectId* channel() const { return std::get_if<ObjectId>(&key); }
    /// Null for a show or a channel.
    const QString* name() const { return std::get_if<QString>(&key); }

    friend bool operator==(const RowId&, const RowId&) = default;
};

} // namespace guide

template <>
struct std::hash<guide::RowId> {
    std::size_t operator()(const guide::RowId& id) const noexcept;
};
