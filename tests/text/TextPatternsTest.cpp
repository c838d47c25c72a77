#include "text/cleaning/TextPatterns.h"

#include "GeneratedText.h"
#include "text/cleaning/FeedTextCleaning.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(TextPatternsTest, AgreeWithRegularExpressions) {
    const auto pattern = [](const QString& text) {
        return QRegularExpression(u"(*ANY)"_s + text, QRegularExpression::UseUnicodePropertiesOption);
    };
    const QRegularExpression parentheses = pattern(u"[\u00A0\\s]\\(.*\\)"_s);
    const QRegularExpression brackets = pattern(u"\\[.*\\]"_s);
    const QRegularExpression labels = pattern(u"\\s[^\\s]+\\:\\s.+"_s);
    GeneratedText generated({u"("_s, u")"_s, u"["_s, u"]"_s, u" "_s, u" "_s, u":"_s, u": "_s, u"a"_s, u" ("_s,
                             u"ab:"_s, u"\n"_s, u"\u00A0"_s, u"\u2003"_s, u"\u2028"_s, u"\v"_s, u"\f"_s,
                             u"\u0085"_s, u"😀"_s});
    for (int i = 0; i < 50'000; ++i) {
        const QString text = generated.text(14);
        const std::string shown = text.toUtf8().toPercentEncoding(" ()[]:").toStdString();
        ASSERT_EQ(withoutParentheses(text), QString(text).remove(parentheses)) << shown;
        ASSERT_EQ(withoutBrackets(text), QString(text).remove(brackets)) << shown;
        ASSERT_EQ(withoutLabelTails(text), QString(text).remove(labels)) << shown;
        const auto range = bracketRange(text);
        const QRegularExpressionMatch match = brackets.match(text);
        ASSERT_EQ(range.has_value(), match.hasMatch()) << shown;
        if (range) {
            ASSERT_EQ(range->start, match.capturedStart()) << shown;
            ASSERT_EQ(range->size, match.capturedLength()) << shown;
        }
    }
}

} // namespace
} // namespace guide
