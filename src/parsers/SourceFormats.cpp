#include "parsers/SourceFormats.h"

#include "parsers/details/CinestarDetails.h"
#include "parsers/details/ComedyCentralDetails.h"
#include "parsers/details/HBODetails.h"
#include "parsers/details/JojCinemaDetails.h"
#include "parsers/details/PalinsestoDetails.h"
#include "parsers/details/PortDetails.h"
#include "parsers/formats/BarrandovListReader.h"
#include "parsers/formats/CinestarListReader.h"
#include "parsers/formats/ComedyCentralListReader.h"
#include "parsers/formats/DigiSportListReader.h"
#include "parsers/formats/DolceSportListReader.h"
#include "parsers/formats/HBOListReader.h"
#include "parsers/formats/JojCinemaListReader.h"
#include "parsers/formats/NovaListReader.h"
#include "parsers/formats/PalinsestoListReader.h"
#include "parsers/formats/PortNetworkListReader.h"
#include "parsers/formats/PrimaMaxListReader.h"
#include "parsers/xmltv/FeedPlans.h"
#include "parsers/xmltv/XMLTVListReader.h"
#include "sources/SourceId.h"

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using Match = SourceIdForm::Match;

constexpr SourceIdForm prefix(QLatin1StringView text) {
    return {Match::Prefix, text};
}

constexpr SourceIdForm rule(bool (*test)(const QString& sourceId, const SourceHostTable& hosts)) {
    return {Match::Rule, {}, test};
}

bool isMediasetId(const QString& sourceId, const SourceHostTable& /*hosts*/) {
    return isMediasetCode(sourceId);
}

bool isPrimaMaxId(const QString& sourceId, const SourceHostTable& hosts) {
    return hosts.isPrimaMaxSourceId(sourceId);
}

bool isPortId(const QString& sourceId, const SourceHostTable& /*hosts*/) {
    return sourceIdUsedByPortNetwork(sourceId);
}

// Whether the URLs depend on the host table alone.
constexpr bool kFixed = true;
constexpr bool kVarying = false;

constexpr PageFormat kXMLTV{ListingsType::XMLTV, readXMLTVLists};

// To add a family: an enumerator and a row here, and its plan, reader and detail reader. Planning
// tests ids in the order of the rows; the number after a reader is its position among the tests for the
// listing type.
constexpr std::array<SourceFormat, kSourceFamilies> kFormats{{
    {SourceFamily::Rytec, prefix("r."_L1), planRytecFeed, kVarying, kXMLTV},
    {SourceFamily::NFeed, prefix("n."_L1), planNFeed, kFixed, kXMLTV},
    {SourceFamily::SFeed, prefix("s."_L1), planSFeed, kFixed, kXMLTV},
    {SourceFamily::TVPCFeed, prefix("tvpc."_L1), planTVPCFeed, kFixed, kXMLTV},
    {SourceFamily::DolceSport,
     prefix("dolce-sport."_L1),
     planDolceSportPages,
     kVarying,
     {ListingsType::DolceSport, readDolceSportLists, 9}},
    {SourceFamily::Mediaset,
     rule(isMediasetId),
     planMediasetFile,
     kFixed,
     {ListingsType::Palinsesto, readPalinsestoLists, 2}},
    {SourceFamily::MediasetPay,
     prefix("_"_L1),
     planMediasetPayFile,
     kFixed,
     {ListingsType::Palinsesto, readPalinsestoLists, 2},
     {prefix("_"_L1), readPalinsestoDetails}},
    {SourceFamily::DirectURL, prefix("http"_L1), planDirectURL, kVarying, kXMLTV},
    {SourceFamily::Barrandov,
     prefix("barrandov."_L1),
     planBarrandovPages,
     kVarying,
     {ListingsType::Barrandov, readBarrandovLists, 3}},
    {SourceFamily::DigiSport,
     prefix("dsk."_L1),
     planDigiSportPage,
     kFixed,
     {ListingsType::DigiSport, readDigiSportLists, 4}},
    {SourceFamily::JojCinema,
     prefix("joj."_L1),
     planJojCinemaPages,
     kVarying,
     {ListingsType::JojCinema, readJojCinemaLists, 5},
     {prefix("joj."_L1), readJojCinemaDetails}},
    {SourceFamily::HBO,
     prefix("-hbo."_L1),
     planHBOPages,
     kVarying,
     {ListingsType::HBO, readHBOLists, 6},
     {prefix("-"_L1), readHBODetails}},
    {SourceFamily::PrimaMax,
     rule(isPrimaMaxId),
     planPrimaMaxPages,
     kVarying,
     {ListingsType::PrimaMax, readPrimaMaxLists, 7}},
    {SourceFamily::Nova,
     prefix("cz.nova."_L1),
     planNovaPages,
     kVarying,
     {ListingsType::Nova, readNovaLists, 8}},
    {SourceFamily::BNet,
     {Match::Suffix, ".tv"_L1},
     planBNetFiles,
     kVarying,
     {ListingsType::XMLTV, readXMLTVLists, 1}},
    {SourceFamily::ComedyCentral,
     {Match::Whole, "cc.romania"_L1},
     planComedyCentralPages,
     kFixed,
     {ListingsType::ComedyCentral, readComedyCentralLists, 12},
     {{Match::Whole, "cc.romania"_L1}, readComedyCentralDetails}},
    {SourceFamily::Cinestar,
     prefix("cinestar."_L1),
     planCinestarPages,
     kVarying,
     {ListingsType::Cinestar, readCinestarLists, 10},
     {prefix("cinestar."_L1), readCinestarDetails}},
    {SourceFamily::MojTV, prefix("="_L1), planMojTVFiles, kVarying, kXMLTV},
    {SourceFamily::PortNetwork,
     rule(isPortId),
     planPortNetworkPage,
     kVarying,
     {ListingsType::PortNetwork, readPortNetworkLists, 11},
     {{Match::Any}, readPortDetails}},
    {SourceFamily::TVProfil, {Match::Any}, planTVProfilFile, kVarying, kXMLTV},
}};

