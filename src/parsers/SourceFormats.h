#pragma once

#include "core/ListingsType.h"
#include "parsers/details/DetailPage.h"
#include "parsers/formats/ListReader.h"
#include "sources/SourceHostTable.h"
#include "sources/URLPlan.h"

#include <QLatin1StringView>
#include <QString>

#include <cstddef>

namespace guide {

/// The families of source ids, in the order in which the planner tests them.
enum class SourceFamily {
    Rytec,
    NFeed,
    SFeed,
    TVPCFeed,
    DolceSport,
    Mediaset,
    MediasetPay,
    DirectURL,
    Barrandov,
    DigiSport,
    JojCinema,
    HBO,
    PrimaMax,
    Nova,
    BNet,
    ComedyCentral,
    Cinestar,
    MojTV,
    PortNetwork,
    TVProfil,
};
constexpr std::size_t kSourceFamilies = static_cast<std::size_t>(SourceFamily::TVProfil) + 1;

/// How an id is recognised.
struct SourceIdForm {
    enum class Match { None, Prefix, Suffix, Whole, Rule, Any };

    Match match = Match::None;
    QLatin1StringView text = {};
    bool (*rule)(const QString& sourceId, const SourceHostTable& hosts) = nullptr;

    bool fits(const QString& sourceId, const SourceHostTable& hosts) const;
};

struct PageFormat {
    ListingsType type;
    ListReader read;
    /// The position of the family among the tests for the listing type, from 1; 0 when it is not tested, so
    /// that its ids get the default type. The order differs from the planner's: an id may be planned as one
    /// family and read as another.
    int typeTest = 0;
};

struct DetailFormat {
    /// The source ids whose show pages have this format.
    SourceIdForm ids = {};
    DetailReader read = nullptr;
};

/// Everything the guide knows about a family of sources: a row of the table in SourceFormats.cpp.
struct SourceFormat {
    SourceFamily family;
    SourceIdForm ids;
    URLPlan plan;
    /// Whether the plan depends on the host table alone; such a plan is made once.
    bool fixedURLs;
    PageFormat pages;
    DetailFormat details = {};
};

/// The classification of a source id.
struct ClassifiedSource {
    /// Determines how its URLs are planned.
    SourceFamily family;
    /// Determines how its pages are read; XMLTV when no test matches the id.
    ListingsType type;
};
ClassifiedSource classifiedSource(const QString& sourceId, const SourceHostTable& hosts);

ListingsType listingsTypeForSourceId(const QString& sourceId, const SourceHostTable& hosts);
const SourceFormat& sourceFormat(SourceFamily family);
/// Null for a number that is not a listing type.
ListReader listReaderForType(ListingsType type);
/// The reader for the show pages of a source.
DetailReader detailReaderForSourceId(const QString& sourceId, const SourceHostTable& hosts);

} // namespace guide
