#include "text/categories/ShowClassifierWords.h"

#include <array>

namespace guide {

namespace {

// The words that sources use, including their misspellings.
constexpr std::array kMusic{u"music",    u"glazba", u"glazb.",   u"glaz.",    u"muzički", u"muzička",
                            u"muz.",     u"muzică", u"música",   u"muzika",   u"mjuz.",   u"glazbeno",
                            u"glazbena", u"hudba",  u"zene",     u"jukebox",  u"klavir",  u"koncert",
                            u"concert",  u"konc.",  u"koncertf", u"concierto"};
constexpr std::array kSports{
    u"liga",       u"leage",        u"league",       u"extraliga",   u"cup",        u"kup",
    u"cupa",       u"utakmica",     u"match",        u"formula",     u"formel",     u"plivanje",
    u"atletika",   u"football",     u"nogomet",      u"fotbal",      u"fussball",   u"fußball",
    u"fudbal",     u"fútbol",       u"futsal",       u"hattrick",    u"basketball", u"košarka",
    u"basketbal",  u"eurobasket",   u"handball",     u"rukomet",     u"handbal",    u"nba",
    u"bundesliga", u"prvenstvo",    u"championship", u"campionatul", u"šampionát",  u"atp",
    u"turnir",     u"tournament",   u"wimbledon",    u"badminton",   u"hockey",     u"hokej",
    u"hochei",     u"eishockey",    u"biatlon",      u"walleyball",  u"odbojka",    u"race",
    u"utrka",      u"racing",       u"utrkivanje",   u"boxing",      u"boks",       u"box",
    u"moto",       u"motorismus",   u"motorů",       u"motosport",   u"motorsport", u"motocross",
    u"motogp",     u"motomondiale", u"autosport",    u"grand prix",  u"canyoning",  u"rally",
    u"wrc",        u"uefa",         u"play off",     u"semifinále",  u"nfl",        u"nhl",
    u"spl",        u"slalom",       u"trophy",       u"ufc",         u"rodeo",      u"riding",
    u"marathon",   u"skiing",       u"ski",          u"schi",        u"schiurile",  u"patinaj",
    u"athletic",   u"poker",        u"wrestling",    u"torna",       u"snowboard",  u"snowboarding",
    u"raisport",   u"cycling",      u"deportes",     u"deporte",     u"poluvreme",  u"tennis",
    u"tenis",      u"taekwondo"};
constexpr std::array kEntertainment{
    u"show",         u"sh.",     u"game",    u"igra",      u"kviz",           u"kv.",
    u"mag.",         u"magazin", u"magazín", u"hollywood", u"celebrity",      u"celebrities",
    u"fashion",      u"playboy", u"reality", u"quizshow",  u"divertisment",   u"entertainment",
    u"reality-ser.", u"serie a", u"zabavni", u"záb.",      u"zabavna emisija"};
constexpr std::array kNews{u"vijesti",     u"news",         u"hírműsor",     u"vesti",
                           u"dnevnik",     u"eurovijesti",  u"informativni", u"report",
                           u"izvještaj",   u"euronews",     u"informari",    u"rtl danas",
                           u"informativo", u"informativos", u"el tiempo",    u"meteo"};
constexpr std::array kSeries{u"ser.",         u"serija",
                             u"series",       u"sor.",
                             u"serie",        u"serial",
                             u"seriski",      u"sorozat",
                             u"drámasorozat", u"seriál",
                             u"série",        u"sezona",
                             u"sapunica",     u"soap opera",
                             u"minis.",       u"miniserija",
                             u"minisor.",     u"krimisor.",
                             u"krimiser.",    u"episodul",
                             u"rész",         u"epizoda",
                             u"epizóda",      u"kalandfilmsor.",
                             u"filmsor.",     u"kalandfilmsorozat",
                             u"horrorsor.",   u"telenovela",
                             u"law & order"};
constexpr std::array kMovies{u"film",      u"movie",    u"filmski maraton", u"akční",
                             u"akciófilm", u"tévéfilm", u"telefilm",        u"rövidfilm",
                             u"akc.",      u"actiune",  u"romance"};
constexpr std::array kWesterns{u"western", u"vestern"};
constexpr std::array kHorrors{u"horor", u"horror"};
constexpr std::array kThrillers{u"triler", u"triller", u"tril.", u"thriller", u"thrill.", u"thr."};
constexpr std::array kDramas{u"drama",  u"dram.",        u"filmdráma", u"film. dr.",
                             u"f. dr.", u"dr. romantic", u"dr. muz.",  u"dr.,"};
constexpr std::array kCrime{u"krimi",      u"gengszterfilm", u"gangst.", u"krimić",
                            u"krim. film", u"poliţist",      u"crima"};
constexpr std::array kAdventure{u"pust.", u"avent.", u"pustolovni", u"kalandf.", u"dobr.", u"aventura"};
constexpr std::array kFantasy{u"fant.", u"fan.", u"fantasy"};
constexpr std::array kSF{u"sf", u"s.f.", u"sci-fi", u"science fiction"};
constexpr std::array kComedies{u"comedy", u"kom.", u"komedija", u"com.", u"komed.", u"comedie", u"vígj."};
constexpr std::array kEpisodes{u"serijski film", u"seriski film", u"ep."};
constexpr std::array kDocumentaries{u"dok.",
                                    u"documentary",
                                    u"dokumentarni",
                                    u"dokumentumf.",
                                    u"dokumentárny",
                                    u"doc.",
                                    u"dok film",
                                    u"dokumentum",
                                    u"dokumentarna",
                                    u"economie",
                                    u"documentales",
                                    u"obrazovna programa",
                                    u"reportaža",
                                    u"reportage",
                                    u"dokumentarni film",
                                    u"dokumentaren film",
                                    u"obrazovni film",
                                    u"propagandni film",
                                    u"znan. pop. film",
                                    u"etno film"};
constexpr std::array kForChildren{u"anim.",   u"animated", u"an.",         u"crt.",    u"crtani", u"crtana",
                                  u"risanka", u"futurama", u"dječja",      u"djecu",   u"dječji", u"dječiji",
                                  u"bajka",   u"bajke",    u"teletubbies", u"za deca", u"vrtić",  u"dj."};
constexpr std::array kAction{u"akcija"};

constexpr std::array kGroups{
    ClassifierGroup{TVListingsCategoryMusic, kMusic, nullptr, u"opera", u"soap opera"},
    ClassifierGroup{TVListingsCategorySports, kSports, u"sport", u"maraton", u"filmski maraton"},
    ClassifierGroup{TVListingsCategoryEntertainment, kEntertainment},
    ClassifierGroup{TVListingsCategoryNews, kNews},
    ClassifierGroup{TVListingsCategorySeries, kSeries},
    ClassifierGroup{TVListingsCategoryMovies, kMovies},
    ClassifierGroup{TVListingsCategoryWesterns, kWesterns},
    ClassifierGroup{TVListingsCategoryHorrors, kHorrors},
    ClassifierGroup{TVListingsCategoryThrillers, kThrillers},
    ClassifierGroup{TVListingsCategoryDramas, kDramas},
    ClassifierGroup{TVListingsCategoryCrime, kCrime},
    ClassifierGroup{TVListingsCategoryAdventure, kAdventure},
    ClassifierGroup{TVListingsCategoryFantasy, kFantasy},
    ClassifierGroup{TVListingsCategorySF, kSF},
    ClassifierGroup{TVListingsCategoryComedies, kComedies},
    ClassifierGroup{TVListingsCategorySeries, kEpisodes, nullptr, nullptr, nullptr,
                    TVListingsCategoryAllFilm | TVListingsCategorySeries},
    ClassifierGroup{TVListingsCategoryDocumentaries, kDocumentaries},
    ClassifierGroup{TVListingsCategoryForChildren, kForChildren},
    ClassifierGroup{TVListingsCategoryMovies, kAction},
};

} // namespace

std::span<const ClassifierGroup> classifierGroups() {
    return kGroups;
}

} // namespace guide
