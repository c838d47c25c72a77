#pragma once

namespace guide {

/// What a tab, a tile or a row has as its picture. ui/ draws it in one colour.
enum class Symbol {
    AllShows,
    Currently,
    Categories,
    Search,
    Schedule,
    SelectedChannels,
    MostWatched,
    Evening,
    Films,
    Series,
    Documentaries,
    Children,
    News,
    Entertainment,
    Music,
    Sports,
    Comedies,
    Adventure,
    Crime,
    Westerns,
    Dramas,
    Thrillers,
    ScienceFiction,
    Fantasy,
    Horrors,
    /// Something that was done lately.
    Recent,
    /// Something is wrong.
    Warning,
    Bell,
    /// Something is at another time or place now.
    Moved,
    /// Something is no longer there.
    Removed,
};

} // namespace guide
