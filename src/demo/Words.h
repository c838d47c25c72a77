#pragma once

#include "demo/Grammar.h"

#include <QStringView>

namespace guide {

/// The grammar that the shows of a language are told by: "cs", "sk", "en", "fr", "tr" or "ru".
const Grammar& grammarOf(QStringView language);

namespace words {

// The grammars' sources, in pieces.
extern const char16_t* const kCzechPeople;
extern const char16_t* const kCzechFilms;
extern const char16_t* const kCzechSeries;
extern const char16_t* const kCzechWorld;
extern const char16_t* const kCzechCompany;
extern const char16_t* const kSlovakFilms;
extern const char16_t* const kSlovakShows;
extern const char16_t* const kEnglish;
extern const char16_t* const kFrench;
extern const char16_t* const kTurkish;
extern const char16_t* const kRussian;

} // namespace words

} // namespace guide
