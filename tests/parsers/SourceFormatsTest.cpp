#include "parsers/SourceFormats.h"

#include "parsers/details/HBODetails.h"
#include "parsers/details/JojCinemaDetails.h"
#include "parsers/details/PortDetails.h"

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(SourceFormatsTest, TheFirstMatchingTestDecidesTheType) {
    const SourceHostTable hosts =
        *SourceHostTable::fromJson(R"({"PrimaMaxSourceId": "https://max.example:8080/"})");
    using enum ListingsType;
    const std::pair<ListingsType, QStringList> rows[] = {
        {XMLTV,
         {u"joj.x.tv"_s, u"12345.tv"_s, u"dsk"_s, u"hbo.hu"_s, u"max.example"_s, u"cinestar"_s, u"=12345"_s,
          u"cc.romania2"_s, u""_s}},
        {Palinsesto, {u"_"_s}},
        {Barrandov, {u"barrandov."_s}},
        {DigiSport, {u"dsk.Digi Sport 1"_s}},
        {JojCinema, {u"joj."_s}},
        {HBO, {u"-hbo.hu"_s}},
        {PrimaMax, {u"max.example:8080"_s}},
        {Nova, {u"cz.nova."_s}},
        {DolceSport, {u"dolce-sport.1"_s}},
        {Cinestar, {u"cinestar.hr.1"_s}},
        {PortNetwork, {u"12345"_s}},
        {ComedyCentral, {u"cc.romania"_s}},
    };
    for (const auto& [type, sourceIds] : rows) {
        for (const QString& sourceId : sourceIds) {
            EXPECT_EQ(listingsTypeForSourceId(sourceId, hosts), type) << sourceId.toStdString();
        }
    }
    EXPECT_EQ(listingsTypeForSourceId(u""_s, *SourceHostTable::fromJson(R"({"PrimaMaxSourceId": ""})")),
              XMLTV)
        << "an empty host matches no id";
}

TEST(SourceFormatsTest, PlansAndReadsByDifferentOrders) {
    const SourceHostTable hosts = *SourceHostTable::fromJson(R"({"PrimaMaxSourceId": "http://max.example"})");
    const std::tuple<QString, SourceFamily, ListingsType> rows[] = {
        {u"barrandov.x.tv"_s, SourceFamily::Barrandov, ListingsType::XMLTV},
        {u"http://max.example"_s, SourceFamily::DirectURL, ListingsType::PrimaMax},
        {u"max.example"_s, SourceFamily::PrimaMax, ListingsType::PrimaMax},
        {u"_C5"_s, SourceFamily::Mediaset, ListingsType::Palinsesto},
        {u"_C5.tv"_s, SourceFamily::MediasetPay, ListingsType::XMLTV},
    };
    for (const auto& [sourceId, family, type] : rows) {
        const ClassifiedSource source = classifiedSource(sourceId, hosts);
        EXPECT_EQ(source.family, family) << sourceId.toStdString();
        EXPECT_EQ(source.type, type) << sourceId.toStdString();
    }
    EXPECT_EQ(detailReaderForSourceId(u"-x"_s, hosts), readHBODetails);
    EXPECT_EQ(detailReaderForSourceId(u"joj.x.tv"_s, hosts), readJojCinemaDetails);
    EXPECT_EQ(detailReaderForSourceId(u"r.x"_s, hosts), readPortDetails);
}

} // namespace
} // namespace guide
