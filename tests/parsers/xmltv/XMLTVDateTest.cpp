#include "parsers/xmltv/XMLTVDate.h"

#include "parsers/ShowJSON.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

TEST(XMLTVDate, AcceptsOnlyDatesWithAnOffset) {
    const std::pair<const char*, const char*> rows[] = {
        {"20240101120000 +0100", "2024-01-01T11:00:00Z"}, {"20240101120000 Z", "2024-01-01T12:00:00Z"},
        {"20240101120000Z", "2024-01-01T12:00:00Z"},      {"20240101003000 +01", "2023-12-31T23:30:00Z"},
        {"20240101120000 -0330", "2024-01-01T15:30:00Z"}, {"20240101120000 +05:45", "2024-01-01T06:15:00Z"},
        {"20240229235959 +0000", "2024-02-29T23:59:59Z"}, {"19691231235959 Z", "1969-12-31T23:59:59Z"},
    };
    for (const auto& [text, expected] : rows) {
        const auto moment = parseXMLTVDate(text);
        EXPECT_EQ(moment ? isoMoment(*moment).toStdString() : "none", expected) << text;
    }
    for (const char* text :
         {"", "20240101120000", "20240101120000 ", "20240101120000 BST", "20240101120000  +0100",
          "20240101120000\t+0100", "20240101120000 +0100 ", "20240101120000 0100", "20240101120000 +1",
          "20240101120000 +2400", "20240101120000 +0160", "20230229120000 Z", "20241301120000 Z",
          "20240100120000 Z", "20240101240000 Z", "20240101120060 Z", "2024010112000\xC2\xB2 Z"}) {
        EXPECT_FALSE(parseXMLTVDate(text)) << text;
    }
}

} // namespace
} // namespace guide
