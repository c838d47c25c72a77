#pragma once

#include <cstdint>

namespace guide {

/// A set of the bits below.
using TVListingsCategory = std::uint32_t;

inline constexpr TVListingsCategory TVListingsCategoryMovies = 0x1;
inline constexpr TVListingsCategory TVListingsCategorySeries = 0x2;
inline constexpr TVListingsCategory TVListingsCategoryDocumentaries = 0x4;
inline constexpr TVListingsCategory TVListingsCategoryForChildren = 0x8;
inline constexpr TVListingsCategory TVListingsCategoryNews = 0x10;
inline constexpr TVListingsCategory TVListingsCategoryEntertainment = 0x20;
inline constexpr TVListingsCategory TVListingsCategoryMusic = 0x40;
inline constexpr TVListingsCategory TVListingsCategorySports = 0x80;
inline constexpr TVListingsCategory TVListingsCategoryComedies = 0x100;
inline constexpr TVListingsCategory TVListingsCategoryAdventure = 0x200;
inline constexpr TVListingsCategory TVListingsCategoryCrime = 0x400;
inline constexpr TVListingsCategory TVListingsCategoryWesterns = 0x800;
inline constexpr TVListingsCategory TVListingsCategoryDramas = 0x1000;
inline constexpr TVListingsCategory TVListingsCategoryThrillers = 0x2000;
inline constexpr TVListingsCategory TVListingsCategorySF = 0x4000;
inline constexpr TVListingsCategory TVListingsCategoryFantasy = 0x8000;
inline constexpr TVListingsCategory TVListingsCategoryHorrors = 0x10000;

/// Comedies to Horrors.
inline constexpr TVListingsCategory TVListingsCategoryFilmGenres = 0x1ff00;
/// The film genres and Movies; also the selector "Feature Films".
inline constexpr TVListingsCategory TVListingsCategoryAllFilm = 0x1ff01;
/// The selector "All Shows".
inline constexpr TVListingsCategory TVListingsCategoryAllShows = 0x1ffff;
/// The selectors -1 and -2, which are not sets of bits.
inline constexpr TVListingsCategory TVListingsCategoryEveningShows = 0xffffffff;
inline constexpr TVListingsCategory TVListingsCategoryMostWatched = 0xfffffffe;

} // namespace guide
