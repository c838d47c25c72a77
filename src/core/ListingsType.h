#pragma once

namespace guide {

/// How the pages of a source are read.
enum class ListingsType : unsigned {
    PortNetwork = 0,
    XMLTV = 1,
    Palinsesto = 2,
    Barrandov = 3,
    DigiSport = 4,
    JojCinema = 5,
    PrimaMax = 6,
    HBO = 7,
    Nova = 8,
    DolceSport = 9,
    Cinestar = 10,
    ComedyCentral = 11,
};

} // namespace guide
