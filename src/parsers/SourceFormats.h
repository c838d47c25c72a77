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
    /// The place of the family among the tests for the listing type, from 1; 0 when it is not tested for and
    /// the type is the default. Not the planner's order: an id may be planned as one family and read as
    /// another.
    int typeTest = 0;
};

struct DetailFormat {
    /// The sources whose show pages are read so.
    SourceIdForm ids = {};
    DetailReader read = nullptr;
};

/// All that the guide knows of a family of sources: a row of the table in SourceFormats.cpp.
struct SourceFormat {
    SourceFamily family;
    SourceIdForm ids;
    URLPlan plan;
    /// Whether the plan depends on the host table alone, so that it is made once.
    bool fixedURLs;
    PageFormat pages;
    DetailFormat details = {};
};

/// What a source id turns out to be.
struct ClassifiedSource {
    /// By which its URLs are planned.
    SourceFamily family;
    /// By which its pages are read; XMLTV when no test claims the id.
    ListingsType type;
};
ClassifiedSource classifiedSource(const QString& sourceId, const SourceHostTable& hosts);

ListingsType listingsTypeForSourceId(const QString& sourceId, const SourceHostTable& hosts);
const SourceFormat& sourceFormat(SourceFamily family);
/// Null for a number that is not a listing type.
ListReader listReaderForType(ListingsType type);
/// How the show pages of a source are read.
DetailReader detailReaderForSourceId(const QString& sourceId, const SourceHostTable& hosts);

} // namespace guide
