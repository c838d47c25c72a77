#pragma once

#include <QString>

namespace guide {

/// The folders of one profile, absolute and without a trailing slash.
struct Folders {
    /// Listing files and the catalogue archive; everything here can be regenerated.
    QString caches;
    /// User data: selection and favourites.
    QString documents;
    /// Settings and overrides.
    QString configuration;
    /// Locks and sockets of the running program.
    QString runtime;
    /// The key-value store, which a sync tool may replicate between devices.
    QString keyValueStore;
    /// Data installed with the program: catalogue, icons, host table, supported regions.
    QString bundle;
    /// All folders except `bundle` exist and are writable. Otherwise the profile is read-only: some of them
    /// may be missing, and nothing is written.
    bool writable = true;
};

} // namespace guide
