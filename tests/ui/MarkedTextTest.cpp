#include "ui/look/MarkedText.h"

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

TEST(MarkedTextTest, MarksRangesAndNothingElse) {
    const auto marked = [](const QString& text, const std::vector<TextRange>& ranges) {
        return markedText(text, ranges, Qt::red)
            .replace(u"<b><font color=\"#ff0000\">"_s, u"["_s)
            .replace(u"</font></b>"_s, u"]"_s);
    };
    EXPECT_EQ(marked(u"Tom & Jerry"_s, {{0, 3}, {6, 2}}), u"[Tom] &amp; [Je]rry"_s);
    EXPECT_EQ(marked(u"<b>\"x\"</b>\n<img src=y>"_s, {{3, 3}}),
              u"&lt;b&gt;[&quot;x&quot;]&lt;/b&gt;<br>&lt;img src=y&gt;"_s)
        << "what a feed says is never markup";
    EXPECT_EQ(marked(u"abc"_s, {{1, 5}, {9, 2}}), u"a[bc][]"_s);
    EXPECT_EQ(marked(QString(), {}), QString());
}

} // namespace
} // namespace guide::test
