#include "parsers/markers/PlainText.h"

#include <gtest/gtest.h>
#include <string_view>

namespace guide {
namespace {

TEST(PlainText, KeepsTheVisibleText) {
    const std::pair<std::string_view, QString> rows[] = {
        {"<p>One <b>two</b></p>\n three", QStringLiteral("One two\nthree")},
        {"a<br>b<BR/>c", QStringLiteral("a\nb\nc")},
        {"&#232;&#xE8;&egrave;&none;&", QStringLiteral("\u00E8\u00E8\u00E8&none;&")},
        {"1 > 0 < 2", QStringLiteral("1 > 0 < 2")},
        {"0 < 2", QStringLiteral("0 < 2")},
    };
    for (const auto& [html, text] : rows) {
        EXPECT_EQ(plainText(html), text) << html;
    }
}

} // namespace
} // namespace guide
