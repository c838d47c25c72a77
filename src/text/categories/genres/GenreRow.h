#pragma once

#include "text/categories/TVListingsCategory.h"

#include <cstdint>
#include <span>

namespace guide::genres {

/// What a word says of a show: bits of TVListingsCategory and those below.
using Bits = std::uint32_t;

inline constexpr Bits kMovies = TVListingsCategoryMovies;
inline constexpr Bits kSeries = TVListingsCategorySeries;
inline constexpr Bits kDocumentaries = TVListingsCategoryDocumentaries;
inline constexpr Bits kForChildren = TVListingsCategoryForChildren;
inline constexpr Bits kNews = TVListingsCategoryNews;
inline constexpr Bits kEntertainment = TVListingsCategoryEntertainment;
inline constexpr Bits kMusic = TVListingsCategoryMusic;
inline constexpr Bits kSports = TVListingsCategorySports;
/// Genres of a story, without saying whether it is a film or a series.
inline constexpr Bits kComedy = TVListingsCategoryComedies;
inline constexpr Bits kAdventure = TVListingsCategoryAdventure;
inline constexpr Bits kCrime = TVListingsCategoryCrime;
inline constexpr Bits kWestern = TVListingsCategoryWesterns;
inline constexpr Bits kDrama = TVListingsCategoryDramas;
inline constexpr Bits kThriller = TVListingsCategoryThrillers;
inline constexpr Bits kSF = TVListingsCategorySF;
inline constexpr Bits kFantasy = TVListingsCategoryFantasy;
inline constexpr Bits kHorror = TVListingsCategoryHorrors;
/// A story of a genre without a category.
inline constexpr Bits kFiction = 1U << 19;
/// Drawn or animated: for children unless something else says that it is for adults.
inline constexpr Bits kAnimation = 1U << 20;
inline constexpr Bits kAdult = 1U << 21;
/// Neither a category nor a reason to look for one: commercials, closedown, no information.
inline constexpr Bits kNothing = 1U << 22;
/// Counts only beside words that say nothing else: in "Entertainment, Sitcom", "Sports magazine".
inline constexpr Bits kYields = 1U << 23;
/// Says so little that the theme of the channel is believed rather.
inline constexpr Bits kVague = 1U << 24;
/// A nationality or country: the word next to it tells what the show is.
inline constexpr Bits kNation = 1U << 25;

/// Of programmes with presenters, guests and candidates: an episode of one is not one of a story.
inline constexpr Bits kPresented = 1U << 26;

/// Where a word counts; a combination.
enum Place : std::uint32_t {
    /// In a category element or a genre that the feed packs into another text.
    kName = 1 << 0,
    /// In a description, subtitle or end of a title where it defines the show: "French comedy, 2017".
    kLead = 1 << 1,
    /// Anywhere in title, subtitle and the parts of the description that are read.
    kText = 1 << 2,
    /// Anywhere in the title, at its beginning, or as all of it.
    kTitle = 1 << 3,
    kTitleStart = 1 << 4,
    kWholeTitle = 1 << 5,
    /// At the beginning of the title, followed by no more words: an episode, season or subtitle may follow.
    kShowName = 1 << 8,
    /// In the name of the channel, or at its beginning.
    kChannel = 1 << 6,
    kChannelStart = 1 << 7,
    kKind = kName | kLead,
};

/// Words with the same meaning. They match as whole words, ignoring case and diacritics.
struct Row {
    Bits adds;
    std::uint32_t places;
    /// Separated by "|". "*" at the end of one admits other endings, at its beginning other beginnings.
    const char16_t* words;
    /// The only languages in which the words mean this, separated by blanks; null for any.
    const char16_t* languages = nullptr;
};

std::span<const Row> germanicRows();
std::span<const Row> romanceRows();
std::span<const Row> slavicRows();
std::span<const Row> cyrillicRows();
/// Hungarian, Greek, Turkish, Latvian and others.
std::span<const Row> otherRows();
std::span<const Row> titleRows();
std::span<const Row> channelRows();

} // namespace guide::genres
