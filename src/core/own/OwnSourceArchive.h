#pragma once

#include "core/own/OwnSource.h"

#include <QCborValue>

#include <optional>
#include <vector>

namespace guide {

/// A source that was removed, with its channels.
struct RemovedSource {
    OwnSourceId id;
    std::vector<ObjectId> channels;

    friend bool operator==(const RemovedSource&, const RemovedSource&) = default;
};

struct StoredSources {
    std::vector<OwnSource> sources;
    std::vector<RemovedSource> removed;

    friend bool operator==(const StoredSources&, const StoredSources&) = default;
};

/// The form of the sources in their file and in the key-value store: an array with the bytes of one record
/// for each.
QCborValue ownSourcesValue(const StoredSources& stored);
/// The reverse. Records that cannot be read are left out; nothing when the value is not an array.
std::optional<StoredSources> ownSourcesOfValue(const QCborValue& value);

} // namespace guide
