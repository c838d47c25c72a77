#pragma once

namespace guide {

/// How the entries of a feed become shows: each member is one way in which a feed that the user added is read
/// otherwise than a feed of the catalogue, whose channels keep the rules that they were chosen for. Reader,
/// cleaning and classification take it. Made by catalogueReading() and ownReading().
struct FeedReading {
    /// An entry has nothing of the one in front of it. Otherwise a placeholder swallows the show behind it.
    bool startsEntriesFresh = false;
    /// A title is kept whole but for a tail that is recognised: year and country, words of a genre, an
    /// episode. Otherwise it ends at its first comma.
    bool keepsTitlesWhole = false;
    /// Typed facts (episode, original title, year and others) are read.
    bool readsFacts = false;
    /// Categories come from the category elements first, by the table of genres that feeds write, and from
    /// whole words and marked stems of texts only where these say nothing.
    bool believesGenres = false;
};

/// For channels of the catalogue.
FeedReading catalogueReading();

/// For the user's own sources.
FeedReading ownReading();

} // namespace guide
