#include "parsers/SourceFormats.h"

#include "parsers/details/HBODetails.h"
#include "parsers/details/JojCinemaDetails.h"
#include "parsers/details/PortDetails.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(SourceFormatsTest, TheFirstMatchingTestDecidesTheType) {
    const SourceHostTable hosts =
        *SourceHostTable::fromJson(R"({"PrimaMaxSourceId": "https://max.example:8080/"})");
    using enum ListingsType;
    const std::pair<QString, ListingsType> rows[] = {
        {u"joj.x.tv"_s, XMLTV},
        {u"12345.tv"_s, XMLTV},
        {u"_"_s, Palinsesto},
        {u"barrandov."_s, Barrandov},
        {u"dsk.Digi Sport 1"_s, DigiSport},
        {u"dsk"_s, XMLTV},
        {u"joj."_s, JojCinema},
        {u"-hbo.hu"_s, HBO},
        {u"hbo.hu"_s, XMLTV},
        {u"max.example:8080"_s, PrimaMax},
        {u"max.example"_s, XMLTV},
        {u"cz.nova."_s, Nova},
        {u"dolce-sport.1"_s, DolceSport},
        {u"cinestar.hr.1"_s, Cinestar},
        {u"cinestar"_s, XMLTV},
        {u"12345"_s, PortNetwork},
        {u"=12345"_s, XMLTV},
        {u"cc.romania"_s, ComedyCentral},
        {u"cc.romania2"_s, XMLTV},
        {u""_s, XMLTV},
    };
    for (const auto& [sourceId, type] : rows) {
        EXPECT_EQ(listingsTypeForSourceId(sourceId, hosts), type) << sourceId.toStdString();
    }
    EXPECT_EQ(listingsTypeForSourceId(u""_s, *SourceHostTable::fromJson(R"({"PrimaMaxSourceId": ""})")),
              XMLTV)
        << "an empty host matches no id";
}

TEST(SourceFormatsTest, PlansAndReadsByDifferentOrders) {
    const SourceHostTable hosts = *SourceHostTable::fromJson(R"({"PrimaMaxSourceId": "http://max.example"})");
    struct Row {
        QString sourceId;
        SourceFamily family;
        ListingsType type;
    };
    const Row rows[] = {
        {u"barrandov.x.tv"_s, SourceFamily::Barrandov, ListingsType::XMLTV},
        {u"http://max.example"_s, SourceFamily::DirectURL, ListingsType::PrimaMax},
        {u"max.example"_s, SourceFamily::PrimaMax, ListingsType::PrimaMax},
        {u"_C5"_s, SourceFamily::Mediaset, ListingsType::Palinsesto},
        {u"_C5.tv"_s, SourceFamily::MediasetPay, ListingsType::XMLTV},
    };
    for (const Row& row : rows) {
        const ClassifiedSource source = classifiedSource(row.sourceId, hosts);
        EXPECT_EQ(source.family, row.family) << row.sourceId.toStdString();
        EXPECT_EQ(source.type, row.type) << row.sourceId.toStdString();
    }
    EXPECT_EQ(detailReaderForSourceId(u"-x"_s, hosts), readHBODetails);
    EXPECT_EQ(detailReaderForSourceId(u"joj.x.tv"_s, hosts), readJojCinemaDetails);
    EXPECT_EQ(detailReaderForSourceId(u"r.x"_s, hosts), readPortDetails);
}

} // namespace
} // namespace guide