consteval bool isConsistent() {
    std::array<ListReader, kSourceFamilies> readers{};
    for (std::size_t i = 0; i < kFormats.size(); ++i) {
        const PageFormat& pages = kFormats[i].pages;
        ListReader& reader = readers[static_cast<std::size_t>(pages.type)];
        if (kFormats[i].family != static_cast<SourceFamily>(i) || (reader && reader != pages.read)) {
            return false;
        }
        reader = pages.read;
    }
    return std::all_of(readers.begin(),
                       readers.begin() + static_cast<std::ptrdiff_t>(ListingsType::ComedyCentral) + 1,
                       [](ListReader reader) { return reader != nullptr; });
}
static_assert(isConsistent(), "a row for each family in order, and one reader for each listing type");

// The rows that take part in the test for the listing type, in the order of testing.
consteval auto typeTests() {
    constexpr auto isTested = [](const SourceFormat& format) { return format.pages.typeTest > 0; };
    std::array<std::size_t, std::ranges::count_if(kFormats, isTested)> order{};
    std::size_t count = 0;
    for (std::size_t i = 0; i < kFormats.size(); ++i) {
        if (isTested(kFormats[i])) {
            order[count++] = i;
        }
    }
    std::ranges::sort(order, {}, [](std::size_t i) { return kFormats[i].pages.typeTest; });
    return order;
}
constexpr auto kTypeTests = typeTests();

} // namespace

bool SourceIdForm::fits(const QString& sourceId, const SourceHostTable& hosts) const {
    switch (match) {
    case Match::None:
        return false;
    case Match::Prefix:
        return sourceId.startsWith(text);
    case Match::Suffix:
        return sourceId.endsWith(text);
    case Match::Whole:
        return sourceId == text;
    case Match::Rule:
        return rule(sourceId, hosts);
    case Match::Any:
        return true;
    }
    return false;
}

ClassifiedSource classifiedSource(const QString& sourceId, const SourceHostTable& hosts) {
    // The last row matches any id.
    const auto planned = std::ranges::find_if(
        kFormats, [&](const SourceFormat& format) { return format.ids.fits(sourceId, hosts); });
    return {planned->family, listingsTypeForSourceId(sourceId, hosts)};
}

ListingsType listingsTypeForSourceId(const QString& sourceId, const SourceHostTable& hosts) {
    const auto tested = std::ranges::find_if(
        kTypeTests, [&](std::size_t row) { return kFormats[row].ids.fits(sourceId, hosts); });
    return tested == kTypeTests.end() ? ListingsType::XMLTV : kFormats[*tested].pages.type;
}

const SourceFormat& sourceFormat(SourceFamily family) {
    return kFormats[static_cast<std::size_t>(family)];
}

ListReader listReaderForType(ListingsType type) {
    const auto format =
        std::ranges::find(kFormats, type, [](const SourceFormat& row) { return row.pages.type; });
    return format == kFormats.end() ? nullptr : format->pages.read;
}

DetailReader detailReaderForSourceId(const QString& sourceId, const SourceHostTable& hosts) {
    // The row of the Port network matches any id and is the last one that has a detail reader.
    return std::ranges::find_if(
               kFormats, [&](const SourceFormat& format) { return format.details.ids.fits(sourceId, hosts); })
        ->details.read;
}

} // namespace guide
