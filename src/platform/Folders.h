#pragma once

#include <QString>

namespace guide {

/// The folders of one profile, absolute and without a closing slash. All but `bundle` exist and can be
/// written.
struct Folders {
    /// Listing files and the catalogue archive: what can be made anew.
    QString caches;
    /// The user's own files: selection and favourites.
    QString documents;
    /// Settings and overrides.
    QString configuration;
    /// Locks and sockets of the running program.
    QString runtime;
    /// The key-value store, to be replicated between devices.
    QString keyValueStore;
    /// What came with the program: catalogue, icons, host table, supported regions.
    QString bundle;
};

} // namespace guide
