#include "text/cleaning/MarkupText.h"

#include "GeneratedText.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

/// Applies the replacements one after another, each to the whole text.
QString naiveDecode(QString text) {
    std::uint64_t start = 0;
    std::uint64_t end = 0;
    if (const qsizetype s = text.indexOf(u"<![CDATA["_s); s >= 0) {
        text.remove(s, 9);
        const qsizetype c = s + 9 <= text.size() ? text.indexOf(u"]]>"_s, s + 9) : -1;
        if (c >= 0) {
            text.remove(c, 3);
        }
        start = std::uint64_t(s);
        end = c < 0 ? std::uint64_t(text.size())
                    : std::uint64_t(s) + std::uint64_t(text.size()) - (std::uint64_t(c) + 3);
    }
    const auto next = [&](const QString& key, qsizetype from) {
        qsizetype at = text.indexOf(key, from);
        while (at >= 0 && std::uint64_t(at) >= start && std::uint64_t(at) < end) {
            at = text.indexOf(key, at + 1);
        }
        return at;
    };
    for (const auto& [key, sign] : {std::pair(u"&amp;"_s, u"&"_s),
                                    {u"&lt;"_s, u"<"_s},
                                    {u"&gt;"_s, u">"_s},
                                    {u"&apos;"_s, u"'"_s},
                                    {u"&quot"_s, u"\""_s}}) {
        for (qsizetype at = next(key, 0); at >= 0; at = next(key, at)) {
            text.replace(at, key.size(), sign);
        }
    }
    for (const auto& [key, base] : {std::pair(u"&#x"_s, 16), {u"&#"_s, 10}}) {
        for (qsizetype at = next(key, 0); at >= 0; at = next(key, at)) {
            const qsizetype semicolon = text.indexOf(u';', at);
            if (semicolon < 0) {
                break;
            }
            const std::string digits =
                text.mid(at + 3, std::max<qsizetype>(0, semicolon - at - 3)).toStdString();
            const auto first = digits.find_first_not_of("0123456789abcdefABCDEF");
            const auto number =
                std::strtoull(digits.substr(0, std::min(first, std::size_t(15))).c_str(), nullptr, base);
            text.replace(at, semicolon - at, QChar(char16_t(number)));
        }
    }
    return text.left(10'000);
}

TEST(MarkupTextTest, DecodesFragments) {
    const std::pair<QString, QString> rows[] = {
        {u"<![CDATA[A &amp; B]]>"_s, u"A &amp; B"_s},
        {u"xxx<![CDATA[A &amp; B]]>"_s, u"xxxA & B"_s},
        {u"xx<![CDATA[A &amp; B]]>"_s, u"xxA &amp; B"_s},
        {u"<![CDATA[A &amp; B]]> &amp;12"_s, u"A &amp; B &12"_s},
        {u"<![CDATA[A &amp; B, no end"_s, u"A &amp; B, no end"_s},
        {u"<![CDATA[short]]>"_s, u"short]]>"_s},
        {u"<![CDATA["_s, u""_s},
        {u"&amp;amp;"_s, u"&"_s},
        {u"&amp;lt;"_s, u"<"_s},
        {u"&quot;a&quot;"_s, u"\";a\";"_s},
        {u"&#x41;"_s, u"A;"_s},
        {u"&#x10041;"_s, u"A;"_s},
        {u"&#165;"_s, u"A;"_s},
        {u"&#269;"_s, u"E;"_s},
        {u"&#x41 &#165"_s, u"&#x41 &#165"_s},
        {u"&#x4Gz;"_s, u"\u0004;"_s},
        {u"&#;"_s, QString(QChar(0)) + u';'},
        {u"&#x;"_s, QString(QChar(0)) + u';'},
        {u"&#xD83D;"_s, QString(QChar(0xD83D)) + u';'},
        {QString(10'001, u'a'), QString(10'000, u'a')},
        {QString(9'999, u'a') + u"&amp;b"_s, QString(9'999, u'a') + u'&'},
    };
    for (const auto& [text, decoded] : rows) {
        EXPECT_EQ(decodeMarkup(text), decoded) << text.left(40).toStdString();
    }
}

TEST(MarkupTextTest, AgreesWithSuccessiveReplacements) {
    GeneratedText generated({u"&"_s, u"&amp;"_s, u"amp;"_s, u"&lt;"_s, u"&gt;"_s, u"&apos;"_s, u"&quot"_s,
                             u"&#x"_s, u"&#"_s, u"#x"_s, u";"_s, u"26"_s, u"238"_s, u"4aG"_s, u"<![CDATA["_s,
                             u"]]>"_s, u"abcdefgh"_s, u"x"_s});
    for (int i = 0; i < 50'000; ++i) {
        const QString text = generated.text(14);
        ASSERT_EQ(decodeMarkup(text), naiveDecode(text)) << text.toStdString();
    }
}

TEST(MarkupTextTest, TrimsListingTexts) {
    const std::pair<QString, std::optional<QString>> rows[] = {
        {u" -- Vijesti  . "_s, u"Vijesti ."_s},
        {u"   "_s, std::nullopt},
        {u"-…„"_s, std::nullopt},
        {u"$+<a>"_s, u"a>"_s},
        {u"€a\u00A0\u2003"_s, u"€a"_s},
        {u"a   b    c"_s, u"a  b  c"_s},
    };
    for (const auto& [text, trimmed] : rows) {
        EXPECT_EQ(trimmedListingText(text), trimmed) << text.toStdString();
    }
}

} // namespace
} // namespace guide
