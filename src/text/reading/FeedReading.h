#pragma once

namespace guide {

/// How the entries of a feed become shows: each member is one way in which a feed that the user added is read
/// otherwise than a feed of the catalogue, whose channels keep the rules that they were chosen for. Reader,
/// cleaning and classification take it. Made by catalogueReading() and ownReading().
struct FeedReading {
    /// An entry has nothing of the one in front of it. Otherwise a placeholder swallows the show behind it.
    bool startsEntriesFresh = false;
    /// Placeholders are known in the languages that feeds use. Otherwise two Croatian ones are.
    bool knowsPlaceholders = false;
    /// An entry without a usable end is a show as well; finishOwnList() gives it one. Otherwise it is
    /// dropped, and an end that is hours too late makes a show that is always on.
    bool repairsEnds = false;
    /// Times mean what they say on every channel. Otherwise those of channels whose id contains "Plus1" are
    /// an hour too late, as in the feeds of the catalogue.
    bool keepsTimes = false;
    /// A title is kept whole but for a tail that is recognised: year and country, words of a genre, an
    /// episode, a mark. Otherwise it ends at its first comma and loses everything in brackets.
    bool keepsTitlesWhole = false;
    /// A title in capitals is written in small letters by the rules of its language and keeps acronyms.
    /// Otherwise the device's language decides and "NCIS" becomes "Ncis".
    bool keepsAcronyms = false;
    /// Texts lose superfluous blanks and folded lines, and get a full stop only where none of the marks that
    /// end a sentence is. Otherwise a full stop follows even "!".
    bool tidiesTexts = false;
    /// A subtitle is taken apart into episode, genres and the like. Otherwise one that begins with a digit is
    /// dropped.
    bool keepsNumberedSubtitles = false;
    /// Cast and directors in descriptions are known by their labels in many languages.
    bool knowsCreditLabels = false;
    /// Pictures come from the web alone. The catalogue's feeds are trusted with any address.
    bool onlyWebPictures = false;
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
