#include "parsers/xmltv/XMLTVDate.h"

#include "parsers/ShowJSON.h"

#include <array>
#include <gtest/gtest.h>

namespace guide {
namespace {

struct Row {
    const char* text;
    /// Null for no date.
    const char* moment;
};

TEST(XMLTVDate, AcceptsOnlyDatesWithAnOffset) {
    const std::array<Row, 25> rows{{
        {"20240101120000 +0100", "2024-01-01T11:00:00Z"},
        {"20240101120000 Z", "2024-01-01T12:00:00Z"},
        {"20240101120000Z", "2024-01-01T12:00:00Z"},
        {"20240101003000 +01", "2023-12-31T23:30:00Z"},
        {"20240101120000 -0330", "2024-01-01T15:30:00Z"},
        {"20240101120000 +05:45", "2024-01-01T06:15:00Z"},
        {"20240229235959 +0000", "2024-02-29T23:59:59Z"},
        {"19691231235959 Z", "1969-12-31T23:59:59Z"},
        {"", nullptr},
        {"20240101120000", nullptr},
        {"20240101120000 ", nullptr},
        {"20240101120000 BST", nullptr},
        {"20240101120000  +0100", nullptr},
        {"20240101120000\t+0100", nullptr},
        {"20240101120000 +0100 ", nullptr},
        {"20240101120000 0100", nullptr},
        {"20240101120000 +1", nullptr},
        {"20240101120000 +2400", nullptr},
        {"20240101120000 +0160", nullptr},
        {"20230229120000 Z", nullptr},
        {"20241301120000 Z", nullptr},
        {"20240100120000 Z", nullptr},
        {"20240101240000 Z", nullptr},
        {"20240101120060 Z", nullptr},
        {"2024010112000\xC2\xB2 Z", nullptr},
    }};
    for (const Row& row : rows) {
        const auto moment = parseXMLTVDate(row.text);
        const std::string read = moment ? isoMoment(*moment).toStdString() : "none";
        EXPECT_EQ(read, row.moment ? row.moment : "none") << row.text;
    }
}

} // namespace
} // namespace guide
